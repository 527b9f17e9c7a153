// A window that does nothing: what any program of this kind costs before it does anything.

#include <wx/app.h>
#include <wx/frame.h>

namespace {

class App : public wxApp {
  public:
    bool OnInit() override { return (new wxFrame(nullptr, wxID_ANY, "Empty"))->Show(); }
};

}  // namespace

wxIMPLEMENT_APP(App);
