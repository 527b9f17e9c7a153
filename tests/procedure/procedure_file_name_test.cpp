#include "procedure/procedure_file_name.h"

#include <gtest/gtest.h>

#include "support/failure_of.h"
#include "support/memory_file_system.h"

namespace tarvex {

namespace {

using Kind = ProcedureName::Kind;

TEST(ProcedureFileName, IsBuiltFromTheBoxesAndTheMode) {
    const struct {
        ProcedureName name;
        const char *modes, *built;
    } cases[] = {
        {{"kxyz", "demo1", ""}, "DE", "KXYZ-DEMO1.wsd"},
        {{"KXYZ", "DEMO1", ""}, "ST", "KXYZ-DEMO1.wst"},
        {{"KXYZ", "DEMO1", ""}, "IJ", "KXYZ-DEMO1.wap"},
        {{"KXYZ", "DEMO1", "", Kind::Runway}, "DE", "KXYZ-DEMO1.wsd"},
        {{"KXYZ", "DEMO1", "27l", Kind::Runway}, "DE", "KXYZ-DEMO1.27L.rwy"},
        {{"KXYZ", "DEMO1", "27l", Kind::Runway}, "STIJ", "KXYZ-DEMO1.27L.tr"},
        {{"KXYZ", "DEMO1", "abc", Kind::Transition}, "DESTIJ", "KXYZ-DEMO1.ABC.tr"},
        {{"KXYZ", "", ""}, "DESTIJ", "KXYZ"},
        {{"KXYZ", "", "ABC", Kind::Runway}, "DESTIJ", "KXYZ.ABC"},
        {{"", "DEMO1", ""}, "E", "-DEMO1.wsd"},
        {{"KXY ", "A-B.C", ""}, "E", "KXY -A-B.C.wsd"},
        {{"KXYZ",
          "\xE4\xF6\xFC"
          "a",
          ""},
         "E",
         "KXYZ-\xE4\xF6\xFC"
         "A.wsd"},
    };
    const testing::MemoryFileSystem files;
    for (const auto& [name, modes, built] : cases) {
        for (const char* mode = modes; *mode != '\0'; ++mode) {
            EXPECT_EQ(BuildProcedureFileName(name, std::string_view(mode, 1), files), built) << *mode;
        }
    }
}

TEST(ProcedureFileName, IsSplitAtItsFirstSeparators) {
    const std::pair<const char*, ProcedureName> cases[] = {
        {"KXYZ-DEMO1.wsd", {"KXYZ", "DEMO1", "", Kind::Main}},
        {"kxyz-demo1.ABC.tr", {"kxyz", "demo1", "ABC", Kind::Transition}},
        {"KXYZ-DEMO1.27L.rwy", {"KXYZ", "DEMO1", "27L", Kind::Runway}},
        {"KXYZ-DEMO1.ABC.TR", {"KXYZ", "DEMO1", "", Kind::Main}},
        {"KXYZ-A-B.C.D.tr", {"KXYZ", "A-B", "C", Kind::Transition}},
        {"-.", {"", "", "", Kind::Main}},
        {"K-A..tr", {"K", "A", "", Kind::Transition}},
    };
    for (const auto& [fileName, name] : cases) EXPECT_EQ(SplitProcedureFileName(fileName), name) << fileName;
}

TEST(ProcedureFileName, WithoutASeparatorItNeedsIsRefused) {
    const auto refused = [](const std::string& fileName, const char* reason) {
        const Failure failure = testing::FailureOf([&] { SplitProcedureFileName(fileName); });
        EXPECT_EQ(failure.Number(), BadArgument);
        EXPECT_EQ(failure.Reason(), fileName + ": the name has no " + reason);
    };
    for (const char* name : {"", "KXYZ.wsd"}) refused(name, "\"-\" behind the airport's code");
    for (const char* name : {"KXYZ-DEMO1", "KX.YZ-DEMO1", ".-A.wsd"})
        refused(name, "\".\" that ends the basic name");
    for (const char* name : {"KXYZ-DEMO1.tr", "KXYZ-DEMO1.rwy"})
        refused(name, "second \".\" that ends the transition or runway");
}

}  // namespace
}  // namespace tarvex
