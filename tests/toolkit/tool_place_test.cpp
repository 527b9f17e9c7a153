#include "toolkit/tool_place.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

constexpr int Width = 420;
constexpr int Height = 440;
constexpr int LeastHeight = 370;

TEST(ToolPlace, IsBesideTheOwnerOrOverItsSparePart) {
    const Area wide{0, 0, 1920, 1080};
    const Area narrow{0, 0, 1366, 768};
    const Area owner{100, 20, 1070, 730};
    const Area spare{120, 170, 930, 240};
    const Area atEdge{840, 20, 1070, 730};
    const Area first{120, 0, Width, 410};
    const struct {
        const char* what;
        ToolRoom room;
        Area place;
    } cases[] = {
        {"right of the owner", {wide, owner, spare, {}}, {1178, 20, Width, Height}},
        {"left of it", {wide, atEdge, spare, {}}, {412, 20, Width, Height}},
        {"below another tool", {wide, owner, spare, {{1178, 20, Width, 300}}}, {1178, 328, Width, Height}},
        {"over the spare part, no higher than that", {narrow, owner, spare, {}}, {120, 0, Width, 410}},
        {"right of another tool", {narrow, owner, spare, {first}}, {548, 0, Width, 410}},
        {"left of another tool",
         {narrow, owner, spare, {{600, 0, Width, 410}, {120, 420, 99, 99}}},
         {120, 0, Width, 410}},
        {"nothing left", {narrow, owner, spare, {narrow}}, {946, 0, Width, Height}},
        {"no room above the list", {narrow, owner, {120, 0, 930, 300}, {}}, {946, 0, Width, Height}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(PlaceOfTool(Width, Height, LeastHeight, c.room), c.place);
    }
}

}  // namespace
}  // namespace tarvex
