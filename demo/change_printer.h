// Prints what changes in the window, one change a line.
#pragma once

#include "ui/form.h"

namespace keplin {

class ChangePrinter : public Observer {
  public:
    // Prints from now on. The window must outlive it.
    explicit ChangePrinter(Form& window) : observing_(window, *this) {}

    // Prints changes of a text, a page, an enabled state and the progress on standard output.
    void Changed(const Control& control, Aspect aspect) override;

  private:
    Observation observing_;
};

}  // namespace keplin
