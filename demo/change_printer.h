// Prints what changes in the window, one change a line.
#pragma once

#include "ui/form.h"

namespace keplin {

class ChangePrinter : public Observer {
  public:
    // Prints from now on. The window must outlive it.
    explicit ChangePrinter(Form& model) : observing_(model, *this) {}

    // Prints changes of a text, a page, an enabled state and the progress on standard output.
    void Changed(const Control& control, const PropertyBase& property) override;

  private:
    Observation observing_;
};

}  // namespace keplin
