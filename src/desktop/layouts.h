#pragma once

#include <string_view>

namespace tarvex {

class Form;
class NativeForm;

struct ScreenLayout {
    std::string_view form;
    // Fills the window with the widgets of the form.
    void (*layOut)(Form& form, NativeForm& window);
    std::string_view beside;  // the form whose window it comes up beside; empty: in the middle
    bool floats;              // stays above that window
    int roomyLines;           // lines of text by which it comes up higher than it need be, for its lists
    int roomyColumns;         // characters by which it comes up wider, for its pictures
    int roomBeside;           // characters kept free on its right, for the windows that come up beside it
};

// BadArgument (5) for a form that has none.
const ScreenLayout& LayoutOf(const Form& form);

void LayOutMenu(Form& form, NativeForm& window);
void LayOutFindFolder(Form& form, NativeForm& window);
void LayOutPicker(Form& form, NativeForm& window);
void LayOutEditor(Form& form, NativeForm& window);
void LayOutFindWaypoint(Form& form, NativeForm& window);
void LayOutAddArc(Form& form, NativeForm& window);
void LayOutCreateWaypoint(Form& form, NativeForm& window);
void LayOutLatLong(Form& form, NativeForm& window);

}  // namespace tarvex
