#include <gtest/gtest.h>
#include <windows.h>

#include "support/temp_folder.h"
#include "toolkit/code_page_windows.h"
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

TEST(WindowsFiles, UpperCaseGoesByTheCodePageAndKeepsTheFolder) {
    const struct {
        unsigned codePage;
        const char *name, *upper;
    } cases[] = {
        {1252, "spi\xE9l \xE5\xFF\xDF\xF7\xB5", "SPI\xC9L \xC5\x9F\xDF\xF7\xB5"},
        {1251, "\xE8\xE3\xF0\xFB \xB8\xB4z", "\xC8\xC3\xD0\xDB \xA8\xA5Z"},
        {1253, "\xF0\xE1\xDF \xFE\xC0", "\xD0\xC1\xBA \xBF\xC0"},
        {1254, "fsi \xF0\xFE\xFD\xDD\xDDi", "FSI \xD0\xDE\xFD\xDD\xDDI"},
        {932, "\x83\x61 \x81\x61z", "\x83\x61 \x81\x61Z"},
        {CP_UTF8, "\xD0\xB8\xD0\xB3 \xC3\xA9i", "\xD0\x98\xD0\x93 \xC3\x89I"},
    };
    for (const auto& c : cases) EXPECT_EQ(UpperInCodePage(c.name, c.codePage), c.upper) << c.codePage;

    // Every letter of the code page in use, as the disk takes it.
    const auto files = MakeNativeFileSystem();
    for (int letter = 0xA1; letter <= 0xFF; ++letter) {
        const TempFolder folder;
        const std::string name = std::string("a") + static_cast<char>(letter) + "z";
        const std::string path = folder.Path() + "\\" + name;
        files->Write(path, "old");
        if (files->Files(folder.Path()) != std::vector{name}) continue;  // not in the code page
        files->Write(files->UpperCase(path), "new");
        EXPECT_EQ(files->Files(folder.Path()), std::vector{name});
        EXPECT_EQ(files->Read(path).View(), "new");
    }
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
