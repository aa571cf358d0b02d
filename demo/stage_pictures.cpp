#include "demo/stage_pictures.h"

#include <cctype>
#include <iostream>
#include <utility>

namespace keplin {
namespace {

std::string FileName(int number, std::string_view name) {
    std::string text = (number < 10 ? "0" : "") + std::to_string(number);
    bool word = false;
    for (const char letter : name) {
        const bool belongs = std::isalnum(static_cast<unsigned char>(letter)) != 0;
        if (belongs && !word) text += '-';
        if (belongs) text += static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
        word = belongs;
    }
    return text + ".png";
}

}  // namespace

StagePictures::StagePictures(ISPMain& model, SaveWindow save, std::string folder)
    : model_(model), save_(std::move(save)), folder_(std::move(folder)), observing_(model, *this) {}

void StagePictures::Take(std::string_view name) {
    if (folder_.empty()) return;
    const std::string path = folder_ + "/" + FileName(++count_, name);
    if (!save_(path)) std::cerr << "keplin-demo: cannot write " << path << "\n";
}

void StagePictures::Changed(const Control& control, const PropertyBase& property) {
    const Aspect aspect = property.Which;
    if (&control == &model_.lblResults && aspect == Aspect::Caption) {
        Take(model_.lblResults.Caption.Get());
    }
    if (&control == &model_.lblPrgm && aspect == Aspect::Caption) {
        Take(model_.lblPrgm.Caption.Get());
    }
    const bool programming = model_.ProgressBar1.Counts == ProgressBar::Unit::Lines;
    if (&control == &model_.ProgressBar1 && aspect == Aspect::Value && programming &&
        model_.ProgressBar1.Done() >= 0.5F && !std::exchange(middleTaken_, true)) {
        Take("Programming, half done");
    }
}

}  // namespace keplin
