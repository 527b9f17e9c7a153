#include "toolkit/file_system.h"

#include <algorithm>

#include "toolkit/folding.h"

namespace tarvex {

FileText::FileText(std::string_view text)
    : bytes_(std::make_unique_for_overwrite<char[]>(text.size())), size_(text.size()) {
    std::copy(text.begin(), text.end(), bytes_.get());
}

std::string FileSystem::UpperCase(std::string_view path) const {
    return Capitals(path);
}

}  // namespace tarvex
