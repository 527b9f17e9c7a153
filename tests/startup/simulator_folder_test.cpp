#include "startup/simulator_folder.h"

#include <gtest/gtest.h>

#include "support/test_services.h"

namespace tarvex::testing {
namespace {

constexpr std::uint32_t LocalMachine = 0x80000002;

// The value of that many bytes, closing zero included.
std::string WithZero(const std::string& text) {
    return text + '\0';
}

TEST(SimulatorFolderTest, ReadsOneValue) {
    FakeRegistry registry;
    registry.Put(LocalMachine, "Software\\App\\7.0", "path", WithZero(" C:\\Sim "));
    registry.Put(LocalMachine, "Software\\App\\7.0", "", WithZero("unnamed"));
    registry.Put(LocalMachine, "Software\\App\\7.0", "bare", "abc");
    registry.Put(LocalMachine, "Software\\App\\7.0", "empty", WithZero(""));
    registry.Put(LocalMachine, "Software\\App\\7.0", "nothing", "");
    registry.Put(LocalMachine, "Software\\App", "path", WithZero("no section"));
    registry.Put(LocalMachine, "Software\\Tarvex", "path", WithZero("product"));
    registry.Put(0x80000001, "Software\\App", "path", WithZero("user's"));

    const auto read = [&](const char* app, const char* section, const char* key) {
        return ReadRegistryValue(registry, app, section, key, "default");
    };
    EXPECT_EQ(read("App", "7.0", "path"), " C:\\Sim ");
    EXPECT_EQ(read(" App  ", "7.0", "*"), "unnamed");
    EXPECT_EQ(read("App", "7.0", "bare"), "ab");
    EXPECT_EQ(read("App", "7.0", "empty"), "");
    EXPECT_EQ(read("App", "", "path"), "no section");
    EXPECT_EQ(read("", "", "path"), "product");
    for (const char* missing : {"nothing", "none"}) EXPECT_EQ(read("App", "7.0", missing), "default");
    EXPECT_EQ(read("App", "8.0", "path"), "default");

    CRegistry_Manipulation manipulation(registry);
    manipulation.AppName(" App ");
    EXPECT_EQ(manipulation.AppName(), "App");
    std::int32_t root = 0;
    EXPECT_EQ(manipulation.GetKey(root, "", "path"), "no section");
    EXPECT_EQ(static_cast<std::uint32_t>(root), LocalMachine);
    root = static_cast<std::int32_t>(0x80000001U);
    EXPECT_EQ(manipulation.GetKey(root, "", "path"), "user's");
    EXPECT_EQ(manipulation.GetKey(root, "7.0", "path"), "");
}

}  // namespace
}  // namespace tarvex::testing
