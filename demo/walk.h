// Walks through one update as a technician would, by pressing the buttons of the real window.
#pragma once

#include <QWidget>

#include "demo/stage_pictures.h"
#include "ui/isp_main.h"

namespace keplin {

class Walk {
  public:
    // `again`: a step that failed is tried a second time.
    Walk(const ISPMain& window, QWidget& drawing, StagePictures& pictures, bool again);

    // From the getting-started page to the press on Finish or Close, which ends the program.
    void Go();

  private:
    void ReachEnd();
    template <typename Done>
    void PressUntil(const Button& button, Done&& done);
    void Press(const Button& button);
    void PrintStop() const;

    const ISPMain& window_;
    QWidget& drawing_;
    StagePictures& pictures_;
    const bool again_;
};

}  // namespace keplin
