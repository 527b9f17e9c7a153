#include "desktop/window_system.h"

#include <algorithm>
#include <memory>
#include <utility>

#include <wx/access.h>
#include <wx/app.h>
#include <wx/filename.h>
#include <wx/filesys.h>
#include <wx/log.h>
#include <wx/settings.h>
#include <wx/utils.h>

#ifdef __WXGTK__
#include <array>
#include <gdk/gdkx.h>
#include <gtk/gtk.h>
#include <sys/wait.h>
#endif

namespace tarvex {

#ifdef __WXGTK__

namespace {

gboolean RunTask(gpointer data) {
    (*static_cast<std::function<void()>*>(data))();
    return G_SOURCE_REMOVE;
}

void DeleteTask(gpointer data) {
    delete static_cast<std::function<void()>*>(data);
}

void FindList(GtkWidget* widget, gpointer found) {
    auto** list = static_cast<GtkWidget**>(found);
    if (*list != nullptr) return;
    if (GTK_IS_TREE_VIEW(widget)) {
        *list = widget;
    } else if (GTK_IS_CONTAINER(widget)) {
        gtk_container_foreach(GTK_CONTAINER(widget), FindList, found);
    }
}

// Marks the window as one that the user has just dealt with, and gives the time of that. A window manager
// that guards against windows which steal the keyboard goes by it.
guint32 MarkAsUsed(GtkWidget* window) {
    gtk_widget_realize(window);
    GdkWindow* native = gtk_widget_get_window(window);
    if (!GDK_IS_X11_WINDOW(native)) return GDK_CURRENT_TIME;
    // The server tells its time through an event of this kind.
    gdk_window_set_events(
        native, static_cast<GdkEventMask>(gdk_window_get_events(native) | GDK_PROPERTY_CHANGE_MASK));
    const guint32 now = gdk_x11_get_server_time(native);
    gdk_x11_window_set_user_time(native, now);
    return now;
}

gboolean PresentMapped(GtkWidget* window, GdkEvent*, gpointer) {
    g_signal_handlers_disconnect_by_func(window, reinterpret_cast<gpointer>(PresentMapped), nullptr);
    gtk_window_present_with_time(GTK_WINDOW(window), MarkAsUsed(window));
    return GDK_EVENT_PROPAGATE;
}

// Sends a press, a drag or a release of the left button to the list's handlers; true: that was all.
gboolean PassPress(GtkWidget*, GdkEvent* event, gpointer list) {
    GdkModifierType keys{};
    guint button = 0;
    double x = 0;
    double y = 0;
    gdk_event_get_root_coords(event, &x, &y);
    gdk_event_get_state(event, &keys);
    gdk_event_get_button(event, &button);
    wxMouseEvent passed;
    if (event->type == GDK_BUTTON_PRESS && button == GDK_BUTTON_PRIMARY) {
        passed.SetEventType(wxEVT_LEFT_DOWN);
    } else if (event->type == GDK_BUTTON_RELEASE && button == GDK_BUTTON_PRIMARY) {
        passed.SetEventType(wxEVT_LEFT_UP);
    } else if (event->type == GDK_MOTION_NOTIFY && (keys & GDK_BUTTON1_MASK) != 0) {
        passed.SetEventType(wxEVT_MOTION);
    } else {
        return GDK_EVENT_PROPAGATE;
    }
    passed.SetLeftDown(event->type != GDK_BUTTON_RELEASE);
    passed.SetShiftDown((keys & GDK_SHIFT_MASK) != 0);
    passed.SetControlDown((keys & GDK_CONTROL_MASK) != 0);
    passed.SetAltDown((keys & GDK_MOD1_MASK) != 0);
    auto* window = static_cast<wxDataViewCtrl*>(list);
    passed.SetEventObject(window);
    passed.SetPosition(window->ScreenToClient(wxPoint(static_cast<int>(x), static_cast<int>(y))));
    return window->HandleWindowEvent(passed) ? GDK_EVENT_STOP : GDK_EVENT_PROPAGATE;
}

// The widget that the user deals with: of a scrolled list the list.
GtkWidget* Core(const wxWindow& widget) {
    GtkWidget* outer = widget.GetHandle();
    if (!GTK_IS_SCROLLED_WINDOW(outer)) return outer;
    GtkWidget* list = nullptr;
    FindList(outer, &list);
    return list != nullptr ? list : outer;
}

}  // namespace

void RunNext(std::function<void()> task) {
    g_idle_add_full(G_PRIORITY_HIGH, RunTask, new std::function<void()>(std::move(task)), DeleteTask);
}

void NameForAccess(wxWindow& widget, const std::string& id, const wxString& spoken) {
    AtkObject* access = gtk_widget_get_accessible(Core(widget));
    if (access == nullptr) return;
    atk_object_set_accessible_id(access, id.c_str());
    if (!spoken.empty()) atk_object_set_name(access, spoken.utf8_str());
}

void DescribeForAccess(wxWindow& widget, const wxString& words) {
    AtkObject* access = gtk_widget_get_accessible(Core(widget));
    if (access != nullptr) atk_object_set_description(access, words.utf8_str());
}

void MarkAsAlert(wxWindow& window) {
    atk_object_set_role(gtk_widget_get_accessible(window.GetHandle()), ATK_ROLE_ALERT);
}

void Present(wxWindow& window) {
    GtkWidget* native = window.GetHandle();
    const guint32 now = MarkAsUsed(native);
    if (gtk_widget_get_mapped(native)) {
        gtk_window_present_with_time(GTK_WINDOW(native), now);
        return;
    }
    // A new window is put on the screen only after the window manager has told the size of its border, and a
    // request for the keyboard before that is lost.
    g_signal_connect(native, "map-event", G_CALLBACK(PresentMapped), nullptr);
}

bool HoldsFocusOfWindow(const wxWindow& widget) {
    GtkWidget* own = widget.GetHandle();
    GtkWidget* window = gtk_widget_get_toplevel(own);
    if (!GTK_IS_WINDOW(window)) return false;
    GtkWidget* focus = gtk_window_get_focus(GTK_WINDOW(window));
    return focus != nullptr && (focus == own || gtk_widget_is_ancestor(focus, own));
}

double PixelsOfUnit(const wxWindow& window) {
    constexpr double DotsPerInch = 96;
    const double resolution = gdk_screen_get_resolution(gtk_widget_get_screen(window.GetHandle()));
    return resolution > 0 ? resolution / DotsPerInch : 1;
}

void ActivateByClick(wxDataViewCtrl& list) {
    gtk_tree_view_set_activate_on_single_click(GTK_TREE_VIEW(list.GtkGetTreeView()), TRUE);
}

void LevelLines(wxDataViewCtrl& list) {
    gtk_tree_view_set_fixed_height_mode(GTK_TREE_VIEW(list.GtkGetTreeView()), TRUE);
}

void PassPresses(wxDataViewCtrl& list) {
    for (const char* signal : {"button-press-event", "motion-notify-event", "button-release-event"}) {
        g_signal_connect(list.GtkGetTreeView(), signal, G_CALLBACK(PassPress), &list);
    }
}

// A press holds it by itself.
void HoldMouse(wxDataViewCtrl&, bool) {}

void MarkEdge(wxDataViewCtrl& list, int line, bool below) {
    auto* view = GTK_TREE_VIEW(list.GtkGetTreeView());
    GtkTreePath* path = line < 0 ? nullptr : gtk_tree_path_new_from_indices(line, -1);
    gtk_tree_view_set_drag_dest_row(view, path, below ? GTK_TREE_VIEW_DROP_AFTER : GTK_TREE_VIEW_DROP_BEFORE);
    gtk_tree_path_free(path);
}

wxDataViewTextRenderer* NewTextRenderer() {
    return new wxDataViewTextRenderer;
}

bool OpenDocument(const std::string& path) {
    std::string opened = path;
    std::string opener = "xdg-open";
    const std::array<char*, 3> words = {opener.data(), opened.data(), nullptr};
    constexpr auto flags = static_cast<GSpawnFlags>(G_SPAWN_SEARCH_PATH | G_SPAWN_DO_NOT_REAP_CHILD |
                                                    G_SPAWN_STDOUT_TO_DEV_NULL | G_SPAWN_STDERR_TO_DEV_NULL);
    GPid child = 0;
    if (g_spawn_async(nullptr, const_cast<char**>(words.data()), nullptr, flags, nullptr, nullptr, &child,
                      nullptr) == FALSE) {
        const std::unique_ptr<char, decltype(&g_free)> uri(g_filename_to_uri(path.c_str(), nullptr, nullptr),
                                                           g_free);
        return uri && gtk_show_uri_on_window(nullptr, uri.get(), GDK_CURRENT_TIME, nullptr) != FALSE;
    }
    // It soon tells that nothing opens the file. One that stays has become the viewer.
    constexpr int Looks = 100;
    constexpr gulong Pause = 10'000;  // microseconds
    for (int look = 0; look < Looks; ++look) {
        int status = 0;
        if (waitpid(child, &status, WNOHANG) == child) return WIFEXITED(status) && WEXITSTATUS(status) == 0;
        g_usleep(Pause);
    }
    g_child_watch_add(
        child, [](GPid, gint, gpointer) {}, nullptr);
    return true;
}

double DotsPerInch() {
    constexpr double Usual = 96;
    const double known = gdk_screen_get_resolution(gdk_screen_get_default());
    return known > 0 ? known : Usual;
}

#else

namespace {

// A widget as the system describes it, but for its name and what is said of it.
class NamedAccess final : public wxAccessible {
  public:
    NamedAccess(wxWindow* widget, const wxString& name) : wxAccessible(widget), name_(name) {}

    void Describe(const wxString& words) { description_ = words; }

    wxAccStatus GetName(int child, wxString* name) override {
        if (child != wxACC_SELF) return wxACC_NOT_IMPLEMENTED;
        *name = name_;
        return wxACC_OK;
    }

    wxAccStatus GetDescription(int child, wxString* description) override {
        if (child != wxACC_SELF || description_.empty()) return wxACC_NOT_IMPLEMENTED;
        *description = description_;
        return wxACC_OK;
    }

  private:
    wxString name_;
    wxString description_;
};

class RoomyTextRenderer final : public wxDataViewTextRenderer {
  public:
    // What draws the text leaves a margin on both sides, which what measures it leaves out.
    wxSize GetSize() const override {
        return wxDataViewTextRenderer::GetSize() + wxSize(GetView()->GetCharWidth(), 0);
    }
};

}  // namespace

void RunNext(std::function<void()> task) {
    wxTheApp->CallAfter(std::move(task));
}

void NameForAccess(wxWindow& widget, const std::string& id, const wxString& spoken) {
    widget.SetName(id);
    // What shows a text of its own is called by it, and what describes its own lines must go on doing so.
    if (spoken.empty() || !widget.GetLabel().empty() || widget.GetOrCreateAccessible() != nullptr) return;
    widget.SetAccessible(new NamedAccess(&widget, spoken));
}

void DescribeForAccess(wxWindow& widget, const wxString& words) {
    if (auto* access = dynamic_cast<NamedAccess*>(widget.GetAccessible())) access->Describe(words);
}

void MarkAsAlert(wxWindow&) {}

void Present(wxWindow& window) {
    window.Raise();
}

bool HoldsFocusOfWindow(const wxWindow& widget) {
    for (const wxWindow* focus = wxWindow::FindFocus(); focus != nullptr; focus = focus->GetParent()) {
        if (focus == &widget) return true;
    }
    return false;
}

double PixelsOfUnit(const wxWindow& window) {
    return window.GetDPIScaleFactor();
}

void ActivateByClick(wxDataViewCtrl& list) {
    list.GetMainWindow()->Bind(wxEVT_LEFT_DOWN, [&list](wxMouseEvent& press) {
        press.Skip();
        wxDataViewItem line;
        wxDataViewColumn* column = nullptr;
        list.HitTest(press.GetPosition(), line, column);
        if (!line.IsOk()) return;
        wxDataViewEvent activation(wxEVT_DATAVIEW_ITEM_ACTIVATED, &list, line);
        list.HandleWindowEvent(activation);
    });
}

void LevelLines(wxDataViewCtrl&) {}

void PassPresses(wxDataViewCtrl&) {}

void HoldMouse(wxDataViewCtrl& list, bool hold) {
    wxWindow* lines = list.GetMainWindow();
    if (hold) {
        lines->CaptureMouse();
    } else if (lines->HasCapture()) {
        lines->ReleaseMouse();
    }
}

void MarkEdge(wxDataViewCtrl& list, int line, bool below) {
    constexpr const char* Name = "mark of an edge";
    constexpr int Thickness = 2;
    wxWindow* lines = list.GetMainWindow();
    wxWindow* mark = wxWindow::FindWindowByName(Name, lines);
    if (line < 0) {
        if (mark != nullptr) mark->Hide();
        return;
    }
    if (mark == nullptr) {
        mark = new wxWindow(lines, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxBORDER_NONE, Name);
        mark->SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT));
    }
    const auto* model = static_cast<const wxDataViewVirtualListModel*>(list.GetModel());
    const wxRect place = list.GetItemRect(model->GetItem(static_cast<unsigned>(line)));
    const wxPoint edge =
        lines->ScreenToClient(list.ClientToScreen(wxPoint(place.x, below ? place.GetBottom() + 1 : place.y)));
    const int thickness = list.FromDIP(Thickness);
    mark->SetSize(0, std::max(0, edge.y - thickness / 2), lines->GetClientSize().x, thickness);
    mark->Show();
}

wxDataViewTextRenderer* NewTextRenderer() {
    return new RoomyTextRenderer;
}

bool OpenDocument(const std::string& path) {
    const wxLogNull quiet;
    return wxLaunchDefaultBrowser(wxFileName::FileNameToURL(wxFileName(wxString::FromUTF8(path))));
}

#endif

}  // namespace tarvex
