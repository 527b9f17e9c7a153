#include <windows.h>

#include "toolkit/native_registry.h"

namespace tarvex {

namespace {

class AdvapiRegistry : public Registry {
  public:
    bool OpenKey(std::uint32_t root, const std::string& path, std::uint32_t access, Key& key) override {
        // The simulator is a 32-bit program; a 64-bit one sees its keys only on request.
        for (const REGSAM view : {REGSAM{0}, REGSAM{KEY_WOW64_32KEY}}) {
            HKEY opened = nullptr;
            if (RegOpenKeyExA(Root(root), path.c_str(), 0, access | view, &opened) == ERROR_SUCCESS) {
                key = reinterpret_cast<Key>(opened);
                return true;
            }
        }
        return false;
    }

    bool QueryValue(Key key, const std::string& name, char* buffer, std::uint32_t& size) override {
        DWORD type = 0;
        DWORD bytes = size;
        const LSTATUS status = RegQueryValueExA(reinterpret_cast<HKEY>(key), name.c_str(), nullptr, &type,
                                                reinterpret_cast<BYTE*>(buffer), &bytes);
        if (status != ERROR_SUCCESS) return false;
        size = bytes;
        return true;
    }

    void CloseKey(Key key) override { RegCloseKey(reinterpret_cast<HKEY>(key)); }

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
