// Which button has the keyboard focus: one that can be pressed or none, and never one by accident
// while a press is still at work.
#pragma once

#include <vector>

#include "ui/drawing.h"

namespace keplin {

class FocusKeeper {
  public:
    // The controls of one window, and its drawing, must outlive it.
    FocusKeeper(const std::vector<const Control*>& controls, Drawing& drawing);

    // In the order in which the focus moves from one to the next.
    [[nodiscard]] const std::vector<const Button*>& TabOrder() const { return buttons_; }

    // The model has changed and the drawing has not yet: takes the focus from a button that can no
    // longer be pressed, before the toolkit passes it on by itself.
    void BeforeChange();

    // The drawing has followed. Gives the focus to a button that can be pressed: the first one in
    // tab order on the shown page, or else one beside the pages until the page has one again.
    void AfterChange();

    // Presses the button for the technician. Until all that the press does is done, a focus that
    // is lost stays with no button; then a button that can be pressed only since gets it, or else
    // the pressed one again, another on the page, or one beside the pages.
    void Press(const Button& button);

    // Gives the focus to the next button in tab order that can be pressed, or to the one before it;
    // from the last it goes to the first.
    void Move(bool backwards);

  private:
    [[nodiscard]] std::vector<const Button*> Pressable() const;
    // Which button the focus goes to, the best first.
    enum class Rank { PressableOnlySince, PressedAgain, OnThePage, BesideThePages };
    [[nodiscard]] Rank RankOf(const Button& button) const;
    [[nodiscard]] const Button* Best() const;
    void Settle();

    Drawing& drawing_;
    std::vector<const Button*> buttons_;      // in tab order
    std::vector<const Button*> beforePress_;  // those that could be pressed before that press
    const Button* pressed_ = nullptr;         // by the outermost press at work
    const Button* provisional_ = nullptr;     // has the focus only until the page has a button
};

}  // namespace keplin
