// The window itself, which keeps its controls.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ui/control.h"

namespace keplin {

// Height is its outer height, title bar and frame included.
class Form : public Control {
  public:
    enum class State { Normal, Minimised };

    // Hidden at first.
    Form(std::string name, std::string title, float width, float height);
    void Accept(ControlVisitor& visitor) const override;

    // In the order of their making; a later one lies above an earlier one.
    [[nodiscard]] const std::vector<Control*>& Controls() const { return controls_; }

    // The observer is told of all changes of the form and its controls. It must outlive them or be
    // taken away with nullptr first.
    void Observe(Observer* observer) { observer_ = observer; }

    // The height of the client area, which the frame leaves of the outer height.
    [[nodiscard]] float ClientHeight() const;

    // The technician asked the title bar to close the window.
    void RequestClose() const;

    Property<std::string> Caption;
    Property<State> WindowState;
    std::function<void()> OnCloseRequest;

  private:
    friend class Control;
    friend void TellObserver(const Control& owner, Aspect aspect);

    std::vector<Control*> controls_;
    Observer* observer_ = nullptr;
};

}  // namespace keplin
