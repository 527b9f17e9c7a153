#include "toolkit/wine_prefix.h"

#include <cstdlib>
#include <sys/stat.h>

namespace tarvex {

std::string WinePrefix() {
    const char* named = std::getenv("WINEPREFIX");
    const char* home = std::getenv("HOME");
    std::string prefix;
    if (named != nullptr && *named != '\0') {
        prefix = named;
    } else if (home != nullptr && *home != '\0') {
        prefix = std::string(home) + "/.wine";
    }
    struct stat status {};
    if (prefix.empty() || stat(prefix.c_str(), &status) != 0 || !S_ISDIR(status.st_mode)) return {};
    return prefix;
}

}  // namespace tarvex
