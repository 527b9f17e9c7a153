#pragma once

#include <optional>
#include <string>
#include <vector>

#include <wx/bmpbndl.h>
#include <wx/choice.h>
#include <wx/listbox.h>

#include "desktop/binder.h"
#include "desktop/line_drag.h"
#include "desktop/line_list.h"
#include "toolkit/drive_lists.h"
#include "toolkit/list_box.h"

namespace tarvex {

class ListBoxBinder final : public Binder {
  public:
    ListBoxBinder(NativeForm& window, ListBox& list, wxListBox& widget, const wxString& spoken);
    void ToWidget() override;

  private:
    void ToDoor(bool open);
    void ShowLines();

    ListBox& list_;
    wxListBox& widget_;
    std::vector<std::string> shown_;
};

class ColumnListBinder final : public Binder {
  public:
    ColumnListBinder(NativeForm& window, ColumnList& list, LineList& widget, const wxString& spoken);
    void ToWidget() override;

  private:
    void ToDoor();
    void PickAlone(int line);
    void OnKey(wxKeyEvent& event);

    ColumnList& list_;
    LineList& widget_;
    std::vector<std::string> shown_;
    std::optional<LineDrag> drag_;  // where lines can be moved
};

class DriveListBinder final : public Binder {
  public:
    DriveListBinder(NativeForm& window, DriveList& list, wxChoice& widget, const wxString& spoken);
    void ToWidget() override;

  private:
    void ToDoor();

    DriveList& list_;
    wxChoice& widget_;
};

// Shows the folder on the way down from its root, then what lies in it.
class FolderListBinder final : public Binder {
  public:
    FolderListBinder(NativeForm& window, FolderList& list, LineList& widget, const wxString& spoken);
    void ToWidget() override;

  private:
    struct Line {
        int index;  // of the control's list
        std::string path;
        wxString text;
        bool operator==(const Line&) const = default;
    };

    std::vector<Line> Lines() const;
    void ToDoor(bool open);

    FolderList& list_;
    LineList& widget_;
    wxBitmapBundle closed_;
    wxBitmapBundle opened_;
    std::vector<Line> lines_;
};

// A file is picked by a click or by Enter: moving along the names with the arrow keys is not yet a choice.
class FileListBinder final : public Binder {
  public:
    FileListBinder(NativeForm& window, FileList& list, LineList& widget, const wxString& spoken);
    void ToWidget() override;

  private:
    void ToDoor(int line);
    void OnChar(wxKeyEvent& event);

    FileList& list_;
    LineList& widget_;
    std::vector<std::string> shown_;
};

}  // namespace tarvex
