#include <string_view>

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
    std::optional<std::string> Value(std::uint32_t root, const std::string& path,
                                     const std::string& name) override {
        const std::string prefix = WinePrefix();
        if (root != LocalMachine || prefix.empty()) return std::nullopt;
        const auto values = Find(PathMapping::ToProgram(prefix + "/system.reg"), path);
        const std::string* value = values ? FindWineValue(*values, name) : nullptr;
        return value != nullptr ? std::optional(*value) : std::nullopt;
    }

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
};

}  // namespace

std::unique_ptr<Registry> MakeNativeRegistry() {
    return std::make_unique<WineRegistry>();
}

}  // namespace tarvex
