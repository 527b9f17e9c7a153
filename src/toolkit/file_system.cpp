#include "toolkit/file_system.h"

#include <algorithm>

namespace tarvex {

FileText::FileText(std::string_view text)
    : bytes_(std::make_unique_for_overwrite<char[]>(text.size())), size_(text.size()) {
    std::copy(text.begin(), text.end(), bytes_.get());
}

}  // namespace tarvex
