#include "toolkit/code_page_windows.h"

#include <windows.h>

#include "toolkit/folding.h"

namespace tarvex {

namespace {

std::wstring Wide(std::string_view text, UINT codePage) {
    const int size = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');
    wide.resize(static_cast<std::size_t>(
        MultiByteToWideChar(codePage, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()))));
    return wide;
}

std::string Narrow(std::wstring_view wide, UINT codePage) {
    constexpr std::size_t mostBytes = 4;
    std::string text(wide.size() * mostBytes, '\0');
    text.resize(static_cast<std::size_t>(
        WideCharToMultiByte(codePage, 0, wide.data(), static_cast<int>(wide.size()), text.data(),
                            static_cast<int>(text.size()), nullptr, nullptr)));
    return text;
}

bool SameName(const std::wstring& a, const std::wstring& b) {
    return CompareStringOrdinal(a.data(), static_cast<int>(a.size()), b.data(), static_cast<int>(b.size()),
                                TRUE) == CSTR_EQUAL;
}

}  // namespace

std::string UpperInCodePage(std::string_view path, unsigned codePage) {
    const std::wstring wide = Wide(path, codePage);
    std::wstring upper = wide;
    // Not by the rules of a language, as no file system goes by them.
    LCMapStringW(LOCALE_INVARIANT, LCMAP_UPPERCASE, wide.data(), static_cast<int>(wide.size()), upper.data(),
                 static_cast<int>(upper.size()));
    std::string narrow = Narrow(upper, codePage);
    return Wide(narrow, codePage) == upper && SameName(wide, upper) ? narrow : Capitals(path);
}

}  // namespace tarvex
