#include "geometry/text_file.h"

#include <gtest/gtest.h>
#include <vector>

#include "toolkit/failure.h"

namespace tarvex {
namespace {

std::vector<std::string> AllItems(std::string_view text) {
    std::vector<std::string> items;
    for (TextReader reader(text, "file"); !reader.AtEndOfFile();) items.push_back(reader.ReadItem());
    return items;
}

TEST(TextReaderTest, Items) {
    const std::pair<std::string_view, std::vector<std::string>> cases[] = {
        {"", {}},
        {"\"\"", {""}},
        {"  ", {""}},
        {",", {"", ""}},
        {"a,", {"a", ""}},
        {"a,  ", {"a", ""}},
        {"a,\r\n", {"a", ""}},
        {"\"a\"x,", {"a", ""}},
        {"a \"b\",c", {"a \"b\"", "c"}},
        {"\x80\xE9\x01", {"\x80\xE9\x01"}},
        {"a,b\r\nc\r\n", {"a", "b", "c"}},
        {" \t a b  , c\t ", {"a b", "c\t"}},
        {"a,\r\n\r\nb", {"a", "", "", "b"}},
        {"a\rb\nc\n\rd", {"a", "b", "c", "", "d"}},
        {"\"never closed,\r\n", {"never closed,\r\n"}},
        {"; x, y", {"; x", "y"}},
        {" \"a, \r\n\"cut\"x\" , b", {"a, \r\n", "b"}},
    };
    for (const auto& [text, items] : cases) EXPECT_EQ(AllItems(text), items) << text;
}

TEST(TextReaderTest, LinesAndTheEnd) {
    TextReader reader(" a, \"b\" \r\nx,y\r\n\r\nz\n", "KJFK.wst");
    EXPECT_EQ(reader.ReadTextLine(), " a, \"b\" ");
    EXPECT_EQ(reader.LineNumber(), 2u);
    EXPECT_EQ(reader.ReadItem(), "x");
    EXPECT_EQ(reader.LineNumber(), 2u);
    EXPECT_EQ(reader.ReadTextLine(), "y");
    EXPECT_EQ(reader.ReadTextLine(), "");
    EXPECT_EQ(reader.LineNumber(), 4u);
    EXPECT_FALSE(reader.AtEndOfFile());
    EXPECT_EQ(reader.ReadTextLine(), "z");
    EXPECT_TRUE(reader.AtEndOfFile());
    EXPECT_EQ(reader.LineNumber(), 5u);
    for (const auto& read :
         {+[](TextReader& file) { file.ReadItem(); }, +[](TextReader& file) { file.ReadTextLine(); }}) {
        try {
            read(reader);
            FAIL() << "nothing was left to read";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number(), PastEndOfFile);
            EXPECT_EQ(failure.Reason(), "KJFK.wst: nothing is left to read");
        }
    }
}

TEST(WriteTextLineTest, JoinsThePiecesUnchanged) {
    std::string file;
    WriteTextLine(file, {"W,", "A\"B", ",", " 5 "});
    WriteTextLine(file, {""});
    WriteTextLine(file, {"E"});
    EXPECT_EQ(file, "W,A\"B, 5 \r\n\r\nE\r\n");
    EXPECT_EQ(AllItems(file), (std::vector<std::string>{"W", "A\"B", "5", "", "E"}));
}

}  // namespace
}  // namespace tarvex
