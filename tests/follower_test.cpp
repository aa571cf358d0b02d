// What happens at each change of the window and at each press, whatever draws it.
#include "ui/follower.h"

#include <gtest/gtest.h>

#include <map>

namespace keplin::test {
namespace {

// A drawing without a toolkit: it remembers what it is asked for.
class PlainDrawing : public Drawing {
  public:
    explicit PlainDrawing(ISPMain& model) : follower(model, *this, [this] { return now; }) {}

    // A toolkit passes on by itself the focus of a button that it has to hide or disable.
    void Apply(const Control& control, Aspect aspect) override {
        EXPECT_TRUE(focused == nullptr || focused->CanBePressed()) << focused->Name;
        asked += control.Name + "." + NameOf(aspect) + "\n";
    }
    void Refit(const Label& label) override { asked += "refit " + label.Name + "\n"; }
    [[nodiscard]] const Button* Focused() const override { return focused; }
    void Focus(const Button* button) override {
        focused = button;
        if (button != nullptr) follower.FocusCame(*button);
    }
    void CallForAttention() override { asked += "call\n"; }
    [[nodiscard]] bool IsHeard() const override { return heard; }
    void SpeakSoon() override { asked += "speak soon\n"; }
    void Describe(const Button& button, const std::string& news) override {
        described[button.Name] = news;
    }
    void Announce(const Button& button, const std::string& news) override {
        EXPECT_EQ(described[button.Name], news);
        asked += button.Name + " says: " + news + "\n";
    }

    std::string asked;
    std::map<std::string, std::string> described;  // by the button's name
    const Button* focused = nullptr;
    bool heard = true;
    PressGuard::Moment now{PressGuard::kGuard};
    Follower follower;
};

// The window with its getting-started page.
class Followers : public testing::Test {
  protected:
    Followers() {
        for (Control* hidden : std::initializer_list<Control*>{
                 &model.lblPrgm, &model.PicGettingStarted, &model.PicSetup, &model.PicProgram})
            hidden->Visible = false;
        ShowPage(model.PicGettingStarted);
        drawing.follower.Start();
        model.Visible = true;
        EXPECT_FALSE(drawing.follower.MouseDown(model.Next_1)) << "it came with the window";
        LetButtonsBePressed();
    }

    void LetButtonsBePressed() { drawing.now += PressGuard::kGuard; }

    void Show(Page& page) {
        for (Page* other : {&model.PicGettingStarted, &model.PicSetup, &model.PicProgram}) {
            if (other != &page) other->Visible = false;
        }
        ShowPage(page);
        LetButtonsBePressed();
    }

    [[nodiscard]] std::string Focused() const {
        return drawing.focused == nullptr ? "" : drawing.focused->Name;
    }
    std::string FocusedAfter(Property<bool>& change, bool value) {
        change = value;
        return Focused();
    }
    // On the button that has the focus.
    void Enter() {
        if (drawing.focused == nullptr) return;
        const Button& button = *drawing.focused;
        if (drawing.follower.KeyDown(button, PressKey::Enter, false) == KeyEffect::Press)
            drawing.follower.Press(button);
    }

    ISPMain model;
    PlainDrawing drawing{model};
};

TEST_F(Followers, TheFocusGoesToAButtonThatCanBePressed) {
    EXPECT_EQ(Focused(), "Next_1");
    drawing.Focus(nullptr);
    EXPECT_EQ(FocusedAfter(model.PicGettingStarted.Visible, false), "cmdExit");
    model.Next_2.Enabled = false;
    Show(model.PicSetup);
    EXPECT_EQ(Focused(), "cmdPortTest");
    EXPECT_EQ(FocusedAfter(model.Next_2.Enabled, true), "cmdPortTest");
    EXPECT_EQ(FocusedAfter(model.cmdPortTest.Enabled, false), "Next_2");
    model.cmdExit.Enabled = false;
    EXPECT_EQ(FocusedAfter(model.Next_2.Enabled, false), "");
    EXPECT_EQ(FocusedAfter(model.Next_2.Enabled, true), "Next_2");
    EXPECT_EQ(FocusedAfter(model.cmdPortTest.Enabled, true), "Next_2");
    model.cmdExit.Enabled = true;
    drawing.Focus(&model.cmdExit);
    Show(model.PicProgram);
    EXPECT_EQ(Focused(), "cmdExit") << "the technician has put it there";
}

TEST_F(Followers, TabGoesRoundAmongTheButtonsThatCanBePressed) {
    Show(model.PicSetup);
    std::string order;
    for (const bool backwards : {false, false, false, true, true, true}) {
        drawing.follower.MoveFocus(backwards);
        order += Focused() + " ";
    }
    EXPECT_EQ(order, "cmdPortTest cmdExit Next_2 cmdExit cmdPortTest Next_2 ");
}

TEST_F(Followers, WhileAPressIsAtWorkALostFocusPressesNothing) {
    bool found = false;
    model.cmdPortTest.OnClick = [&] {
        EXPECT_EQ(FocusedAfter(model.cmdPortTest.Enabled, false), "");
        if (found) model.Next_2.Enabled = true;
        EXPECT_EQ(FocusedAfter(model.cmdPortTest.Enabled, true), "");
    };
    model.Next_2.Enabled = false;
    Show(model.PicSetup);
    Enter();
    EXPECT_EQ(Focused(), "cmdPortTest");
    LetButtonsBePressed();
    found = true;
    Enter();
    EXPECT_EQ(Focused(), "Next_2");
    drawing.Focus(&model.cmdPortTest);
    LetButtonsBePressed();
    Enter();
    EXPECT_EQ(Focused(), "cmdPortTest");
}

// The second stroke of a double press, and a click on a grey button or on the title bar's close
// control that waits for a pause to end.
TEST_F(Followers, AButtonThatCameJustNowTakesNoPressThatWasNotMeantForIt) {
    const Follower& follower = drawing.follower;
    int requests = 0;
    model.OnCloseRequest = [&] { ++requests; };
    const auto takes = [&](bool repeated = false) {
        const KeyEffect enter = follower.KeyDown(model.Command1, PressKey::Enter, repeated);
        const KeyEffect space = follower.KeyDown(model.Command1, PressKey::Space, repeated);
        const bool mouse = follower.MouseDown(model.Command1);
        EXPECT_EQ(enter == KeyEffect::Press, mouse && !repeated);
        EXPECT_EQ(space == KeyEffect::PassOn, mouse && !repeated);
        return mouse;
    };
    Show(model.PicProgram);
    EXPECT_TRUE(takes());
    EXPECT_TRUE(takes(true)) << "by the mouse";
    for (Button* button : {&model.cmdExit, &model.Command1}) {
        button->Enabled = false;
        EXPECT_EQ(takes(), button == &model.cmdExit);
        button->Enabled = true;
    }
    drawing.now += PressGuard::kGuard - std::chrono::milliseconds(1);
    EXPECT_FALSE(takes());
    drawing.follower.CloseAsked();
    EXPECT_EQ(requests, 0);
    drawing.now += std::chrono::milliseconds(1);
    EXPECT_TRUE(takes());
    drawing.follower.CloseAsked();
    EXPECT_EQ(requests, 1);
}

TEST_F(Followers, WhatHangsTogetherFollowsTogether) {
    drawing.asked.clear();
    model.Height = 5460;
    EXPECT_EQ(std::exchange(drawing.asked, ""), "ISPMain.Height\nStatusBar1.Top\nStatusBar2.Top\n");
    Show(model.PicProgram);
    model.cmdExit.Enabled = false;
    drawing.asked.clear();
    model.ProgressBar1.Visible = false;
    EXPECT_EQ(std::exchange(drawing.asked, ""),
              "ProgressBar1.Visible\nrefit Label10\nrefit lblPrgm\n");
    model.cmdExit.Enabled = true;
    EXPECT_EQ(drawing.asked, "cmdExit.Enabled\ncall\n");
}

TEST_F(Followers, NewsBelongsToTheButtonWithTheFocus) {
    Show(model.PicSetup);
    model.lblResults.Caption = "Query to Port 0";
    drawing.follower.Speak();
    drawing.asked.clear();
    model.lblResults.Caption = "Query to Port 1";
    model.lblResults.Caption = "Query to Port 2";
    EXPECT_EQ(drawing.asked, "lblResults.Caption\nspeak soon\nlblResults.Caption\n");
    drawing.asked.clear();
    drawing.follower.Speak();
    EXPECT_EQ(std::exchange(drawing.asked, ""), Focused() + " says: Query to Port 2\n");
    drawing.Focus(&model.cmdExit);
    EXPECT_EQ(drawing.described["Next_2"], "") << "which had the focus";
    EXPECT_EQ(drawing.described["cmdExit"], "Query to Port 2");
    drawing.follower.Speak();
    EXPECT_EQ(drawing.asked, "");
    drawing.Focus(&model.cmdPortTest);
    model.cmdPortTest.OnClick = [&] {
        Show(model.PicProgram);
        drawing.asked.clear();
        drawing.follower.Speak();
        EXPECT_EQ(drawing.asked, "") << "the button with the focus is out of sight";
    };
    Enter();
    EXPECT_TRUE(drawing.described["Command1"].starts_with("Note:"));
}

// A screen reader that comes in the midst of a run is told how that ended.
TEST_F(Followers, WhatNobodyHeardIsNoNews) {
    Show(model.PicProgram);
    drawing.heard = false;
    drawing.asked.clear();
    drawing.described.clear();
    model.cmdExit.Enabled = false;
    model.lblPrgm.Visible = true;
    drawing.Focus(&model.Command1);
    EXPECT_EQ(drawing.asked.find("speak"), std::string::npos) << drawing.asked;
    EXPECT_TRUE(drawing.described.empty());
    drawing.heard = true;
    model.cmdExit.Enabled = true;
    drawing.follower.Speak();
    EXPECT_TRUE(
        drawing.asked.ends_with(" says: Programming in Progress. The update has stopped.\n"))
        << drawing.asked;
}

}  // namespace
}  // namespace keplin::test
