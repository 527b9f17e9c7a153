#include <gtest/gtest.h>
#include <windows.h>

#include "support/temp_folder.h"
#include "toolkit/failure.h"
#include "toolkit/native_clock.h"
#include "toolkit/native_file_system.h"
#include "toolkit/native_registry.h"

namespace tarvex::testing {
namespace {

template <class Call>
int NumberOf(Call call) {
    try {
        call();
    } catch (const Failure& failure) {
        return failure.Number();
    }
    return 0;
}

TEST(WindowsFiles, FilesThatOthersHoldAndReadOnlyFilesAreToldApart) {
    const TempFolder folder;
    folder.Put("locked", "x");
    folder.Put("fixed", "x");
    const auto files = MakeNativeFileSystem();
    const HANDLE held = CreateFileA(folder.Path("locked").c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    SetFileAttributesA(folder.Path("fixed").c_str(), FILE_ATTRIBUTE_READONLY);

    EXPECT_EQ(NumberOf([&] { files->Read(folder.Path("locked")); }), PermissionDenied);
    EXPECT_EQ(NumberOf([&] { files->Write(folder.Path("locked"), "y"); }), PermissionDenied);
    // Wine lets root write them.
    const HANDLE probe = CreateFileA(folder.Path("fixed").c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                                     FILE_ATTRIBUTE_NORMAL, nullptr);
    if (probe == INVALID_HANDLE_VALUE) {
        EXPECT_EQ(NumberOf([&] { files->Write(folder.Path("fixed"), "y"); }), AccessError);
    } else {
        CloseHandle(probe);
    }
    EXPECT_EQ(files->Read(folder.Path("fixed")).View(), "x");
    CloseHandle(held);
    SetFileAttributesA(folder.Path("fixed").c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST(WindowsFiles, DevicesAndWildcardsAreNoFiles) {
    const TempFolder folder;
    const auto files = MakeNativeFileSystem();
    EXPECT_EQ(NumberOf([&] { files->Read("\\\\.\\NUL"); }), AccessError);
    EXPECT_NE(NumberOf([&] { files->Write(folder.Path("what?.wsd"), "x"); }), 0);
    EXPECT_EQ(NumberOf([&] { files->Read(folder.Path("no\\what?.wsd")); }), PathNotFound);
}

TEST(WindowsRegistry, ReadsAValueAndLooksAmongThe32BitKeys) {
    const std::string path = "Software\\TarvexTest";
    HKEY made = nullptr;
    if (RegCreateKeyExA(HKEY_LOCAL_MACHINE, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS | KEY_WOW64_32KEY,
                        nullptr, &made, nullptr) != ERROR_SUCCESS) {
        GTEST_SKIP() << "only an administrator can write the key";
    }
    RegSetValueExA(made, "path", 0, REG_SZ, reinterpret_cast<const BYTE*>("C:\\FS"), 6);
    RegCloseKey(made);

    const auto registry = MakeNativeRegistry();
    EXPECT_EQ(registry->Value(0x80000002, path, "path"), std::string("C:\\FS\0", 6));
    EXPECT_EQ(registry->Value(0x80000002, path, "other"), std::nullopt);
    RegDeleteKeyExA(HKEY_LOCAL_MACHINE, path.c_str(), KEY_WOW64_32KEY, 0);
    EXPECT_EQ(registry->Value(0x80000002, path, "path"), std::nullopt);
}

TEST(WindowsClock, DateIsTodaysInTheShortFormWithoutComma) {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    const std::string date = MakeNativeClock()->ShortDate();
    EXPECT_NE(date.find(std::to_string(now.wYear % 100)), std::string::npos) << date;
    EXPECT_EQ(date.find(','), std::string::npos) << date;
}

}  // namespace
}  // namespace tarvex::testing
