// A drawn window with its getting-started page, and no program behind it.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <utility>

#include "ui/isp_main.h"
#include "ui/press_guard.h"

namespace keplin::test {

// A line that never brings a byte. `Watched` is how the desktop sees one.
template <typename Watched>
struct TestLine : Watched {
    [[nodiscard]] bool TakeWait() override { return std::exchange(MayWait, false); }
    void CheckLine() noexcept override { OnCheck(); }

    bool MayWait = false;
    std::function<void()> OnCheck = [] {};
};

// `Window` and `Desktop` are a drawing's.
template <typename Window, typename Desktop, typename Watched>
class ShownWindow : public testing::Test {
  protected:
    ShownWindow() {
        for (Control* hidden : std::initializer_list<Control*>{
                 &model.Shape1, &model.Shape2, &model.lblPrgm, &model.PicSetup, &model.PicProgram})
            hidden->Visible = false;
        ShowPage(model.PicGettingStarted);
        model.Height = kShownHeight;
        model.Visible = true;
        LetButtonsBePressed();
    }

    void LetButtonsBePressed() { now += PressGuard::kGuard; }

    // The page as the technician finds it after a look at it.
    void Show(Page& page) {
        for (Page* other : {&model.PicGettingStarted, &model.PicSetup, &model.PicProgram}) {
            if (other != &page) other->Visible = false;
        }
        ShowPage(page);
        LetButtonsBePressed();
    }

    // Processes events until the condition holds; false after five seconds.
    template <typename Condition>
    bool Until(Condition&& condition) {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(5);
        while (!condition() && std::chrono::steady_clock::now() < end)
            desktop.YieldOnce();
        return condition();
    }

    struct Times {
        std::chrono::nanoseconds all{};
        std::chrono::nanoseconds shortest = std::chrono::seconds(1);
    };

    // How long yields take, in which the line asks for a wait or does not.
    Times FiftyYields(bool wait) {
        Times times;
        for (int i = 0; i < 50; ++i) {
            const auto start = std::chrono::steady_clock::now();
            line.MayWait = wait;
            desktop.YieldOnce();
            EXPECT_FALSE(line.MayWait);
            const auto time = std::chrono::steady_clock::now() - start;
            times = {times.all + time, std::min<std::chrono::nanoseconds>(times.shortest, time)};
        }
        return times;
    }

    ISPMain model;
    PressGuard::Moment now{};  // as the window counts, which passes over what came just now
    Window window{model, [this] { return now; }};
    TestLine<Watched> line;
    Desktop desktop{window, line, {}};
};

}  // namespace keplin::test
