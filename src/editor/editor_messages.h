#pragma once

#include "toolkit/message_box.h"

// The words of the editor for its user.
namespace tarvex::editor_messages {

// Adding a waypoint.
inline const Message AddWhileSelected{
    .prompt =
        "You have a current waypoint already selected.\r\n"
        "Do you really want to Add a new waypoint?\r\n"
        "If yes, the current values will be cleared.",
    .buttons = MessageButtons::YesNo,
    .icon = MessageIcon::Critical,
    .defaultAnswer = MessageAnswer::No,
};
inline const Message TableFull{
    .prompt = "A procedure holds no more than 201 waypoints.\r\nThis waypoint was not added.",
    .title = "The procedure is full.",
};
inline const Message NameMissing{
    .prompt = "This added segment needs a fix or NAVAID name.",
    .title = "Type Fix Name",
};
inline const Message FrequencyMissing{
    .prompt = "The Navaid is missing it's frequency.",
    .title = "Type frequency in",
};
inline const Message LatMissing{.prompt = "There is no Lat specified.", .title = "Input Lat"};
inline const Message LongMissing{.prompt = "There is no Long specified.", .title = "Input Long"};

// Modifying and deleting a waypoint.
inline const Message BandIncomplete{
    .prompt =
        "You have selected restriction, At or Above and At or Below.\r\n"
        "There must be a value in both altitude boxes.",
    .title = "Correct to continue.",
};
inline const Message NoName{
    .prompt = "There is no Fix or Navaid ID.",
    .title = "Correct to continue.",
};
inline const Message TwoNames{
    .prompt = "There is both a Fix and Navaid ID.",
    .title = "Delete one to continue.",
};
inline const Message NothingSelected{
    .prompt = "There is no waypoint selected.",
    .title = "Select a waypoint",
};

}  // namespace tarvex::editor_messages
