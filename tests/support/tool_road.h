#pragma once

#include "support/editor_road.h"

namespace tarvex::testing {

// A user in the editor who works with the tools beside it.
class ToolRoad : public EditorRoad {
  protected:
    void PutFix(std::string_view id, std::string_view lat, std::string_view lon) {
        NavigationTables& tables = State().Navigation;
        tables.FixTable[static_cast<std::size_t>(++tables.FixCount)] = {id, lat, lon};
    }
    void PutNavaid(std::string_view id, std::string_view frequency, std::string_view lat,
                   std::string_view lon) {
        NavigationTables& tables = State().Navigation;
        tables.NavaidTable[static_cast<std::size_t>(++tables.NavaidCount)] = {id, frequency, lat, lon};
    }
    void PutRunway(std::string_view id, std::string_view lat, std::string_view lon, std::int16_t elevation) {
        NavigationTables& tables = State().Navigation;
        tables.AirportTable[static_cast<std::size_t>(++tables.AirportCount)] = {id, lat, lon, elevation};
    }

    ModifyProcedure& Create(Button InitialLoad::*action) {
        user->Presses(Menu().*action);
        return Editor();
    }

    FindWaypointForm& Search() { return *program->findWaypointForm.Get(); }
    AddARC& Designer() { return *program->addARC.Get(); }
    CreateWaypointForm& Deriving() { return *program->createWaypointForm.Get(); }
    LatLongForm& Centre() { return *program->latLongForm.Get(); }

    void SearchFor(std::string_view text) {
        user->Types(Search().SearchText, text);
        user->Presses(Search().SearchCommand);
    }
    // Searches for what has one entry, from the button that opens the search, and transfers it.
    void Transfer(Button& opener, std::string_view text) {
        user->Presses(opener);
        SearchFor(text);
        EXPECT_TRUE(user->Presses(Search().AddWaypoint)) << text;
    }
    void FillArc(const char* start, const char* end, const char* radius, const char* variation) {
        const std::pair<TextBox*, const char*> boxes[] = {{&Designer().ArcStartText, start},
                                                          {&Designer().ArcEndText, end},
                                                          {&Designer().ArcRadiusText, radius},
                                                          {&Designer().MagVarText, variation}};
        for (const auto& [box, text] : boxes) {
            if (*text != '\0') user->Types(*box, text);
        }
    }
    void FillCentre(const char* latDegrees, const char* latMinutes, const char* longDegrees,
                    const char* longMinutes) {
        const std::pair<TextBox*, const char*> boxes[] = {{&Centre().DLatCenterText, latDegrees},
                                                          {&Centre().MLatCenterText, latMinutes},
                                                          {&Centre().DLongCenterText, longDegrees},
                                                          {&Centre().MLongCenterText, longMinutes}};
        for (const auto& [box, text] : boxes) {
            if (*text != '\0') user->Types(*box, text);
        }
    }
    void FillDerived(const char* course, const char* distance, const char* name) {
        const std::pair<TextBox*, const char*> boxes[] = {{&Deriving().TrueCourseText, course},
                                                          {&Deriving().DistText, distance},
                                                          {&Deriving().WaypointIDText, name}};
        for (const auto& [box, text] : boxes) {
            if (*text != '\0') user->Types(*box, text);
        }
    }

    // One complaint was shown since the last look, and the focus is there now.
    void ExpectComplaint(std::string_view prompt, std::string_view focus) {
        ExpectMessage(prompt, ProgramTitle, focus);
    }
};

}  // namespace tarvex::testing
