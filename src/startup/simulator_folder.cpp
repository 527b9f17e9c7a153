#include "startup/simulator_folder.h"

#include "geometry/text_rules.h"

namespace tarvex {

namespace {

constexpr std::uint32_t HKeyLocalMachine = 0x80000002;
constexpr std::string_view ProductName = "Tarvex";

}  // namespace

void CRegistry_Manipulation::AppName(std::string_view NewVal) {
    appName_ = NewVal.empty() ? ProductName : Trim(NewVal);
}

std::string CRegistry_Manipulation::GetKey(std::int32_t& lngRootsKey, std::string_view Section,
                                           std::string_view Key, std::string_view Default) {
    if (lngRootsKey == 0) lngRootsKey = static_cast<std::int32_t>(HKeyLocalMachine);
    const std::string name(Key == "*" ? std::string_view() : Key);
    auto value = registry_.Value(static_cast<std::uint32_t>(lngRootsKey), BuildKeyPath(Section), name);
    if (!value || value->empty()) return std::string(Default);
    value->pop_back();
    return *value;
}

std::string CRegistry_Manipulation::BuildKeyPath(std::string_view Section) const {
    std::string path = "Software\\" + appName_;
    if (!Section.empty()) path.append("\\").append(Section);
    return path;
}

std::string ReadRegistryValue(Registry& registry, std::string_view AppName, std::string_view Section,
                              std::string_view Key, std::string_view Default) {
    CRegistry_Manipulation manipulation(registry);
    manipulation.AppName(AppName);
    std::int32_t root = 0;
    return manipulation.GetKey(root, Section, Key, Default);
}

std::string RegisteredSimulatorFolder(Registry& registry) {
    return std::string(
        Trim(ReadRegistryValue(registry, "Microsoft\\Microsoft Games\\Flight Simulator", "7.0", "path", "")));
}

}  // namespace tarvex
