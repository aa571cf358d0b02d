#include <gtest/gtest.h>

#include "tests/support/rig.h"

namespace keplin::test {
namespace {

using namespace std::chrono_literals;

TEST(UpdateRun, DoesEveryStepInItsOrder) {
    Rig rig;
    const TemporaryFile file(kSmallFile);
    rig.ReachProgramPage(file.Path());
    rig.trace.Take();
    rig.desktop.Ticks = false;
    rig.window.Command1.Press();
    EXPECT_EQ(rig.trace.Take(), R"(cmdExit.Enabled = False
WriteByte 85
Sleep 50
Yield, ReadByte
WriteText :010000020CF1
Sleep 50
Yield, ReadByte
Shape1.Visible = True
Shape2.Visible = True
Timer1.Enabled = True
WriteByte 85
Sleep 50
Yield, ReadByte
lblPrgm.Visible = True
WriteText :010000020CF1
Sleep 50
Yield, ReadByte
lblPrgm.Caption = "Device calibrating for programming"
Yield
Sleep 2000
ProgressBar1.Visible = True
lblPrgm.Caption = "Block #1 Erase in Process"
Yield
WriteText :020000030100FA
Sleep 50
Yield, ReadByte
ProgressBar1.Value = 33
Yield
Sleep 800
lblPrgm.Caption = "Block #2 Erase in Process"
Yield
Sleep 800
WriteText :020000030120DA
Sleep 50
Yield, ReadByte
ProgressBar1.Value = 66
Yield
lblPrgm.Caption = "Block #3 Erase in Process"
Yield
Sleep 800
WriteText :020000030140BA
Sleep 50
Yield, ReadByte
ProgressBar1.Value = 100
Yield
Sleep 800
ProgressBar1.Visible = False
lblPrgm.Caption = "All Blocks Erased"
Yield
ProgressBar1.Max = 4
ProgressBar1.Value = 0
Sleep 2000
WriteByte 85
Sleep 50
Yield, ReadByte
lblPrgm.Caption = "Programming Device"
ProgressBar1.Visible = True
WriteText :010000020CF1
Sleep 50
Yield, ReadByte
Yield
WriteText :0400000001020304F2
Sleep 50
Yield, ReadByte
WriteText :022000005AA5DF
Sleep 50
Yield, ReadByte
ProgressBar1.Value = 1
WriteText :017FFF00423F
Sleep 50
Yield, ReadByte
ProgressBar1.Value = 2
WriteText :00000001FF
Sleep 50
Yield, ReadByte
ProgressBar1.Value = 3
Command1.Visible = False
Frame2.Caption = "Update Complete"
ProgressBar1.Visible = False
Label10.Visible = False
lblPrg(0).Caption = ""
lblPrg(1).Caption = ""
lblPrg(2).Caption = ""
lblPrg(3).Caption = ""
cmdExit.Caption = "Finish"
lblPrg(0).Caption = "Congratulations programming is now complete."
lblPrg(0).Bold = True
lblPrg(1).Caption = "Turn off power to the QDX-470 controller and disconnect the serial cable."
lblPrg(2).Caption = "Re-apply power and verify the voice announces the correct update version number."
lblPrg(3).Caption = "Close this program"
Yield
lblPrgm.Visible = False
Shape1.Visible = False
Shape2.Visible = False
Timer1.Enabled = False
cmdExit.Enabled = True
)");
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
