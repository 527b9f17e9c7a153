#include <array>

#include "support/random_user.h"

namespace tarvex::testing {

namespace {

constexpr const char* Altitudes[] = {"", "0", "5000", "250", "045", "FL35", "-5", "1e1"};
constexpr const char* Degrees[] = {"0", "5", "33", "89", "90", "91", "-5", "12a"};
constexpr const char* Names[] = {"a", "alpha", "fix 1", "\xE9t\xE9", "B-1", "KX"};
// Identifiers to search for: of fixes, navaids, airports.
constexpr std::array<std::array<const char*, 5>, 3> Identifiers{{{"aagee", "AALST", "TWICE", "BADLY", ""},
                                                                 {"ACY", "ap", "ACY", "POLE", "QQ"},
                                                                 {"kden", "KLAX", "KDEN", "klax", "KDE"}}};

}  // namespace

RandomUser::Steps RandomUser::Plan() {
    const struct {
        std::size_t percent;
        Steps (RandomUser::*make)();
    } plans[] = {{3, &RandomUser::PlanSave},     {25, &RandomUser::PlanWorkOnRow},
                 {15, &RandomUser::PlanSearch},  {10, &RandomUser::PlanArc},
                 {10, &RandomUser::PlanDerived}, {37, &RandomUser::PlanWaypoint}};
    std::size_t left = chance_.Below(100);
    const auto* plan = plans;
    while (left >= plan->percent) left -= (plan++)->percent;
    return (this->*plan->make)();
}

RandomUser::Steps RandomUser::PlanSave() {
    return {{"AptNameText", chance_.Percent(50) ? "kxyz" : "KABC", "ModifyProcedure"},
            {"BasicNameText", chance_.Percent(50) ? "one" : "TWO", "ModifyProcedure"},
            {"TransitionText", chance_.Percent(50) ? "" : "thr", "ModifyProcedure"},
            {"SaveCommand", "", ""}};
}

RandomUser::Steps RandomUser::PlanWorkOnRow() {
    constexpr const char* Deeds[] = {"ModifyWaypointCommand", "DeleteWaypointCommand", "MoveUp", "MoveDown"};
    return {{"WaypointList", "", ""}, {"Alt1Text", chance_.Of(Altitudes), ""}, {chance_.Of(Deeds), "", ""}};
}

RandomUser::Steps RandomUser::PlanWaypoint() {
    return {{"ClearDataCommand", "", ""},
            {chance_.Percent(60) ? "FixNameText" : "NAVIDText", chance_.Of(Names), ""},
            {"FreqText", "113.60", "ModifyProcedure"},
            {"DDMLatText", std::to_string(chance_.Below(90)), ""},
            {"DMMLatText", std::to_string(chance_.Below(60)), ""},
            {"DDMLongText", std::to_string(chance_.Below(180)), ""},
            {"DMMLongText", "59.999999", ""},
            {"Alt1Text", chance_.Percent(50) ? "5000" : "", ""},
            {"AddWaypointCommand", "", ""}};
}

RandomUser::Steps RandomUser::PlanSearch() {
    const std::size_t kind = chance_.Below(3);
    static constexpr const char* Openers[] = {"FindFixCommand", "FindNavCommand", "FindAirportCommand"};
    Steps steps{{Openers[kind], "", ""},
                {"SearchText", chance_.Of(Identifiers[kind]), ""},
                {"SearchCommand", "", ""},
                {"WaypointListBox", "", ""},
                {"AddWaypoint", "", ""}};
    if (chance_.Percent(50)) steps.push_back({"AddWaypointCommand", "", ""});
    return steps;
}

RandomUser::Steps RandomUser::PlanArc() {
    Steps steps{{"AddArcCommand", "", ""},
                {"ArcStartText", std::to_string(chance_.Below(361)), ""},
                {"ArcEndText", std::to_string(chance_.Below(361)), ""},
                {"ArcRadiusText", std::to_string(chance_.Below(60)), ""},
                {"MagVarText", chance_.Percent(50) ? "13" : "", ""}};
    if (chance_.Percent(50)) {
        steps.insert(steps.end(), {{"LatLongCommand", "", ""},
                                   {"DLatCenterText", chance_.Of(Degrees), ""},
                                   {"MLatCenterText", "30", ""},
                                   {"DLongCenterText", std::to_string(chance_.Below(181)), ""},
                                   {chance_.Percent(50) ? "SouthOption" : "WestOption", "", ""},
                                   {"DoneCommand", "", "LatLongForm"}});
    } else {
        steps.insert(steps.end(), {{"Command1", "", "AddARC"},
                                   {"SearchText", chance_.Of(Identifiers[1]), ""},
                                   {"SearchCommand", "", ""},
                                   {"AddWaypoint", "", ""}});
    }
    steps.push_back({chance_.Percent(50) ? "RightOption" : "LeftOption", "", ""});
    steps.push_back({"TransferCommand", "", "AddARC"});
    return steps;
}

RandomUser::Steps RandomUser::PlanDerived() {
    static constexpr const char* Openers[] = {"FixCommand", "NavaidCommand", "RunwayCommand"};
    const std::size_t kind = chance_.Below(3);
    return {{"CreateWaypointCommand", "", ""},
            {Openers[kind], "", ""},
            {"SearchText", chance_.Of(Identifiers[kind]), ""},
            {"SearchCommand", "", ""},
            {"WaypointListBox", "", ""},
            {"AddWaypoint", "", ""},
            {"TrueCourseText", std::to_string(chance_.Below(362)), ""},
            {"DistText", std::to_string(chance_.Below(9999)), ""},
            {"WaypointIDText", chance_.Of(Names), ""},
            {"TransferCommand", "", "CreateWaypointForm"},
            {"AddWaypointCommand", "", ""}};
}

}  // namespace tarvex::testing
