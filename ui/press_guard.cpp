#include "ui/press_guard.h"

#include <algorithm>
#include <utility>

namespace keplin {

PressGuard::PressGuard(const Form& model, Clock clock) : model_(model), clock_(std::move(clock)) {}

void PressGuard::Add(const Button& button) {
    entries_.push_back({&button, false, {}});
}

void PressGuard::AfterChange() {
    for (Entry& entry : entries_) {
        const bool before =
            std::exchange(entry.pressable, model_.Visible && entry.button->CanBePressed());
        if (entry.pressable && !before) entry.came = clock_();
    }
}

bool PressGuard::Takes(const Button& button) const {
    const auto isIt = [&](const Entry& entry) { return entry.button == &button; };
    const auto entry = std::find_if(entries_.begin(), entries_.end(), isIt);
    return entry != entries_.end() && entry->pressable && clock_() - entry->came >= kGuard;
}

}  // namespace keplin
