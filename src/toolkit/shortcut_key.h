#pragma once

#include <algorithm>
#include <iterator>
#include <string_view>

namespace tarvex {

// The keys that mean something on a form, whatever has the focus there.
enum class ShortcutKey {
    Enter,
    Delete,
    CtrlEnter,
    CtrlUp,
    CtrlDown,
    CtrlL,
    CtrlS,
    CtrlY,
    CtrlZ,
    CtrlShiftC,
    CtrlShiftV,
    CtrlShiftZ,
    Ctrl1,
    Ctrl2,
    Ctrl3,
    Ctrl4,
    F1,
    F2,
    F3,
    F4,
    F5,
    F6,
    F8,
    Digit1,
    Digit2,
    Digit3,
    Digit4,
    Digit5,
    Digit6
};

struct NamedKey {
    ShortcutKey key;
    std::string_view name;  // as the user knows it
};

inline constexpr NamedKey NamedKeys[] = {
    {ShortcutKey::Enter, "Enter"},
    {ShortcutKey::Delete, "Delete"},
    {ShortcutKey::CtrlEnter, "Ctrl+Enter"},
    {ShortcutKey::CtrlUp, "Ctrl+Up"},
    {ShortcutKey::CtrlDown, "Ctrl+Down"},
    {ShortcutKey::CtrlL, "Ctrl+L"},
    {ShortcutKey::CtrlS, "Ctrl+S"},
    {ShortcutKey::CtrlY, "Ctrl+Y"},
    {ShortcutKey::CtrlZ, "Ctrl+Z"},
    {ShortcutKey::CtrlShiftC, "Ctrl+Shift+C"},
    {ShortcutKey::CtrlShiftV, "Ctrl+Shift+V"},
    {ShortcutKey::CtrlShiftZ, "Ctrl+Shift+Z"},
    {ShortcutKey::Ctrl1, "Ctrl+1"},
    {ShortcutKey::Ctrl2, "Ctrl+2"},
    {ShortcutKey::Ctrl3, "Ctrl+3"},
    {ShortcutKey::Ctrl4, "Ctrl+4"},
    {ShortcutKey::F1, "F1"},
    {ShortcutKey::F2, "F2"},
    {ShortcutKey::F3, "F3"},
    {ShortcutKey::F4, "F4"},
    {ShortcutKey::F5, "F5"},
    {ShortcutKey::F6, "F6"},
    {ShortcutKey::F8, "F8"},
    {ShortcutKey::Digit1, "1"},
    {ShortcutKey::Digit2, "2"},
    {ShortcutKey::Digit3, "3"},
    {ShortcutKey::Digit4, "4"},
    {ShortcutKey::Digit5, "5"},
    {ShortcutKey::Digit6, "6"},
};

constexpr std::string_view NameOf(ShortcutKey key) {
    return std::find_if(std::begin(NamedKeys), std::end(NamedKeys),
                        [key](const NamedKey& named) { return named.key == key; })
        ->name;
}

// The keys that a box with the focus takes for its own typing first, on every form.
constexpr bool UndoesOrRedoes(ShortcutKey key) {
    return key == ShortcutKey::CtrlZ || key == ShortcutKey::CtrlY || key == ShortcutKey::CtrlShiftZ;
}

}  // namespace tarvex
