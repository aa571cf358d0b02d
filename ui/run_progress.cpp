#include "ui/run_progress.h"

#include <cmath>

namespace keplin {

RunProgress RunProgressOf(const ISPMain& window) {
    using enum RunProgress::State;
    if (!window.Visible || !window.ProgressBar1.Shown()) return {};
    const int percent = static_cast<int>(std::lround(100 * window.ProgressBar1.Done()));
    return {window.cmdExit.Enabled ? Stopped : UnderWay, percent};
}

}  // namespace keplin
