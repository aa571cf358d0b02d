#include "demo/walk.h"

#include <filesystem>
#include <iostream>
#include <string>
#include <utility>

#include "platform/path.h"

namespace keplin {

StandardDesktop::Hooks HooksOf(const DemoOptions& options, std::function<int()> beforeEnd) {
    StandardDesktop::Hooks hooks{{}, std::move(beforeEnd)};
    if (options.walk) {
        hooks.openFile = [file = options.file](const OpenFileRequest&) { return file; };
    } else {
        std::error_code gone;
        std::filesystem::current_path(ToPath(options.file).parent_path(), gone);
    }
    return hooks;
}

Walk::Walk(ISPMain& model, const DemoOptions& options, PressButton press,
           StagePictures::SaveWindow save)
    : model_(model),
      again_(options.again),
      press_(std::move(press)),
      pictures_(model, std::move(save), options.pictures),
      printer_(model) {}

void Walk::Go() {
    ReachEnd();
    if (!model_.UpdateComplete()) PrintStop();
    Press(model_.cmdExit);
}

void Walk::ReachEnd() {
    const auto portFound = [this] { return model_.Next_2.CanBePressed(); };
    const auto completed = [this] { return model_.UpdateComplete(); };
    pictures_.Take("Getting started");
    Press(model_.Next_1);
    pictures_.Take("Setup");
    PressUntil(model_.cmdPortTest, portFound);
    pictures_.Take("Port test done");
    if (!portFound()) return;
    Press(model_.Next_2);
    pictures_.Take("File loaded");
    if (!model_.PicProgram.Shown()) return;
    PressUntil(model_.Command1, completed);
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
    for (const Page* page : {&model_.PicSetup, &model_.PicProgram}) {
        if (page->Shown()) std::cout << "  page: " << page->Name << "\n";
    }
    for (const Label* label : {&model_.lblResults, &model_.lblPrgm}) {
        if (label->Shown()) std::cout << "  text: \"" << label->Caption.Get() << "\"\n";
    }
    if (model_.ProgressBar1.Shown()) {
        std::cout << "  progress: " << model_.ProgressBar1.Value.Get() << " of "
                  << model_.ProgressBar1.Max.Get() << "\n";
    }
    for (const Button* button :
         {&model_.cmdExit, &model_.Next_2, &model_.cmdPortTest, &model_.Command1}) {
        if (button->CanBePressed()) std::cout << "  button: " << button->Caption.Get() << "\n";
    }
    std::cout << std::flush;
}

}  // namespace keplin
