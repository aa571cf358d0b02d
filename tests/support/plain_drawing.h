// A drawing without a toolkit: it remembers what it is asked for.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "ui/describe.h"
#include "ui/drawing.h"
#include "ui/follower.h"

namespace keplin::test {

class PlainDrawing : public Drawing {
  public:
    explicit PlainDrawing(ISPMain& model) : follower(model, *this, [this] { return now; }) {}

    // A toolkit passes on by itself the focus of a button that it has to hide or disable.
    void Apply(const Control& control, Aspect aspect) override {
        EXPECT_TRUE(focused == nullptr || focused->CanBePressed()) << focused->Name;
        asked += Describe(control, aspect) + "\n";
    }
    void Refit(const Label& label) override { asked += "refit " + label.Name + "\n"; }
    [[nodiscard]] const Button* Focused() const override { return focused; }
    void Focus(const Button* button) override {
        focused = button;
        if (button != nullptr) follower.FocusCame(*button);
    }
    void CallForAttention() override { asked += "call\n"; }
    [[nodiscard]] bool IsHeard() const override { return true; }
    void SpeakSoon() override { asked += "speak soon\n"; }
    void Describe(const Button& button, const std::string& news) override {
        if (!news.empty() || !description.second.empty()) description = {button.Name, news};
    }
    void Announce(const Button& button, const std::string& news) override {
        asked += button.Name + " says: " + news + "\n";
    }
    using Named = std::pair<std::string, std::string>;

    std::string asked;
    Named description;  // that was given or taken away last
    const Button* focused = nullptr;
    PressGuard::Moment now{};
    Follower follower;

  private:
    static std::string Describe(const Control& control, Aspect aspect) {
        return keplin::Describe(control, aspect);
    }
};

}  // namespace keplin::test
