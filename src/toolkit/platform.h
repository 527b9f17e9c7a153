#pragma once

#include <string>

#include "toolkit/browser.h"
#include "toolkit/clipboard.h"
#include "toolkit/clock.h"
#include "toolkit/file_system.h"
#include "toolkit/message_box.h"
#include "toolkit/picture_services.h"
#include "toolkit/registry.h"

namespace tarvex {

// The services of the machine that the program runs on. Owned by whoever makes the program.
struct Platform {
    FileSystem& files;
    Registry& registry;
    Clock& clock;
    MessageBox& messages;
    PictureServices& pictures;
    Clipboard& clipboard;
    Browser& browser;
    std::string programFolder;  // the folder that holds the executable, as a path of `files`
};

}  // namespace tarvex
