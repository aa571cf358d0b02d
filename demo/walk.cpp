#include "demo/walk.h"

#include <iostream>
#include <string>
#include <utility>

namespace keplin {

Walk::Walk(const ISPMain& window, PressButton press, StagePictures& pictures, bool again)
    : window_(window), press_(std::move(press)), pictures_(pictures), again_(again) {}

void Walk::Go() {
    ReachEnd();
    if (!window_.UpdateComplete()) PrintStop();
    Press(window_.cmdExit);
}

void Walk::ReachEnd() {
    const auto portFound = [this] { return window_.Next_2.CanBePressed(); };
    const auto completed = [this] { return window_.UpdateComplete(); };
    pictures_.Take("Getting started");
    Press(window_.Next_1);
    pictures_.Take("Setup");
    PressUntil(window_.cmdPortTest, portFound);
    pictures_.Take("Port test done");
    if (!portFound()) return;
    Press(window_.Next_2);
    pictures_.Take("File loaded");
    if (!window_.PicProgram.Shown()) return;
    PressUntil(window_.Command1, completed);
    pictures_.Take(completed() ? "Update complete" : "Update stopped");
}

template <typename Done>
void Walk::PressUntil(const Button& button, Done&& done) {
    Press(button);
    if (!done() && again_) {
        PrintStop();
        Press(button);
    }
}

void Walk::Press(const Button& button) {
    std::cout << "[press " << button.Caption.Get() << "]" << std::endl;
    press_(button);
}

void Walk::PrintStop() const {
    std::cout << "The walk stopped. The window shows:\n";
    for (const Page* page : {&window_.PicSetup, &window_.PicProgram}) {
        if (page->Shown()) std::cout << "  page: " << page->Name << "\n";
    }
    for (const Label* label : {&window_.lblResults, &window_.lblPrgm}) {
        if (label->Shown()) std::cout << "  text: \"" << label->Caption.Get() << "\"\n";
    }
    if (window_.ProgressBar1.Shown()) {
        std::cout << "  progress: " << window_.ProgressBar1.Value.Get() << " of "
                  << window_.ProgressBar1.Max.Get() << "\n";
    }
    for (const Button* button :
         {&window_.cmdExit, &window_.Next_2, &window_.cmdPortTest, &window_.Command1}) {
        if (button->CanBePressed()) std::cout << "  button: " << button->Caption.Get() << "\n";
    }
    std::cout << std::flush;
}

}  // namespace keplin
