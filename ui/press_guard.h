// Which presses count: none of a button that came only a moment ago. Such a press was meant for
// what stood there before: the second of a double press, or one that waited for a pause of the
// program to end.
#pragma once

#include <chrono>
#include <functional>
#include <vector>

#include "ui/controls.h"

namespace keplin {

class PressGuard {
  public:
    using Moment = std::chrono::steady_clock::time_point;
    using Clock = std::function<Moment()>;

    // How long a button takes no press after it came.
    static constexpr std::chrono::milliseconds kGuard{400};

    // The window and its buttons must outlive the guard.
    PressGuard(const Form& model, Clock clock);

    void Add(const Button& button);

    // Something in the window was shown, hidden, enabled or disabled.
    void AfterChange();

    // A press of the button counts now, or what else does the same.
    [[nodiscard]] bool Takes(const Button& button) const;

  private:
    struct Entry {
        const Button* button;
        bool pressable;
        Moment came;  // when it could be pressed last after it could not
    };

    const Form& model_;
    const Clock clock_;
    std::vector<Entry> entries_;
};

}  // namespace keplin
