// Walks through one update as a technician would, by pressing the buttons of the real window.
#pragma once

#include <functional>

#include "demo/stage_pictures.h"
#include "ui/isp_main.h"

namespace keplin {

class Walk {
  public:
    // `press` presses that button of the drawing, and returns when all that the press does is done.
    // `again`: a step that failed is tried a second time.
    using PressButton = std::function<void(const Button&)>;
    Walk(const ISPMain& model, PressButton press, StagePictures& pictures, bool again);

    // From the getting-started page to the press on Finish or Close, which ends the program.
    void Go();

  private:
    void ReachEnd();
    template <typename Done>
    void PressUntil(const Button& button, Done&& done);
    void Press(const Button& button);
    void PrintStop() const;

    const ISPMain& model_;
    const PressButton press_;
    StagePictures& pictures_;
    const bool again_;
};

}  // namespace keplin
