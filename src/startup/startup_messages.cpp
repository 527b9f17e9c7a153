#include "startup/startup_messages.h"

namespace tarvex {

namespace {

constexpr const char* LineEnd = "\r\n";
constexpr const char* StopTitle = "Program termination.";

Message StopMessage(const std::string& first, const std::string& second, const std::string& third) {
    return {.prompt = first + LineEnd + second + LineEnd + third,
            .title = StopTitle,
            .icon = MessageIcon::Critical};
}

Message DataNotFoundBecause(const std::string& first) {
    return StopMessage(first, "Please insure PIC is loaded in it's default location within FS2000.",
                       "This program can not run without the data files and must now terminate.");
}

}  // namespace

Message DataNotFound() {
    return DataNotFoundBecause("I could not find the 767 Pilot in Command (PIC) data files.");
}

Message DataNotFoundIn(const std::string& simulatorPath) {
    return DataNotFoundBecause("I could not find the 767 Pilot in Command (PIC) data files in " +
                               simulatorPath + " .");
}

Message UnexpectedError() {
    return StopMessage("There was an unexpected error.",
                       "Please report to author that an unknown error occured.",
                       "This program can not run with this fatal error and must now terminate.");
}

Message SettingsNotWritten(const std::string& settingsPath, const std::string& reason) {
    return {.prompt = "The settings file " + settingsPath + " could not be written:" + LineEnd + reason +
                      LineEnd + "The program goes on, but the next start will not know the settings."};
}

Message FolderNotKept(const std::string& settingsPath, const std::string& reason) {
    return {.prompt = "The settings file " + settingsPath + " could not be written:" + LineEnd + reason +
                      LineEnd + "The folder is not kept. Please try again, or close this window."};
}

Message NavigationDataNotRead(const std::string& simulatorPath, const std::string& reason) {
    const std::string place = simulatorPath.empty() ? std::string() : " in " + simulatorPath;
    return {.prompt = "The navigation data" + place + " could not be read:" + LineEnd + reason + LineEnd +
                      "Searches will find nothing, and the next start will end at once."};
}

Message EntriesLeftOut(const std::vector<LeftOutEntries>& leftOut) {
    std::string prompt = "There are more navigation data than the program has room for. Left out at the end:";
    for (const auto& [path, count] : leftOut) {
        prompt += LineEnd + path + ": " + std::to_string(count) + (count == 1 ? " entry" : " entries");
    }
    return {.prompt = prompt};
}

std::string NoFolderHint() {
    return "No folder is chosen yet.";
}

std::string DataFoundHint(const std::string& simulatorPath) {
    return "The navigation data are in " + simulatorPath + ".";
}

std::string NoDataHint(const std::string& simulatorPath) {
    return "No navigation data in " + simulatorPath + ".";
}

}  // namespace tarvex
