// Which button has the keyboard focus: always one that can be pressed, and never one by accident
// while a press is still at work.
#pragma once

#include <QWidget>
#include <vector>

#include "ui/controls.h"

namespace keplin::qt {

class FocusKeeper {
  public:
    explicit FocusKeeper(QWidget& window) : window_(window) {}

    // Takes a button into the tab order.
    void Add(const Button& button, QWidget& widget);

    // The model has changed and its widget has not yet: takes the focus from a button that can no
    // longer be pressed, before Qt passes it on by itself.
    void BeforeChange();

    // The widget has followed. Gives the focus to a button that can be pressed: the next one in tab
    // order on the shown page, or else one beside the pages until the page has one again.
    void AfterChange();

    // Presses the button for the technician. Until all that the press does is done, a focus that
    // is lost stays with no button; then a button that can be pressed only since gets it, or else
    // the pressed one again.
    void Press(const Button& button);

  private:
    struct Entry {
        const Button* button;
        QWidget* widget;
    };

    [[nodiscard]] const Entry* Focused() const;
    [[nodiscard]] std::vector<const Button*> Pressable() const;
    // Which button the focus goes to, the best first.
    enum class Rank { PressableOnlySince, PressedAgain, OnThePage, BesideThePages };
    [[nodiscard]] Rank RankOf(const Button& button) const;
    [[nodiscard]] const Entry* Best() const;
    void Settle();

    QWidget& window_;
    std::vector<Entry> entries_;              // in tab order
    std::vector<const Button*> beforePress_;  // those that could be pressed then
    const Button* pressed_ = nullptr;         // the outermost press at work, or just done
    const Button* last_ = nullptr;            // the last that lost the focus
    const Button* provisional_ = nullptr;     // has the focus only until the page has a button
    int pressing_ = 0;
};

}  // namespace keplin::qt
