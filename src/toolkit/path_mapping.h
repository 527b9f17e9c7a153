#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

// What the mapping of paths asks about the folders of the machine. Paths here are the system's own.
class FolderView {
  public:
    virtual ~FolderView() = default;
    // Whether there is an entry of exactly that spelling, whatever it is.
    virtual bool Has(const std::string& path) const = 0;
    // The names in a folder; none when it can't be listed.
    virtual std::vector<std::string> Names(const std::string& folder) const = 0;
};

// A path of the program as a path of the system.
struct MappedPath {
    std::string path;         // empty when no path of the system can stand for it
    bool folderFound = true;  // whether everything but the last part is there
};

// The spelling of the program's paths, as "C:\FS2000\Giostam" or "\home\pilot\fs2000", on a system with
// slashes, names that differ in case, and no drives. Backslashes and slashes separate. A drive letter stands
// for the link of that name in the Wine prefix's `dosdevices`. Each part is taken as spelled if there is such
// an entry, else as the entry that differs only in the case of A to Z; of several the first in byte order.
// What isn't there keeps the spelling asked for. "." and ".." mean what they mean to the system.
class PathMapping {
  public:
    // `winePrefix`: the folder that holds `dosdevices`; empty when there is none. The view must outlive the
    // mapping.
    PathMapping(const FolderView& view, std::string_view winePrefix);

    MappedPath ToSystem(std::string_view path) const;
    static std::string ToProgram(std::string_view systemPath);

    // Whether a path of the program can name the entry: none can hold a separator.
    static bool CanName(std::string_view entry);

    // "C:\" and so on for the prefix's drives, in the order of their letters.
    std::vector<std::string> Drives() const;

  private:
    // The entry of `folder` (ending in a slash, or empty for the current one) that `part` means; `part`
    // itself when there is none, with `found` false.
    std::string Stored(const std::string& folder, const std::string& part, bool& found) const;

    const FolderView& view_;
    std::string devices_;  // the folder of the drive links with a closing slash; empty without a prefix
};

}  // namespace tarvex
