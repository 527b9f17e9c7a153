#pragma once

#include <string>

namespace tarvex {

// Which procedure is open, and what for. A group of the shared variables.
struct ProcedureVariables {
    std::string ProcedureMode;  // "E", "T", "J": creating a DP, a STAR, an IAP; "D", "S", "I": modifying one
    std::string ProcedureFolder;    // folder of the procedure kind in use, with its closing backslash
    std::string ProcedureFileName;  // name, without folder, of the stored file picked for modifying
};

}  // namespace tarvex
