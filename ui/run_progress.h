// How an update stands, for what shows it outside the window.
#pragma once

#include "ui/isp_main.h"

namespace keplin {

struct RunProgress {
    enum class State { None, UnderWay, Stopped };

    State state = State::None;
    int percent = 0;  // of the progress bar; 0 before it is shown
    friend bool operator==(const RunProgress&, const RunProgress&) = default;
};

// How it stands after that control changed. An update that stopped stays so until the next one
// begins.
RunProgress ProgressAfter(const RunProgress& before, const Control& changed, const ISPMain& window);

}  // namespace keplin
