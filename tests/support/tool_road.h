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

    using Text = std::string_view;
    void FillArc(Text start, Text end, Text radius, Text variation) {
        AddARC& arc = Designer();
        user->Fills({&arc.ArcStartText, &arc.ArcEndText, &arc.ArcRadiusText, &arc.MagVarText},
                    {start, end, radius, variation});
    }
    void FillCentre(Text latDegrees, Text latMinutes, Text longDegrees, Text longMinutes) {
        LatLongForm& centre = Centre();
        user->Fills({&centre.DLatCenterText, &centre.MLatCenterText, &centre.DLongCenterText,
                     &centre.MLongCenterText},
                    {latDegrees, latMinutes, longDegrees, longMinutes});
    }
    void FillDerived(Text course, Text distance, Text name) {
        CreateWaypointForm& form = Deriving();
        user->Fills({&form.TrueCourseText, &form.DistText, &form.WaypointIDText}, {course, distance, name});
    }
};

}  // namespace tarvex::testing
