#include <algorithm>
#include <windows.h>

#include "toolkit/native_registry.h"

namespace tarvex {

namespace {

constexpr REGSAM FullAccess = 0xF003F;

std::optional<std::string> ValueOf(HKEY key, const char* name) {
    DWORD type = 0;
    DWORD size = 0;
    if (RegQueryValueExA(key, name, nullptr, &type, nullptr, &size) != ERROR_SUCCESS) return std::nullopt;
    std::string bytes(size, ' ');
    if (RegQueryValueExA(key, name, nullptr, &type, reinterpret_cast<BYTE*>(bytes.data()), &size) !=
        ERROR_SUCCESS) {
        return std::nullopt;
    }
    // The value may have become shorter since its size was asked for.
    bytes.resize(std::min<std::size_t>(bytes.size(), size));
    return bytes;
}

class AdvapiRegistry : public Registry {
  public:
    std::optional<std::string> Value(std::uint32_t root, const std::string& path,
                                     const std::string& name) override {
        // The simulator is a 32-bit program; a 64-bit one sees its keys only on request.
        for (const REGSAM view : {REGSAM{0}, REGSAM{KEY_WOW64_32KEY}}) {
            HKEY key = nullptr;
            if (RegOpenKeyExA(Root(root), path.c_str(), 0, FullAccess | view, &key) != ERROR_SUCCESS)
                continue;
            auto value = ValueOf(key, name.c_str());
            RegCloseKey(key);
            return value;
        }
        return std::nullopt;
    }

  private:
    // The roots are 32-bit numbers that the system widens with their sign.
    static HKEY Root(std::uint32_t root) {
        return reinterpret_cast<HKEY>(static_cast<LONG_PTR>(static_cast<LONG>(root)));
    }
};

}  // namespace

std::unique_ptr<Registry> MakeNativeRegistry() {
    return std::make_unique<AdvapiRegistry>();
}

}  // namespace tarvex
