// Which changes of the window are spoken: what a technician who does not see it would miss.
#pragma once

#include <string>
#include <vector>

#include "ui/isp_main.h"

namespace keplin {

class SpokenTexts {
  public:
    explicit SpokenTexts(const ISPMain& model) : model_(model) {}

    // Takes note of a change. True when there is something new to speak.
    bool Changed(const Control& control, Aspect aspect);

    [[nodiscard]] bool IsAnyNew() const { return fresh_.runStopped || !fresh_.texts.empty(); }

    // Nothing of it is new any more: nobody listened.
    void Drop() { fresh_ = {}; }

    // All that is new since the last call, as one message; a text that changed twice as it is now.
    // "" when nothing is new.
    [[nodiscard]] std::string Take();

    // What was taken last, as far as it can still be seen.
    [[nodiscard]] std::string Latest() const;

  private:
    // Texts in the order in which they came.
    struct News {
        std::vector<const Control*> texts;
        bool runStopped = false;
    };

    // No job is under way, and the page still offers an update. Right after one: it did not
    // complete.
    [[nodiscard]] bool RunStopped() const;
    [[nodiscard]] bool CanBeRead(const Control& control) const;
    void Add(const Control& control);
    void FollowJob();

    const ISPMain& model_;
    News fresh_;
    News taken_;
    ISPMain::Job job_ = ISPMain::Job::None;
};

}  // namespace keplin
