#include "startup/simulator_folder.h"

#include <algorithm>

#include "geometry/text_rules.h"

namespace tarvex {

namespace {

constexpr std::uint32_t HKeyLocalMachine = 0x80000002;
constexpr std::uint32_t FullAccess = 0xF003F;
constexpr std::string_view ProductName = "Tarvex";

class OpenedKey {
  public:
    OpenedKey(Registry& registry, std::uint32_t root, const std::string& path)
        : registry_(registry), opened_(registry.OpenKey(root, path, FullAccess, key_)) {}
    ~OpenedKey() {
        if (opened_) registry_.CloseKey(key_);
    }
    OpenedKey(const OpenedKey&) = delete;
    OpenedKey& operator=(const OpenedKey&) = delete;

    bool Query(const std::string& name, char* buffer, std::uint32_t& size) {
        return opened_ && registry_.QueryValue(key_, name, buffer, size);
    }

  private:
    Registry& registry_;
    Registry::Key key_{};
    bool opened_;
};

}  // namespace

void CRegistry_Manipulation::AppName(std::string_view NewVal) {
    appName_ = NewVal.empty() ? ProductName : Trim(NewVal);
}

std::string CRegistry_Manipulation::GetKey(std::int32_t& lngRootsKey, std::string_view Section,
                                           std::string_view Key, std::string_view Default) {
    if (lngRootsKey == 0) lngRootsKey = static_cast<std::int32_t>(HKeyLocalMachine);
    OpenedKey key(registry_, static_cast<std::uint32_t>(lngRootsKey), BuildKeyPath(Section));
    const std::string name(Key == "*" ? std::string_view() : Key);
    std::uint32_t size = 0;
    if (!key.Query(name, nullptr, size) || size == 0) return std::string(Default);
    std::string buffer(size, ' ');
    if (!key.Query(name, buffer.data(), size)) return std::string(Default);
    // The value may have become shorter since its size was asked for.
    buffer.resize(std::min<std::size_t>(buffer.size(), std::max<std::uint32_t>(size, 1)) - 1);
    return buffer;
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
