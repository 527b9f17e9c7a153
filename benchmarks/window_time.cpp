// Starts a program, waits for its window and ends it: window_time PROGRAM [ARGUMENT ...]
// Prints the milliseconds from the start to the window on the screen, painted, and the most memory that the
// process held, in KiB.

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <memory>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

struct Freed {
    void operator()(void* memory) const { XFree(memory); }
};

class DisplayWatch {
  public:
    DisplayWatch() : display_(XOpenDisplay(nullptr)) {
        // Windows may go while they are looked at.
        XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });
    }
    bool IsOpen() const { return display_ != nullptr; }
    bool ShowsWindowOf(pid_t process) const { return Shows(DefaultRootWindow(display_), process); }

  private:
    bool Shows(Window window, pid_t process) const {
        if (OwnerOf(window) == process && IsPainted(window)) return true;
        Window root = 0, parent = 0;
        Window* children = nullptr;
        unsigned count = 0;
        if (XQueryTree(display_, window, &root, &parent, &children, &count) == 0) return false;
        const std::unique_ptr<Window, Freed> freed(children);
        for (unsigned i = 0; i < count; ++i) {
            if (Shows(children[i], process)) return true;
        }
        return false;
    }

    pid_t OwnerOf(Window window) const {
        static const Atom name = XInternAtom(display_, "_NET_WM_PID", False);
        Atom type = 0;
        int format = 0;
        unsigned long items = 0, rest = 0;
        unsigned char* value = nullptr;
        XGetWindowProperty(display_, window, name, 0, 1, False, XA_CARDINAL, &type, &format, &items, &rest,
                           &value);
        const std::unique_ptr<unsigned char, Freed> freed(value);
        return items == 1 ? static_cast<pid_t>(*reinterpret_cast<const unsigned long*>(value)) : 0;
    }

    // The display's own ground is black, a window's is not: most of its middle row shows which one it is.
    bool IsPainted(Window window) const {
        XWindowAttributes attributes{};
        if (XGetWindowAttributes(display_, window, &attributes) == 0) return false;
        if (attributes.map_state != IsViewable || attributes.width < 100) return false;
        const auto width = static_cast<unsigned>(attributes.width);
        XImage* image = XGetImage(display_, window, 0, attributes.height / 2, width, 1, AllPlanes, ZPixmap);
        if (image == nullptr) return false;
        unsigned painted = 0;
        for (unsigned x = 0; x < width; ++x) painted += XGetPixel(image, static_cast<int>(x), 0) != 0 ? 1 : 0;
        XDestroyImage(image);
        return painted > width / 2;
    }

    Display* display_;
};

std::string PeakMemory(pid_t process) {
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string word; status >> word;) {
        if (word == "VmHWM:" && status >> word) return word;
    }
    return "0";
}

}  // namespace

int main(int count, char** arguments) {
    constexpr auto patience = std::chrono::seconds(60);
    constexpr auto settling = std::chrono::milliseconds(500);
    const DisplayWatch screen;
    if (count < 2 || !screen.IsOpen()) return 2;
    const auto start = Clock::now();
    const pid_t process = fork();
    if (process == 0) {
        execv(arguments[1], arguments + 1);
        _exit(127);
    }
    bool shown = false;
    auto now = start;
    while (!shown && now - start < patience && waitpid(process, nullptr, WNOHANG) == 0) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        shown = screen.ShowsWindowOf(process);
        now = Clock::now();
    }
    if (shown) {
        std::this_thread::sleep_for(settling);
        std::printf("%.1f %s\n", std::chrono::duration<double, std::milli>(now - start).count(),
                    PeakMemory(process).c_str());
    }
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
    return shown ? 0 : 1;
}
