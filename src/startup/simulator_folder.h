#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "toolkit/registry.h"

namespace tarvex {

// Reads one value below the registry key of an application.
class CRegistry_Manipulation {
  public:
    explicit CRegistry_Manipulation(Registry& registry) : registry_(registry) {}

    // An empty name stands for this program's; any other is taken without the blanks at its ends.
    void AppName(std::string_view NewVal);
    const std::string& AppName() const { return appName_; }

    // The value `Key` ("*": the unnamed one) of the application's key, or of its sub-key `Section` unless
    // that is empty; `Default` when it can't be had. The last byte of the value, its closing zero, is
    // dropped. A `lngRootsKey` of 0 stands for HKEY_LOCAL_MACHINE and becomes it.
    std::string GetKey(std::int32_t& lngRootsKey, std::string_view Section, std::string_view Key,
                       std::string_view Default = {});

  private:
    std::string BuildKeyPath(std::string_view Section) const;

    Registry& registry_;
    std::string appName_;
};

// The value `Key` of "Software\AppName\Section" under HKEY_LOCAL_MACHINE; `Default` when it can't be had.
std::string ReadRegistryValue(Registry& registry, std::string_view AppName, std::string_view Section,
                              std::string_view Key, std::string_view Default);

// The folder that the simulator left in the registry, without the blanks at its ends; empty for none.
std::string RegisteredSimulatorFolder(Registry& registry);

}  // namespace tarvex
