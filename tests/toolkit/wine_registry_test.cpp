#include "toolkit/wine_registry.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

constexpr std::string_view File =
    "WINE REGISTRY Version 2\r\n"
    ";; All keys relative to REGISTRY\\\\Machine\n"
    "\n"
    "#arch=win64\n"
    "\n"
    "Software\\\\Maker\\\\Flight [2000\\]\\\\7.0] 1\n"
    "\"PATH\"=\"of no key\"\n"
    "[Software\\\\Other] 1795380229\n"
    "\"path\"=\"wrong\"\n"
    "\n"
    "[Software\\\\Maker\\\\Flight [2000\\]\\\\7.0] 1795380515\r\n"
    "#time=1dd7ac2d8231258\n"
    "@=\"unnamed\"\r\n"
    "\"PATH\"=\"C:\\\\Program Files\\\\\\\"FS\\\"\"\n"
    "\"Accents\"=\"Pr\\xf3gram \\x65e5\\xd834\\xdd1e1 \xC3\xA9\"\n"
    "\"Halves\"=\"\\xd834|\\xdc00|\\xd834\"\n"
    "\"Controls\"=\"a\\tb\\nc\\0\\0001\\e\"\n"
    "\"Name with \\\"quotes\\\"\"=str(2):\"%ProgramFiles%\"\n"
    "\"Count\"=dword:01020aff\n"
    "\"Raw\"=hex:01,02,\\\n"
    "  fe,ff\n"
    "\"Unended\"=hex(1):43,00,3a,00\n"
    "\"Ended\"=hex(2):43,00,\\\n"
    "  e9,00,00,00\n"
    "\"Broken\"=\"no end\n"
    "\"Empty\"=\"\"\n"
    "\"Path\"=\"the second of a name\"\n"
    "[Software\\\\Behind] 1\n"
    "\"Late\"=\"x\"\n";

constexpr std::string_view Key = "software\\MAKER\\Flight [2000]\\7.0";

TEST(WineRegistry, GivesEveryKindOfValue) {
    using namespace std::string_literals;
    const auto values = FindWineKey(File, Key);
    ASSERT_TRUE(values);
    const std::pair<std::string_view, std::string> expected[] = {
        {"", "unnamed\0"s},
        {"path", "C:\\Program Files\\\"FS\"\0"s},
        {"ACCENTS",
         "Pr\xC3\xB3gram \xE6\x97\xA5\xF0\x9D\x84\x9E"
         "1 \xC3\xA9\0"s},
        {"halves", "\xEF\xBF\xBD|\xEF\xBF\xBD|\xEF\xBF\xBD\0"s},
        {"controls",
         "a\tb\nc\0\0"
         "1\x1B\0"s},
        {"name with \"quotes\"", "%ProgramFiles%\0"s},
        {"count", "\xFF\x0A\x02\x01"s},
        {"raw", "\x01\x02\xFE\xFF"s},
        {"unended", "C:\0"s},
        {"ended", "C\xC3\xA9\0"s},
        {"empty", "\0"s},
    };
    for (const auto& [name, bytes] : expected) {
        const std::string* found = FindWineValue(*values, name);
        ASSERT_NE(found, nullptr) << name;
        EXPECT_EQ(*found, bytes) << name;
    }
    EXPECT_EQ(values->size(), std::size(expected));
}

TEST(WineRegistry, FindsWholeKeysOfWholeFilesOnly) {
    EXPECT_TRUE(FindWineKey(File, "Software\\Behind"));
    for (const char* none : {"Software\\Maker", "Software\\Maker\\Flight [2000]\\7", ""}) {
        EXPECT_FALSE(FindWineKey(File, none)) << none;
    }
    for (const auto text : {File.substr(1), std::string_view()}) EXPECT_FALSE(FindWineKey(text, Key));
}

}  // namespace
}  // namespace tarvex
