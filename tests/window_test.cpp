#include <gtest/gtest.h>

#include "tests/support/rig.h"
#include "ui/accessible_text.h"
#include "ui/activity.h"
#include "ui/run_progress.h"

namespace keplin::test {
namespace {

TEST(Window, NothingElseCanBeStartedDuringAPortTest) {
    Rig rig;
    EXPECT_EQ(rig.window.ClientHeight(), 5145);
    EXPECT_FALSE(rig.window.Timer1.Enabled);
    rig.window.Next_1.Press();
    rig.desktop.OnYield = [&] {
        EXPECT_FALSE(rig.window.cmdPortTest.Enabled || rig.window.cmdExit.Enabled);
        rig.window.cmdPortTest.Press();
        rig.window.Next_2.Press();
        rig.window.RequestClose();
    };
    rig.window.cmdPortTest.Press();
    EXPECT_TRUE(rig.window.Next_2.CanBePressed());
}

TEST(Window, TellsHowAnUpdateStands) {
    using State = RunProgress::State;
    ISPMain window;
    RunProgress progress;
    const auto after = [&](const Control& changed) {
        return progress = ProgressAfter(progress, changed, window);
    };
    window.Visible = true;
    window.ProgressBar1.Max = 1000;
    window.ProgressBar1.Value = 709;
    EXPECT_EQ(after(window.ProgressBar1), RunProgress{}) << "none has begun";
    for (const bool shown : {false, true}) {
        window.ProgressBar1.Visible = shown;
        const int percent = shown ? 71 : 0;
        window.cmdExit.Enabled = false;
        EXPECT_EQ(after(window.cmdExit), (RunProgress{State::UnderWay, percent}));
        window.cmdExit.Enabled = true;
        EXPECT_EQ(after(window.cmdExit), (RunProgress{State::Stopped, percent}));
    }
    const auto change = [&](Button& button, bool enabled) {
        button.Enabled = enabled;
        EXPECT_EQ(after(button).state, State::Stopped) << "a port test is no update";
    };
    for (const bool enabled : {false, true}) {
        change(window.cmdPortTest, enabled);
        change(window.cmdExit, enabled);
    }
    window.Command1.Visible = false;
    EXPECT_EQ(after(window.Command1), RunProgress{});
}

TEST(Window, AFailedSearchSaysSoAndLeavesNextAsItWas) {
    simulator::SilentDevice silence;
    Rig rig(&silence);
    rig.window.Next_1.Press();
    for (const bool next : {false, true}) {
        rig.window.Next_2.Enabled = next;
        rig.window.cmdPortTest.Press();
        EXPECT_EQ(rig.window.lblResults.Caption.Get(), " Communications Fail on All Ports");
        EXPECT_EQ(AccessibleTextOf(rig.window.lblResults).name,
                  rig.window.lblResults.Caption.Get());
        EXPECT_EQ(rig.window.Next_2.Enabled, next);
    }
}

TEST(Window, AnUpdateFileThatDoesNotLoadLeavesOnlyClose) {
    Rig rig;
    rig.ReachProgramPage("/nowhere");
    EXPECT_FALSE(rig.window.PicSetup.Shown() || rig.window.PicProgram.Shown());
    EXPECT_TRUE(rig.window.cmdExit.CanBePressed());
}

TEST(Window, ClosingMinimisesAndEndsTheProgramAndNothingElseStarts) {
    for (const bool byTitleBar : {false, true}) {
        Rig rig;
        rig.trace.Take();
        rig.desktop.OnYield = [&] {
            rig.window.Next_1.Press();
            rig.window.cmdExit.Press();
        };
        EXPECT_THROW(byTitleBar ? rig.window.RequestClose() : rig.window.cmdExit.Press(),
                     ProgramEnded);
        EXPECT_EQ(rig.trace.Take(), "Yield\nISPMain.WindowState = Minimised\nYield\nEnd\n");
    }
}

TEST(Window, TellsItsObserversInTheOrderInWhichTheyCame) {
    struct Witness : Observer {
        Witness(std::string& told, char name) : told_(told), name_(name) {}
        void Changed(const Control&, const PropertyBase&) override { told_ += name_; }
        std::string& told_;
        char name_;
    };
    ISPMain window;
    std::string told;
    Witness a(told, 'a'), b(told, 'b');
    std::optional<Observation> first(std::in_place, window, a);
    const Observation second(window, b);
    window.cmdExit.Enabled = false;
    first.reset();
    window.cmdExit.Enabled = true;
    window.cmdExit.Enabled = true;
    EXPECT_EQ(told, "abb");
}

TEST(Activity, TheBlockTurnsAtTheEndsOfItsTrack) {
    Rig rig;
    const auto tick = [&] { Timer1_Timer(rig.window, rig.desktop); };
    const Property<float>& left = rig.window.Shape2.Left;
    std::vector<float> seen;
    for (int i = 1; i <= 674; ++i) {
        tick();
        if (i == 1 || (i >= 335 && i <= 338) || i >= 671) seen.push_back(left);
    }
    EXPECT_EQ(seen, (std::vector<float>{135, 5145, 5160, 5145, 5130, 135, 120, 120, 135}));
}

TEST(Activity, KeepsPlaceAndDirectionThroughAStopAndNestedTicksDoNotRun) {
    Rig rig;
    StartActivity(rig.window);
    rig.window.Shape2.Left = 5160;
    rig.desktop.Ticks = false;
    rig.window.Timer1.Tick();
    StopActivity(rig.window);
    rig.window.Timer1.Tick();
    EXPECT_EQ(rig.window.Shape2.Left, 5145);
    StartActivity(rig.window);
    int depth = 0;
    rig.desktop.OnYield = [&] {
        ++depth;
        rig.window.Timer1.Tick();
    };
    rig.window.Timer1.Tick();
    EXPECT_EQ(depth, 2);
    EXPECT_EQ(rig.window.Shape2.Left, 5130);
}

}  // namespace
}  // namespace keplin::test
