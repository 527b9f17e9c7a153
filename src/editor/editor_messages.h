#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "toolkit/message_box.h"

// The words of the editor for its user.
namespace tarvex::editor_messages {

// Opening a stored procedure.
inline Message FatalData(const std::string& fileName) {
    return {.prompt = "Procedure " + fileName +
                      " is missing some of it's data.\r\n"
                      "You will need to correct the procedure file in order to continue.\r\n"
                      "This prodram will have to terminate now.",
            .title = "Fatal Data Error."};
}
inline Message NotOpened(const std::string& fileName, const std::string& reason) {
    return {.prompt = "The procedure " + fileName + " could not be opened:\r\n" + reason,
            .title = "Procedure not opened."};
}

// What the boxes hold beside the rows.
inline constexpr std::string_view NotInTheProcedure = "Not in the procedure yet: press Add.";
inline constexpr std::string_view ChangedNotWritten = "Changed, not written yet: press Modify. ";
inline constexpr std::string_view PositionNotTaken =
    "Changed: go through the position's boxes, then press Modify.";
inline constexpr std::string_view AddIsOff = "Add is off while a waypoint is selected.";

// Saving.
inline const Message FilenameMissing{
    .prompt = "The filename is missing.",
    .title = "Complete filename.",
};
inline constexpr std::string_view NoFileNameCharacters = "\\/:*?\"<>|";
inline Message FilenameUnusable(const std::string& fileName) {
    return {.prompt = "No file can have the name " + fileName +
                      ".\r\nA filename holds none of the characters \\ / : * ? \" < > |",
            .title = "Correct the filename."};
}
inline const Message OverwriteFile{
    .prompt =
        "There is already a file by the same\r\n"
        "name as the one you want to save.\r\n"
        "Click Yes to overwrite that file.\r\n"
        "Click No to change your filename.",
    .buttons = MessageButtons::YesNo,
    .icon = MessageIcon::Critical,
    .defaultAnswer = MessageAnswer::No,
};
inline Message ItemUnstorable(std::size_t waypoint, const std::string& item) {
    return {.prompt = "Waypoint " + std::to_string(waypoint) + " of the list holds the text " + item +
                      "\r\nA procedure file can not hold a comma or a line end in it, nor a quote at its "
                      "beginning.\r\nNothing was saved. Please correct the waypoint.",
            .title = "Correct to continue."};
}
inline const Message UnknownSaveError{
    .prompt = "An unknown error has crept in.\r\n",
    .title = "Program termination happens now.",
    .icon = MessageIcon::Critical,
};

// Saving a picture.
inline Message PictureNotSaved(const std::string& path, const std::string& reason) {
    return {.prompt = "The picture " + path + " could not be saved:\r\n" + reason + ".",
            .title = "Picture not saved"};
}

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
