// Walks through one update as a technician would, by pressing the buttons of the real window.
#pragma once

#include <functional>

#include "demo/change_printer.h"
#include "demo/options.h"
#include "demo/stage_pictures.h"
#include "platform/standard_desktop.h"
#include "ui/isp_main.h"

namespace keplin {

// How the update file is chosen: in a walk by `options`, else in the dialog, which then starts in
// the file's folder.
StandardDesktop::Hooks HooksOf(const DemoOptions& options, std::function<int()> beforeEnd);

class Walk {
  public:
    // `press` presses that button of the drawing, and returns when all that the press does is done.
    using PressButton = std::function<void(const Button&)>;

    // Prints the changes of the window from now on, which must outlive it, and takes the pictures
    // that `options` want.
    Walk(ISPMain& model, const DemoOptions& options, PressButton press,
         StagePictures::SaveWindow save);

    // From the getting-started page to the press on Finish or Close, which ends the program.
    void Go();

  private:
    void ReachEnd();
    template <typename Done>
    void PressUntil(const Button& button, Done&& done);
    void Press(const Button& button);
    void PrintStop() const;

    const ISPMain& model_;
    const bool again_;
    const PressButton press_;
    StagePictures pictures_;
    ChangePrinter printer_;
};

}  // namespace keplin
