#include "ui/run_progress.h"

#include <cmath>

namespace keplin {

RunProgress ProgressAfter(const RunProgress& before, const Control& changed,
                          const ISPMain& window) {
    using enum RunProgress::State;
    if (&changed == &window.cmdPortTest) return before;  // see UnderWay
    const ProgressBar& bar = window.ProgressBar1;
    if (window.UnderWay() == ISPMain::Job::Update)
        return {UnderWay, bar.Shown() ? static_cast<int>(std::lround(100 * bar.Done())) : 0};
    if (before.state == None || !window.Command1.Shown()) return {};
    return {Stopped, before.percent};
}

}  // namespace keplin
