#include "ui/spoken_texts.h"

#include <gtest/gtest.h>

#include "simulator/faulty_device.h"
#include "tests/support/data.h"
#include "tests/support/rig.h"

namespace keplin::test {
namespace {

// Hears what a screen reader would be given, at each yield and when a press is done, and when the
// technician is called.
class Ear : public Observer {
  public:
    explicit Ear(Rig& rig) : rig_(rig) {
        rig.desktop.OnYield = [this] { Listen(); };
    }

    void Changed(const Control& control, const PropertyBase& property) override {
        texts_.Changed(control, property.Which);
        if (EndsAWait(rig_.window, control, property.Which)) heard_ += "[call]\n";
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
    Observation listening_{rig_.window, *this};
};

TEST(SpokenTexts, AreEachResultOnceAndInItsOrder) {
    Rig rig;
    Ear ear(rig);
    const TemporaryFile file(kSmallFile);
    rig.desktop.Answer = file.Path();
    const ISPMain& window = rig.window;
    std::string heard;
    for (const Button* button :
         {&window.Next_1, &window.cmdPortTest, &window.Next_2, &window.Command1})
        heard += std::string("[") + button->Name + "]\n" + ear.After(*button);
    EXPECT_EQ(WithoutPath(heard, file.Path()), Data("whole-update.spoken"));
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
    EXPECT_TRUE(
        ear.After(rig.window.Command1).ends_with("Programming Device\n[call]\n" + stop + "\n"));
    EXPECT_EQ(rig.window.ProgressBar1.DoneText(), "line 1 of 4");
    device.Inject({simulator::FaultKind::Silence, device.ExchangesSeen() + 1, true});
    EXPECT_EQ(ear.After(rig.window.Command1), "[call]\n" + stop + "\n");
    rig.window.PicProgram.Visible = false;
    EXPECT_EQ(ear.Latest(), "");  // what can no longer be seen
}

// NEXT stays enabled from an earlier port test, and the one under way owns the line.
TEST(SpokenTexts, APortTestThatEndsBehindTheProgrammingPageIsNoRun) {
    Rig rig;
    const TemporaryFile file(kSmallFile);
    rig.desktop.Answer = file.Path();
    rig.window.Next_1.Press();
    rig.window.cmdPortTest.Press();
    Ear ear(rig);
    bool pressed = false;
    rig.desktop.OnYield = [&] {
        if (!std::exchange(pressed, true)) rig.window.Next_2.Press();
        EXPECT_FALSE(rig.window.Command1.CanBePressed()) << "it would do nothing";
        rig.window.Command1.Press();
    };
    const std::string heard = ear.After(rig.window.cmdPortTest);
    rig.desktop.OnYield = nullptr;
    EXPECT_TRUE(rig.window.PicProgram.Shown());
    EXPECT_EQ(heard.find("stopped"), std::string::npos) << heard;
    EXPECT_TRUE(rig.loader.ObeyedRecords().empty());
    rig.window.Command1.Press();
    EXPECT_TRUE(rig.window.UpdateComplete());
}

}  // namespace
}  // namespace keplin::test
