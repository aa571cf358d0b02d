// Prints what changes in the window, one change a line, and passes every change on.
#pragma once

#include <functional>

#include "ui/control.h"

namespace keplin {

class ChangePrinter : public Observer {
  public:
    // `drawing` is told of each change first, then `afterwards` is called. Both must outlive this.
    ChangePrinter(Observer& drawing, std::function<void(const Control&, Aspect)> afterwards);

    // Prints changes of a text, a page, an enabled state and the progress on standard output.
    void Changed(const Control& control, Aspect aspect) override;

  private:
    Observer& drawing_;
    std::function<void(const Control&, Aspect)> afterwards_;
};

}  // namespace keplin
