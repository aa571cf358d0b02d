#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "tests/support/data.h"
#include "tests/support/rig.h"

namespace keplin::test {
namespace {

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

TEST(UpdateRun, SendsUpToTheFirstEmptySlotOrTheLastOfTenThousandAndOne) {
    const std::string end = ":00000001FF\r";
    std::string all;
    for (int slot = 0; slot <= 10000; ++slot)
        all += end;
    const std::tuple<std::string, int, int> cases[] = {
        {"", 0, 0}, {end + "\r" + end, 3, 1}, {all, 10001, 10001}};
    for (const auto& [contents, lines, sent] : cases) {
        Rig rig;
        rig.trace.Recording = false;
        const TemporaryFile file(contents);
        rig.ReachProgramPage(file.Path());
        rig.window.Command1.Press();
        EXPECT_TRUE(rig.window.UpdateComplete());
        EXPECT_EQ(rig.window.ProgressBar1.Max, lines);
        EXPECT_EQ(rig.window.ProgressBar1.Value, std::max(sent - 1, 0));
        EXPECT_EQ(std::ssize(rig.loader.ObeyedRecords()), 6 + sent);
    }
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
    EXPECT_TRUE(rig.window.UpdateComplete());
}

}  // namespace
}  // namespace keplin::test
