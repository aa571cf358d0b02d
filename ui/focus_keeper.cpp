#include "ui/focus_keeper.h"

#include <algorithm>
#include <iterator>

namespace keplin {

FocusKeeper::FocusKeeper(const std::vector<const Control*>& controls, Drawing& drawing)
    : drawing_(drawing) {
    for (const Control* control : controls) {
        if (const auto* button = dynamic_cast<const Button*>(control)) buttons_.push_back(button);
    }
    std::stable_sort(buttons_.begin(), buttons_.end(), [](const Button* one, const Button* other) {
        return one->TabIndex < other->TabIndex;
    });
}

void FocusKeeper::BeforeChange() {
    const Button* focused = drawing_.Focused();
    if (focused == nullptr || focused->CanBePressed()) return;
    drawing_.Focus(nullptr);
}

void FocusKeeper::AfterChange() {
    if (pressed_ == nullptr) Settle();
}

void FocusKeeper::Press(const Button& button) {
    if (pressed_ != nullptr) {
        button.Press();
        return;
    }
    beforePress_ = Pressable();
    pressed_ = &button;
    button.Press();
    Settle();
    beforePress_.clear();
    pressed_ = nullptr;
}

void FocusKeeper::Move(bool backwards) {
    std::vector<const Button*> order = Pressable();
    if (order.empty()) return;
    if (backwards) std::reverse(order.begin(), order.end());
    const auto focused = std::find(order.begin(), order.end(), drawing_.Focused());
    const auto next = focused == order.end() ? focused : focused + 1;
    drawing_.Focus(next == order.end() ? order.front() : *next);
}

std::vector<const Button*> FocusKeeper::Pressable() const {
    std::vector<const Button*> pressable;
    std::copy_if(buttons_.begin(), buttons_.end(), std::back_inserter(pressable),
                 [](const Button* button) { return button->CanBePressed(); });
    return pressable;
}

FocusKeeper::Rank FocusKeeper::RankOf(const Button& button) const {
    if (button.Container == nullptr) return Rank::BesideThePages;
    if (&button == pressed_) return Rank::PressedAgain;
    const auto before = std::find(beforePress_.begin(), beforePress_.end(), &button);
    return before == beforePress_.end() ? Rank::PressableOnlySince : Rank::OnThePage;
}

const Button* FocusKeeper::Best() const {
    const auto pressable = Pressable();
    const auto best = std::min_element(
        pressable.begin(), pressable.end(),
        [this](const Button* one, const Button* other) { return RankOf(*one) < RankOf(*other); });
    return best == pressable.end() ? nullptr : *best;
}

// A focus that the technician has put somewhere stays there.
void FocusKeeper::Settle() {
    const Button* focused = drawing_.Focused();
    if (focused != nullptr && focused != provisional_) return;
    const Button* best = Best();
    if (best == nullptr) return;
    if (best != focused) drawing_.Focus(best);
    provisional_ = best->Container == nullptr ? best : nullptr;
}

}  // namespace keplin
