#include "toolkit/tool_place.h"

#include <algorithm>
#include <optional>

namespace tarvex {

namespace {

constexpr int Gap = 8;

bool IsFree(const Area& place, const ToolRoom& room) {
    return room.screen.Contains(place) && std::none_of(room.taken.begin(), room.taken.end(),
                                                       [&](const Area& tool) { return tool.Meets(place); });
}

std::optional<Area> FirstFree(const std::vector<Area>& places, const ToolRoom& room) {
    const auto found =
        std::find_if(places.begin(), places.end(), [&](const Area& place) { return IsFree(place, room); });
    return found == places.end() ? std::nullopt : std::optional(*found);
}

std::vector<Area> PlacesBeside(int width, int height, const ToolRoom& room) {
    std::vector<Area> places;
    for (const int x : {room.owner.Right() + Gap, room.owner.x - Gap - width}) {
        places.push_back({x, room.owner.y, width, height});
        for (const Area& tool : room.taken) places.push_back({x, tool.Bottom() + Gap, width, height});
    }
    return places;
}

std::vector<Area> PlacesOver(int width, int height, const ToolRoom& room) {
    const int y = std::min(room.spare.y, room.spare.Bottom() - height);
    std::vector<Area> places = {{std::max(room.spare.x, room.screen.x), y, width, height}};
    for (const Area& tool : room.taken) {
        places.push_back({tool.Right() + Gap, y, width, height});
        places.push_back({tool.x - Gap - width, y, width, height});
    }
    places.push_back({room.screen.Right() - width, y, width, height});
    return places;
}

}  // namespace

bool Area::Contains(const Area& other) const {
    return other.x >= x && other.y >= y && other.Right() <= Right() && other.Bottom() <= Bottom();
}

bool Area::Meets(const Area& other) const {
    return x < other.Right() && other.x < Right() && y < other.Bottom() && other.y < Bottom();
}

Area PlaceOfTool(int width, int height, int leastHeight, const ToolRoom& room) {
    if (const auto place = FirstFree(PlacesBeside(width, height, room), room)) return *place;
    const int most = room.spare.Bottom() - room.screen.y;
    const int fitting = std::clamp(most, leastHeight, height);
    if (const auto place = FirstFree(PlacesOver(width, fitting, room), room)) return *place;
    return {std::max(room.screen.x, room.screen.Right() - width), room.screen.y, width, height};
}

}  // namespace tarvex
