#include "procedure/procedure_reader.h"

#include <gtest/gtest.h>

#include "startup/shared_state.h"
#include "support/memory_file_system.h"

// What is read from sound and damaged files stands in tests/roads/reading.txt.

namespace tarvex::testing {
namespace {

constexpr const char* Path = "C:\\F\\KXYZ-DEMO1.wst";

class ProcedureReader : public ::testing::Test {
  protected:
    ProcedureReader() {
        state.ProgramVersion = "2.35";
        state.ProcedureFolder = "C:\\F\\";
        state.ProcedureFileName = "KXYZ-DEMO1.wst";
        state.ProcedureMode = "S";
    }

    // The count of the rows that were read, or the reason why none were, which then must have changed
    // nothing.
    std::string Read(const std::string& text) {
        const std::vector<WaypointRecord> before{{.WaypointID = "BEFORE"}};
        state.Rows.Assign(before);
        files.Put(Path, text);
        try {
            const auto count =
                ReadProcedureFile(files, state, state.ProgramVersion, state.Navigation, state.Rows);
            EXPECT_EQ(count, state.WaypointCount);
            return std::to_string(count);
        } catch (const Failure& failure) {
            EXPECT_EQ(state.WaypointCount, 1);
            EXPECT_EQ(state.WaypointTable[0], before[0]);
            EXPECT_EQ(files.Content(Path), text);
            return failure.Reason();
        }
    }

    MemoryFileSystem files;
    SharedState state;
};

TEST_F(ProcedureReader, FileCutOffAnywhereIsReadOrRefusedWhole) {
    const std::string line = "W,ROBUC,,0,40.512345,-73.851234,0,250,0,10000,1,\r\n";
    const std::string head = "; by hand 2.35\r\n\r\n", whole = head + line + line + "\r\nEnd\r\n";
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        const std::size_t behind = size < head.size() ? 0 : std::min(size - head.size(), 2 * line.size());
        const std::size_t rows = behind / line.size(), left = behind % line.size();
        const bool complete = left == 0 || left >= line.size() - 2;  // but for the line end
        EXPECT_EQ(Read(whole.substr(0, size)), complete ? std::to_string(rows + (left > 0))
                                                        : Path + std::string(", line ") +
                                                              std::to_string(rows + 3) +
                                                              ": the file ends inside this waypoint");
    }
}

TEST_F(ProcedureReader, WhatCanNotBeWrittenBackIsNotTaken) {
    files.FailWrite(Path, DiskFull);
    EXPECT_EQ(Read("W,A,,0,40.5 N,-73.25 W,0,0,0,0,0,\r\n"), Path + std::string(": cannot be written"));
}

}  // namespace
}  // namespace tarvex::testing
