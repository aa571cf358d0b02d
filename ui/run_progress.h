// How an update stands, for what shows it outside the window.
#pragma once

#include "ui/isp_main.h"

namespace keplin {

struct RunProgress {
    enum class State { None, UnderWay, Stopped };

    State state = State::None;
    int percent = 0;  // of the progress bar, while it is shown
    friend bool operator==(const RunProgress&, const RunProgress&) = default;
};

// A bar that stands still while Close can be pressed is that of a run that stopped.
RunProgress RunProgressOf(const ISPMain& window);

}  // namespace keplin
