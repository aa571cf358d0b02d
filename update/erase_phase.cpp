#include "update/erase_phase.h"

namespace keplin {

bool EraseDevice(ISPMain& window, DeviceExchange& controller, Desktop& desktop) {
    using namespace std::chrono_literals;
    Label& lblPrgm = window.lblPrgm;
    ProgressBar& ProgressBar1 = window.ProgressBar1;

    if (!controller.PingDevice()) return false;
    ProgressBar1.Counts = ProgressBar::Unit::Percent;
    ProgressBar1.Min = 0;
    ProgressBar1.Max = 100;
    lblPrgm.Visible = true;
    ProgressBar1.Value = 0;
    if (!controller.SendCalibration()) return false;
    lblPrgm.Caption = "Device calibrating for programming";
    desktop.YieldOnce();
    desktop.Sleep(2000ms);

    ProgressBar1.Visible = true;
    lblPrgm.Caption = "Block #1 Erase in Process";
    desktop.YieldOnce();
    if (!controller.SendEraseCommand(1)) return false;
    ProgressBar1.Value = 33;
    desktop.YieldOnce();
    desktop.Sleep(800ms);

    lblPrgm.Caption = "Block #2 Erase in Process";
    desktop.YieldOnce();
    desktop.Sleep(800ms);
    if (!controller.SendEraseCommand(2)) return false;
    ProgressBar1.Value = 66;
    desktop.YieldOnce();

    lblPrgm.Caption = "Block #3 Erase in Process";
    desktop.YieldOnce();
    desktop.Sleep(800ms);
    if (!controller.SendEraseCommand(3)) return false;
    ProgressBar1.Value = 100;
    desktop.YieldOnce();
    desktop.Sleep(800ms);
    return true;
}

}  // namespace keplin
