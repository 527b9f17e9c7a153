#pragma once

#include <utility>
#include <vector>

#include <wx/sizer.h>
#include <wx/window.h>

namespace tarvex {

class NativeForm;

// The parts of the editor's window below the names, which stand in one of two ways: the commands beside the
// boxes and the picture beside the list, or, where the window has the room, boxes, list and commands in a
// column and the picture beside them at full height.
class EditorRooms {
  public:
    struct Parts {
        wxSizer* boxes;
        wxSizer* commands;
        wxSizer* list;
        wxSizer* picture;
        wxWindow* pictureWords;
        wxSizer* waysOut;
    };

    // `body` gets the parts, and `gap` is the distance between them.
    EditorRooms(NativeForm& window, wxBoxSizer& body, const Parts& parts, int gap);
    EditorRooms(const EditorRooms&) = delete;
    EditorRooms& operator=(const EditorRooms&) = delete;

    // The window has got another size.
    void Follow();

  private:
    void Measure();
    void Arrange(bool wide);
    void ArrangeWide();
    void ArrangeHigh();
    void Put(wxSizer& into, wxSizer* part, const wxSizerFlags& flags);
    void PutLine(wxSizer& into, wxWindow* line);
    bool HasRoomForWide() const;

    NativeForm& window_;
    wxBoxSizer& body_;
    Parts parts_;
    int gap_;
    wxWindow* level_;  // lines between the parts
    wxWindow* upright_;
    wxWindow* besidePicture_;
    bool wide_ = false;
    bool measured_ = false;
    wxSize leastWide_;  // of the page, arranged so
    wxSize leastHigh_;
    std::vector<std::pair<wxSizer*, wxSizer*>> held_;  // a part behind what holds it
};

}  // namespace tarvex
