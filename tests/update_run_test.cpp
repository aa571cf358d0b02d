#include <gtest/gtest.h>

#include "tests/support/data.h"
#include "tests/support/rig.h"

namespace keplin::test {
namespace {

using namespace std::chrono_literals;

// From the start of the program to Finish: what changes in the window, what goes over the line, and
// every pause.
TEST(UpdateRun, DoesEveryStepInItsOrder) {
    Rig rig;
    const TemporaryFile file(kSmallFile);
    rig.desktop.Ticks = false;
    rig.window.ProgressBar1.Value = 50;
    rig.ReachProgramPage(file.Path());
    rig.window.Command1.Press();
    EXPECT_THROW(rig.window.cmdExit.Press(), ProgramEnded);
    EXPECT_EQ(WithoutPath(rig.trace.Take(), file.Path()), Data("whole-update.trace"));
    const auto memory = rig.loader.Memory().Cells();
    EXPECT_EQ(memory[0], 1);
    EXPECT_EQ(memory[0x2001], 0xA5);
    EXPECT_EQ(memory[0x7FFF], 0x42);
    EXPECT_EQ(memory[4], 0xFF);
}

TEST(UpdateRun, SendsUpToTheFirstEmptySlotWhichMayBeTheFirst) {
    struct Case {
        const char* file;
        float lines;
        const char* lastSent;
    };
    for (const Case& one :
         {Case{":0400000001020304F2\r\n\r\n:022000005AA5DF\r\n", 3, ":0400000001020304F2"},
          Case{"", 0, ":010000020CF1"}}) {
        Rig rig;
        const TemporaryFile file(one.file);
        rig.ReachProgramPage(file.Path());
        rig.window.Command1.Press();
        EXPECT_TRUE(rig.Completed());
        EXPECT_EQ(rig.window.ProgressBar1.Max, one.lines);
        EXPECT_EQ(rig.loader.ObeyedRecords().back(), one.lastSent);
    }
}

TEST(UpdateRun, SendsTheLastOfTenThousandAndOneSlots) {
    Rig rig;
    std::string lines;
    for (int i = 0; i < 10001; ++i)
        lines += ":00000001FF\r";
    const TemporaryFile file(lines);
    rig.trace.Recording = false;
    rig.ReachProgramPage(file.Path());
    rig.window.Command1.Press();
    EXPECT_TRUE(rig.Completed());
    EXPECT_EQ(rig.window.ProgressBar1.Max, 10001);
    EXPECT_EQ(rig.window.ProgressBar1.Value, 10000);
    EXPECT_EQ(rig.loader.ObeyedRecords().size(), 3U + 3U + 10001U);
}

TEST(UpdateRun, StopsAtTheFirstLineThatIsNotAcknowledged) {
    Rig rig;
    TemporaryFile file(":0400000001020304F2\r\n:01000000AA00\r\n:022000005AA5DF\r\n");
    rig.ReachProgramPage(file.Path());
    rig.desktop.OnYield = [&] { EXPECT_EQ(rig.desktop.Awake, rig.window.Command1.Shown()); };
    rig.window.Command1.Press();
    EXPECT_FALSE(rig.Completed());
    EXPECT_EQ(rig.window.lblPrgm.Caption.Get(), "Programming Failed at Line 2");
    EXPECT_TRUE(rig.window.lblPrgm.Shown());
    EXPECT_EQ(rig.window.ProgressBar1.Value, 0);
    EXPECT_EQ(rig.port.Sent.back(), ":01000000AA00");
    EXPECT_TRUE(rig.window.cmdExit.CanBePressed());
    EXPECT_TRUE(rig.window.Command1.CanBePressed());
    EXPECT_FALSE(rig.window.Shape2.Visible);
    EXPECT_FALSE(rig.window.Timer1.Enabled);
    EXPECT_FALSE(rig.desktop.Awake);
}

// Keeping awake is a favour. Anything else that fails ends the operation, and the next one can
// begin.
TEST(UpdateRun, NoFailureLeavesAHandler) {
    Rig rig;
    const TemporaryFile file(kSmallFile);
    const auto failing = [&](const Button& button, int yield) {
        rig.desktop.OnYield = [&, yield]() mutable {
            if (--yield == 0) throw std::runtime_error("no memory left");
        };
        EXPECT_NO_THROW(button.Press());
        rig.desktop.OnYield = nullptr;
        EXPECT_TRUE(button.CanBePressed() && rig.window.cmdExit.CanBePressed());
        EXPECT_FALSE(rig.window.Shape2.Visible);
    };
    rig.window.Next_1.Press();
    failing(rig.window.cmdPortTest, 3);
    rig.window.cmdPortTest.Press();
    rig.desktop.Answer = file.Path();
    rig.window.Next_2.Press();
    failing(rig.window.Command1, 10);
    rig.desktop.AwakeFails = true;
    rig.window.Command1.Press();
    EXPECT_TRUE(rig.Completed());
}

}  // namespace
}  // namespace keplin::test
