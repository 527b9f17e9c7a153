#include "support/random_user.h"

#include <algorithm>
#include <vector>

namespace tarvex::testing {

namespace {

// What a user sets out to do. Of "{a/b}" one is taken, "{<90}" is a number below 90, and "Name#?" is any
// line.
constexpr std::string_view Plans[] = {
    R"({CreateDP/CreateSTAR/CreateIAP})",
    R"({ModifyDP/ModifySTAR/ModifyIAP} | FileList#?)",
    R"(AptNameText={kxyz/KABC} | BasicNameText={one/TWO} | TransitionText={/thr} | SaveCommand)",
    R"(WaypointList#? | Alt1Text={/0/5000/250/FL35/-5} | {ModifyWaypointCommand/DeleteWaypointCommand/MoveUp/MoveDown})",
    R"(PictureTabs#2 | LegsList#? | LegsList#? | key {CtrlUp/CtrlDown} | LegsList#? | LegsList#? | {key Delete/UndoCommand})",
    R"(PictureTabs#2 | LegsList#? | LegsList#? | key {CtrlUp/CtrlDown/Delete} | LegsList#? | LegsList#?)",
    R"(PictureTabs#3 | FindingsList#? | {ModifyWaypointCommand/DeleteWaypointCommand/UndoCommand})",
    R"(UndoCommand | {UndoCommand/RedoCommand} | {UndoCommand/RedoCommand/MoveUp})",
    R"(WaypointList#? | {SLatOption/WLongOption/AtOption/AtBelowOption} | ModifyWaypointCommand)",
    R"(ClearDataCommand | {FixNameText/NAVIDText}={a/alpha/fix 1/\xE9t\xE9/B-1/KX} | FreqText=113.60 | DDMLatText={<90} | DMMLatText={<60} | DDMLongText={<180} | DMMLongText=59.999999 | Alt1Text={/5000} | AddWaypointCommand)",
    R"({FindFixCommand/FindNavCommand/FindAirportCommand} | SearchText={aagee/TWICE/BADLY/ACY/ap/POLE/kden/KLAX/QQ/} | SearchCommand | WaypointListBox#? | AddWaypoint | {AddWaypointCommand/ClearDataCommand})",
    R"(AddArcCommand | AddARC.Command1 | SearchText={acy/AP/POLE} | SearchCommand | AddWaypoint | ArcStartText={<361} | ArcEndText={<361} | ArcRadiusText={<60} | MagVarText={/13} | {RightOption/LeftOption} | AddARC.TransferCommand)",
    R"(AddArcCommand | LatLongCommand | DLatCenterText={0/33/90/91/-5/12a} | MLatCenterText=30 | DLongCenterText={<181} | {SouthOption/WestOption} | LatLongForm.DoneCommand | ArcStartText={<361} | ArcEndText={<361} | ArcRadiusText={<60} | {RightOption/LeftOption} | AddARC.TransferCommand)",
    R"(CreateWaypointCommand | {FixCommand/NavaidCommand/RunwayCommand} | SearchText={aagee/AALST/ACY/KDEN} | SearchCommand | WaypointListBox#? | AddWaypoint | TrueCourseText={<362} | DistText={<9999} | WaypointIDText={a/KX} | CreateWaypointForm.TransferCommand | AddWaypointCommand)",
};
constexpr std::string_view Texts[] = {"0",    "5",  "33", "90", "91",    "117", "181",  "12.5",
                                      "045",  "60", "-5", "-",  "alpha", "DMO", "12a",  "FL35",
                                      "1e99", ".",  " 7", " x", "X.Y",   "KX",  "\xE9", ""};
constexpr std::string_view Positions[] = {"N33 56.550 W118 24.480", "-33.9425 118.408", "33 118 x"};
constexpr std::string_view Rubbish = "  --..0123456789ABCabc,\"'eED+&\xE9\\/*?:%;\t";
// Those that are pressed often; now and then it is any.
constexpr std::string_view Keys[] = {"Tab",   "Tab",   "BackTab", "Delete", "CtrlUp", "CtrlDown",
                                     "CtrlZ", "CtrlZ", "CtrlY",   "Enter",  "Escape", "CtrlEnter"};
// What leads away from a screen is taken rarely.
constexpr std::string_view WaysOut[] = {"SaveCommand", "OopsCommand", "ExitCommand", "GoBackCommand"};

}  // namespace

std::string RandomUser::Next() {
    if (plan_.empty() && chance_.Percent(20)) MakePlan();
    std::string act;
    if (!plan_.empty() && chance_.Percent(90)) {
        act = plan_.front();
        plan_.pop_front();
        if (act.ends_with("#?")) {
            const Control* list = road_.Find(act.substr(0, act.size() - 2));
            act = list == nullptr ? act : ChooseOn(*list);
        }
    } else {
        act = Choose();
    }
    return act + (road_.DoOne(act) ? "" : " (refused)");
}

void RandomUser::MakePlan() {
    std::string plan(chance_.Of(Plans));
    for (std::size_t begin; (begin = plan.find('{')) != std::string::npos;) {
        const std::size_t end = plan.find('}', begin);
        std::string_view choices = std::string_view(plan).substr(begin + 1, end - begin - 1);
        std::string chosen;
        if (choices.starts_with('<')) {
            chosen = std::to_string(chance_.Below(std::stoul(std::string(choices.substr(1)))));
        } else {
            std::size_t left = chance_.Below(1 + static_cast<std::size_t>(std::ranges::count(choices, '/')));
            for (; left > 0; --left) choices.remove_prefix(choices.find('/') + 1);
            chosen = choices.substr(0, choices.find('/'));
        }
        plan.replace(begin, end - begin + 1, chosen);
    }
    while (!plan.empty()) {
        const std::size_t end = std::min(plan.find(" | "), plan.size());
        plan_.push_back(plan.substr(0, end));
        plan.erase(0, end + 3);
    }
}

std::string RandomUser::Choose() {
    const auto& visible = road_.program->host.Visible();
    const Control* focused = road_.program->host.GetFocus().Current();
    // A box that complains lets nobody go on but through it.
    if (focused != nullptr && chance_.Percent(15) && dynamic_cast<const TextBox*>(focused)) {
        return focused->Owner().Name() + "." + focused->Name() + "=9";
    }
    const Form& form = chance_.Percent(70) ? *visible.back() : *chance_.Of(visible);
    const std::size_t kind = chance_.Below(100);
    if (kind < 6) return "key " + std::string(chance_.Of(Keys));
    if (kind < 8) {
        std::string name(chance_.Of(NamedKeys).name);
        std::erase(name, '+');
        return "key " + name;
    }
    if (kind < 9) return "front " + form.Name();
    if (kind < 10 && chance_.Percent(20)) return "close " + form.Name();
    const Control* control = chance_.Of(form.Controls());
    const bool leads = std::ranges::find(WaysOut, control->Name()) != std::end(WaysOut);
    if (!control->TakesFocus() || (leads && chance_.Percent(80))) return "to " + control->Name();
    return ChooseOn(*control);
}

std::string RandomUser::ChooseOn(const Control& control) {
    const std::string name = control.Owner().Name() + "." + control.Name();
    const auto lineOf = [&](std::size_t lines) {
        return name + "#" + std::to_string(chance_.Below(std::max<std::size_t>(lines, 1)));
    };
    if (const auto* box = dynamic_cast<const TextBox*>(&control)) {
        if (chance_.Percent(2)) return name + "#" + std::to_string(chance_.Below(3));
        if (chance_.Percent(3)) return name + ">" + std::string(chance_.Of(Positions));
        return name + "=" + Road::Written(ChooseText(box->Text()));
    }
    if (const auto* list = dynamic_cast<const ColumnList*>(&control)) return name + ChooseLines(*list);
    if (const auto* list = dynamic_cast<const ListBox*>(&control)) return lineOf(list->Lines().size());
    if (const auto* tabs = dynamic_cast<const Tabs*>(&control)) return lineOf(tabs->Pages().size());
    if (const auto* picture = dynamic_cast<const Picture*>(&control)) return name + ChooseIn(*picture);
    if (const auto* files = dynamic_cast<const FileList*>(&control); files && !files->Lines().empty()) {
        return name + "#" + Road::Written(chance_.Of(files->Lines()));
    }
    if (const auto* drives = dynamic_cast<const DriveList*>(&control)) {
        return name + "#" + chance_.Of(drives->Drives());
    }
    if (const auto* folders = dynamic_cast<const FolderList*>(&control)) {
        const auto rows = static_cast<std::size_t>(folders->ListCount() - folders->FirstIndex());
        const int row = folders->FirstIndex() + static_cast<int>(chance_.Below(rows));
        return name + (chance_.Percent(50) ? ">" : "#") + folders->List(row);
    }
    return name;
}

std::string RandomUser::ChooseLines(const ListBox& list) {
    const auto any = [&] { return std::to_string(chance_.Below(list.Lines().size() + 1)); };
    if (chance_.Percent(60)) return (chance_.Percent(80) ? "#before " : "#to ") + any();
    std::string lines = "#" + any();
    while (chance_.Percent(60)) lines += "," + any();
    return lines;
}

// Room that is soon drawn, or none; what stands in the picture, or any place of it.
std::string RandomUser::ChooseIn(const Picture& picture) {
    const auto& items = picture.Shown().items;
    const std::size_t kind = chance_.Below(10);
    if (kind < 2) return kind == 0 || items.empty() ? "=240,160" : "=0,0";
    if (kind == 2) return "#menu " + std::to_string(chance_.Below(6));
    Point at{static_cast<double>(chance_.Below(240)), static_cast<double>(chance_.Below(160))};
    if (!items.empty()) {
        const auto* symbol = std::get_if<Symbol>(&chance_.Of(items));
        if (symbol != nullptr) at = symbol->at;
    }
    return (kind < 5 ? ">" : "#") + std::to_string(at.x) + "," + std::to_string(at.y);
}

std::string RandomUser::ChooseText(const std::string& before) {
    switch (chance_.Below(6)) {
        case 0:
            return before.substr(0, before.size() / 2);
        case 1:
            return chance_.Of(Rubbish) + before + chance_.Of(Rubbish);
        default:
            return std::string(chance_.Of(Texts));
    }
}

}  // namespace tarvex::testing
