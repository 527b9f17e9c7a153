#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

#include "toolkit/failure.h"
#include "toolkit/native_file_system.h"
#include "toolkit/native_registry.h"
#include "toolkit/path_mapping.h"
#include "toolkit/wine_prefix.h"
#include "toolkit/wine_registry.h"

namespace tarvex {

namespace {

constexpr std::uint32_t LocalMachine = 0x80000002;
constexpr std::string_view Software = "Software\\";
constexpr std::string_view SoftwareOf32Bit = "Software\\Wow6432Node\\";

class WineRegistry : public Registry {
  public:
    bool OpenKey(std::uint32_t root, const std::string& path, std::uint32_t, Key& key) override {
        const std::string prefix = WinePrefix();
        if (root != LocalMachine || prefix.empty()) return false;
        auto values = Find(PathMapping::ToProgram(prefix + "/system.reg"), path);
        if (!values) return false;
        key = ++lastKey_;
        open_[key] = std::move(*values);
        return true;
    }

    bool QueryValue(Key key, const std::string& name, char* buffer, std::uint32_t& size) override {
        const auto values = open_.find(key);
        if (values == open_.end()) return false;
        const std::string* bytes = FindWineValue(values->second, name);
        if (bytes == nullptr) return false;
        const auto needed = static_cast<std::uint32_t>(bytes->size());
        if (buffer != nullptr) {
            if (size < needed) return false;
            std::copy(bytes->begin(), bytes->end(), buffer);
        }
        size = needed;
        return true;
    }

    void CloseKey(Key key) override { open_.erase(key); }

  private:
    static std::optional<WineKeyValues> Find(const std::string& file, const std::string& path) {
        try {
            const FileText text = MakeNativeFileSystem()->Read(file);
            auto values = FindWineKey(text.View(), path);
            if (!values && path.starts_with(Software)) {
                const auto below = path.substr(Software.size());
                values = FindWineKey(text.View(), std::string(SoftwareOf32Bit) + below);
            }
            return values;
        } catch (const Failure&) {
            return std::nullopt;
        }
    }

    std::map<Key, WineKeyValues> open_;
    Key lastKey_ = 0;
};

}  // namespace

std::unique_ptr<Registry> MakeNativeRegistry() {
    return std::make_unique<WineRegistry>();
}

}  // namespace tarvex
