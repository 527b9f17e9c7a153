#include "support/scripted_user.h"

#include <algorithm>

namespace tarvex::testing {

bool ScriptedUser::Types(TextBox& box, std::string_view text) {
    bool taken = door_.MoveFocus(box);
    if (!box.Text().empty()) taken = door_.Type(box, "");
    for (const char c : text) {
        if (program_.host.Stopped()) return false;
        taken = door_.Type(box, box.Text() + c);
    }
    return taken;
}

bool ScriptedUser::PicksFile(FileList& list, std::string_view name) {
    const auto& lines = list.Lines();
    const auto found = std::find(lines.begin(), lines.end(), name);
    return found != lines.end() && door_.PickFile(list, static_cast<int>(found - lines.begin()));
}

}  // namespace tarvex::testing
