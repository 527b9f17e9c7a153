#pragma once

#include <cstdint>
#include <string>

namespace tarvex {

// The two registry operations that the program needs, in the shape of advapi32's RegOpenKeyExA and
// RegQueryValueExA. Texts are in the ANSI code page.
class Registry {
  public:
    using Key = std::uintptr_t;

    virtual ~Registry() = default;

    // Opens `path` below `root` (0x80000002 is HKEY_LOCAL_MACHINE). False: not there, or no access.
    virtual bool OpenKey(std::uint32_t root, const std::string& path, std::uint32_t access, Key& key) = 0;

    // With a null buffer gives the size of the value in bytes, closing zero included; otherwise fills the
    // buffer, whose size `size` holds. False: no such value, or the buffer is too small.
    virtual bool QueryValue(Key key, const std::string& name, char* buffer, std::uint32_t& size) = 0;

    virtual void CloseKey(Key key) = 0;
};

}  // namespace tarvex
