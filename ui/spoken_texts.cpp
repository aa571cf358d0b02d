#include "ui/spoken_texts.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace keplin {
namespace {

// A run that stops may leave every text as it was: only the eye is told, by the blue block that is
// gone and by Close, which can be pressed again.
constexpr std::string_view kRunStopped = "The update has stopped.";

// Sentence by sentence, so that the voice pauses between two texts.
void Append(std::string& message, std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return;
    if (!message.empty()) message += message.back() == '.' ? " " : ". ";
    message += text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

bool SpokenTexts::Changed(const Control& control, Aspect aspect) {
    Add(control);
    if (aspect == Aspect::Visible) {
        // Labels that come with their page; what a frame holds is read when the focus enters it.
        for (const Control* other : model_.Controls()) {
            if (other->Container == &control && dynamic_cast<const Label*>(other)) Add(*other);
        }
    }
    if (&control == &model_.cmdExit && aspect == Aspect::Enabled) FollowJob();
    return IsAnyNew();
}

void SpokenTexts::FollowJob() {
    const ISPMain::Job before = std::exchange(job_, model_.UnderWay());
    if (before != ISPMain::Job::Update || !RunStopped()) return;
    Add(model_.lblPrgm);
    fresh_.runStopped = true;
}

std::string SpokenTexts::Take() {
    if (!IsAnyNew()) return "";
    taken_ = std::exchange(fresh_, {});
    return Latest();
}

std::string SpokenTexts::Latest() const {
    std::string message;
    for (const Control* control : taken_.texts) {
        if (CanBeRead(*control)) Append(message, control->TextToRead());
    }
    if (taken_.runStopped && RunStopped()) Append(message, kRunStopped);
    return message;
}

bool SpokenTexts::RunStopped() const {
    return model_.UnderWay() == ISPMain::Job::None && model_.Command1.Shown();
}

bool SpokenTexts::CanBeRead(const Control& control) const {
    return model_.Visible && control.Shown() && !control.TextToRead().empty();
}

void SpokenTexts::Add(const Control& control) {
    auto& texts = fresh_.texts;
    const bool known = std::find(texts.begin(), texts.end(), &control) != texts.end();
    if (!known && CanBeRead(control)) texts.push_back(&control);
}

}  // namespace keplin
