#include "ui/qt/focus_keeper.h"

#include <algorithm>

namespace keplin::qt {

void FocusKeeper::Add(const Button& button, QWidget& widget) {
    const auto later = [&](const Entry& entry) { return entry.button->TabIndex > button.TabIndex; };
    entries_.insert(std::find_if(entries_.begin(), entries_.end(), later), {&button, &widget});
    for (std::size_t i = 1; i < entries_.size(); ++i) {
        QWidget::setTabOrder(entries_[i - 1].widget, entries_[i].widget);
    }
}

void FocusKeeper::BeforeChange() {
    const Entry* focused = Focused();
    if (focused == nullptr || focused->button->CanBePressed()) return;
    last_ = focused->button;
    window_.setFocus();
}

void FocusKeeper::AfterChange() {
    if (pressing_ == 0) Settle();
}

void FocusKeeper::Press(const Button& button) {
    if (pressing_++ == 0) {
        beforePress_ = Pressable();
        pressed_ = &button;
    }
    button.Press();
    if (--pressing_ == 0) {
        Settle();
        beforePress_.clear();
        pressed_ = nullptr;
    }
}

const FocusKeeper::Entry* FocusKeeper::Focused() const {
    const auto has = [this](const Entry& entry) { return entry.widget == window_.focusWidget(); };
    const auto found = std::find_if(entries_.begin(), entries_.end(), has);
    return found == entries_.end() ? nullptr : &*found;
}

std::vector<const Button*> FocusKeeper::Pressable() const {
    std::vector<const Button*> buttons;
    for (const Entry& entry : entries_) {
        if (entry.button->CanBePressed()) buttons.push_back(entry.button);
    }
    return buttons;
}

FocusKeeper::Rank FocusKeeper::RankOf(const Button& button) const {
    if (button.Container == nullptr) return Rank::BesideThePages;
    if (pressed_ == nullptr) return Rank::OnThePage;
    if (&button == pressed_) return Rank::PressedAgain;
    const auto before = std::find(beforePress_.begin(), beforePress_.end(), &button);
    return before == beforePress_.end() ? Rank::PressableOnlySince : Rank::OnThePage;
}

const FocusKeeper::Entry* FocusKeeper::Best() const {
    const auto isLast = [this](const Entry& entry) { return entry.button == last_; };
    const auto last = std::find_if(entries_.begin(), entries_.end(), isLast);
    const auto start = static_cast<std::size_t>(last - entries_.begin()) + 1;
    const Entry* best = nullptr;
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        const Entry& entry = entries_[(start + i) % entries_.size()];
        if (!entry.button->CanBePressed()) continue;
        if (best == nullptr || RankOf(*entry.button) < RankOf(*best->button)) best = &entry;
    }
    return best;
}

// A focus that the technician has put somewhere stays there.
void FocusKeeper::Settle() {
    const Entry* focused = Focused();
    if (focused != nullptr && focused->button != provisional_) return;
    const Entry* best = Best();
    if (best == nullptr) return;
    if (best != focused) best->widget->setFocus(Qt::OtherFocusReason);
    provisional_ = best->button->Container == nullptr ? best->button : nullptr;
}

}  // namespace keplin::qt
