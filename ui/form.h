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
    [[nodiscard]] const std::vector<const Control*>& Controls() const { return controls_; }

    // The height of the client area, which the frame leaves of the outer height.
    [[nodiscard]] float ClientHeight() const;

    // The technician asked the title bar to close the window.
    void RequestClose() const;

    Property<std::string> Caption;
    Property<State> WindowState;
    std::function<void()> OnCloseRequest;

  private:
    friend class Control;
    friend class Observation;

    std::vector<const Control*> controls_;
    std::vector<Observer*> observers_;
};

std::string Written(Form::State state);

// For as long as it exists, the observer is told of all changes of the form and its controls. Of
// several observers the one that came first is told first; none comes or goes while one is told.
class Observation {
  public:
    // Form and observer must outlive it.
    Observation(Form& form, Observer& observer);
    ~Observation();
    Observation(const Observation&) = delete;
    Observation& operator=(const Observation&) = delete;

  private:
    Form& form_;
    Observer& observer_;
};

}  // namespace keplin
