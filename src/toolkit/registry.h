#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tarvex {

// The registry of a Windows system. Texts are in the ANSI code page.
class Registry {
  public:
    virtual ~Registry() = default;

    // The bytes of a text value, its closing zero included: the value `name` (empty: the unnamed one) of the
    // key `path` below `root` (0x80000002 is HKEY_LOCAL_MACHINE). Nothing when there is no such value, or
    // when the key can't be opened with full access.
    virtual std::optional<std::string> Value(std::uint32_t root, const std::string& path,
                                             const std::string& name) = 0;
};

}  // namespace tarvex
