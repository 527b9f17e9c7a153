#include "geometry/text_file.h"

#include <gtest/gtest.h>
#include <vector>

#include "support/failure_of.h"

namespace tarvex {
namespace {

std::vector<std::string> AllItems(std::string_view text) {
    std::vector<std::string> items;
    for (TextReader reader(text, "file"); !reader.AtEndOfFile();) items.push_back(reader.ReadItem());
    return items;
}

TEST(TextReaderTest, Items) {
    using Items = std::vector<std::string>;
    EXPECT_EQ(AllItems(""), Items{});
    EXPECT_EQ(AllItems(","), (Items{"", ""}));
    for (const char* one : {"\"\"", "  "}) EXPECT_EQ(AllItems(one), Items{""}) << one;
    for (const char* two : {"a,", "a,  ", "a,\r\n", "\"a\"x,"})
        EXPECT_EQ(AllItems(two), (Items{"a", ""})) << two;
    EXPECT_EQ(AllItems("a \"b\",\x80\xE9\x01"), (Items{"a \"b\"", "\x80\xE9\x01"}));
    EXPECT_EQ(AllItems(" \t a b  , c\t \r\n; x, y\r\n"), (Items{"a b", "c\t", "; x", "y"}));
    EXPECT_EQ(AllItems("a\rb\nc\n\rd,\r\n\r\ne"), (Items{"a", "b", "c", "", "d", "", "", "e"}));
    EXPECT_EQ(AllItems("\"never closed,\r\n"), Items{"never closed,\r\n"});
    EXPECT_EQ(AllItems(" \"a, \r\n\"cut\"x\" , b"), (Items{"a, \r\n", "b"}));
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
    EXPECT_EQ(testing::NumberOf([&] { reader.ReadTextLine(); }), PastEndOfFile);
    const Failure failure = testing::FailureOf([&] { reader.ReadItem(); });
    EXPECT_EQ(failure.Number(), PastEndOfFile);
    EXPECT_EQ(failure.Reason(), "KJFK.wst: nothing is left to read");
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
