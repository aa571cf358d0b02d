#include "demo/walk.h"

#include <QAbstractButton>
#include <iostream>
#include <string>

namespace keplin {

Walk::Walk(const ISPMain& window, QWidget& drawing, StagePictures& pictures, bool again)
    : window_(window), drawing_(drawing), pictures_(pictures), again_(again) {}

void Walk::Go() {
    ReachEnd();
    if (!Completed()) PrintStop();
    Press(window_.cmdExit);
}

void Walk::ReachEnd() {
    pictures_.Take("Getting started");
    Press(window_.Next_1);
    pictures_.Take("Setup");
    PressUntil(window_.cmdPortTest, &Walk::PortFound);
    pictures_.Take("Port test done");
    if (!PortFound()) return;
    Press(window_.Next_2);
    pictures_.Take("File loaded");
    if (!window_.PicProgram.Shown()) return;
    PressUntil(window_.Command1, &Walk::Completed);
    pictures_.Take(Completed() ? "Update complete" : "Update stopped");
}

void Walk::PressUntil(const Button& button, bool (Walk::*done)() const) {
    Press(button);
    if (!(this->*done)() && again_) {
        PrintStop();
        Press(button);
    }
}

void Walk::Press(const Button& button) {
    std::cout << "[press " << button.Caption.Get() << "]" << std::endl;
    drawing_.findChild<QAbstractButton*>(QString::fromStdString(button.Name))->click();
}

bool Walk::PortFound() const {
    return window_.Next_2.CanBePressed();
}

bool Walk::Completed() const {
    return window_.Frame2.Caption.Get() == "Update Complete";
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
