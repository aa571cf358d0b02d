#include "ui/spoken_texts.h"

#include <gtest/gtest.h>

#include "simulator/faulty_device.h"
#include "tests/support/rig.h"

namespace keplin::test {
namespace {

// Hears what a screen reader would be given: at each yield, and when a press is done.
class Ear : public Observer {
  public:
    explicit Ear(Rig& rig) : rig_(rig) {
        rig.window.Observe(this);
        rig.desktop.OnYield = [this] { Listen(); };
    }

    void Changed(const Control& control, Aspect aspect) override {
        texts_.Changed(control, aspect);
    }

    void Listen() {
        const std::string message = texts_.Take();
        if (!message.empty()) heard_ += message + "\n";
    }

    std::string After(const Button& button) {
        button.Press();
        Listen();
        return std::exchange(heard_, "");
    }

    [[nodiscard]] std::string Latest() const { return texts_.Latest(); }

  private:
    Rig& rig_;
    SpokenTexts texts_{rig_.window};
    std::string heard_;
};

constexpr const char* kErase = R"(Programming in Progress
Device calibrating for programming
Block #1 Erase in Process
Block #2 Erase in Process
Block #3 Erase in Process
All Blocks Erased
Programming Device
)";

TEST(SpokenTexts, AreEachResultOnceAndInItsOrder) {
    Rig rig;
    Ear ear(rig);
    const TemporaryFile file(kSmallFile);
    rig.desktop.Answer = file.Path();
    EXPECT_EQ(ear.After(rig.window.Next_1), "");
    EXPECT_EQ(ear.After(rig.window.cmdPortTest), R"(Query to Port 1
Port 1 Active.  Ping Test Started
Port 1 Ping Test Failed
Query to Port 2
Port 2 Active.  Ping Test Started
Port 2 Ping Test Passed
Port 2 Ready.  Click NEXT to continue.
)");
    EXPECT_EQ(ear.After(rig.window.Next_2), file.Path() + R"(
File Size: 66     Hex: 42
Created 11/22/26 9:41 PM
Number of Lines: 4. Checksum: 14B
Note:  System damage may occur if power is interrupted while programming is in progress.
)");
    EXPECT_EQ(ear.After(rig.window.Command1),
              std::string(kErase) +
                  "Update Complete. Congratulations programming is now complete. Turn off power to "
                  "the QDX-470 controller and disconnect the serial cable. Re-apply power and "
                  "verify the voice announces the correct update version number. Close this "
                  "program\n");
}

TEST(SpokenTexts, ARunThatStopsSaysSoAlsoWhenNoTextChanges) {
    simulator::Loader loader;
    simulator::FaultyDevice device(loader, 1);
    Rig rig(&device);
    const TemporaryFile file(kSmallFile);
    rig.ReachProgramPage(file.Path());
    Ear ear(rig);
    const int before = device.ExchangesSeen();
    device.Inject({simulator::FaultKind::Refused, before + 11, false});
    const std::string stop = "Programming Failed at Line 2. The update has stopped.";
    EXPECT_EQ(ear.After(rig.window.Command1), kErase + stop + "\n");
    EXPECT_EQ(rig.window.ProgressBar1.DoneText(), "line 1 of 4");
    device.Inject({simulator::FaultKind::Silence, device.ExchangesSeen() + 1, true});
    EXPECT_EQ(ear.After(rig.window.Command1), stop + "\n");
    rig.window.PicProgram.Visible = false;
    EXPECT_EQ(ear.Latest(), "");  // what can no longer be seen
}

// NEXT stays enabled from an earlier port test.
TEST(SpokenTexts, APortTestThatEndsBehindTheProgrammingPageIsNoRun) {
    Rig rig;
    const TemporaryFile file(kSmallFile);
    rig.window.Next_1.Press();
    rig.window.cmdPortTest.Press();
    rig.desktop.Answer = file.Path();
    Ear ear(rig);
    bool pressed = false;
    rig.desktop.OnYield = [&] {
        if (!std::exchange(pressed, true)) rig.window.Next_2.Press();
    };
    const std::string heard = ear.After(rig.window.cmdPortTest);
    EXPECT_TRUE(rig.window.PicProgram.Shown());
    EXPECT_EQ(heard.find("stopped"), std::string::npos) << heard;
}

}  // namespace
}  // namespace keplin::test
