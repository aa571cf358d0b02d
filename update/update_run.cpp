#include "update/update_run.h"

#include <string>

#include "platform/pass_over.h"
#include "ui/activity.h"
#include "update/erase_phase.h"

namespace keplin {
namespace {

using namespace std::chrono_literals;

// Keeps the computer from falling asleep for as long as this exists: a favour, whose failure is
// passed over.
class AwakeWhile {
  public:
    explicit AwakeWhile(Desktop& desktop) : desktop_(desktop) { Keep(true); }
    ~AwakeWhile() { Keep(false); }
    AwakeWhile(const AwakeWhile&) = delete;
    AwakeWhile& operator=(const AwakeWhile&) = delete;

  private:
    void Keep(bool awake) {
        PassOver([&] { desktop_.KeepAwake(awake); });
    }

    Desktop& desktop_;
};

}  // namespace

void UpdateRun::Run() {
    window_.cmdExit.Enabled = false;
    const AwakeWhile running(desktop_);
    PassOver([&] {
        if (!EraseAndProgram()) return;
        ShowUpdateComplete();
        window_.lblPrgm.Visible = false;
    });
    StopActivity(window_);
    window_.cmdExit.Enabled = true;
}

bool UpdateRun::EraseAndProgram() {
    controller_.ReopenLostLine();
    if (!ReachLoader()) return false;
    StartActivity(window_);
    if (!EraseDevice(window_, controller_, desktop_)) return false;
    ShowAllErased();
    if (!StartProgramming()) return false;
    return SendLines();
}

bool UpdateRun::ReachLoader() {
    return controller_.PingDevice() && controller_.SendCalibration();
}

void UpdateRun::ShowAllErased() {
    window_.ProgressBar1.Visible = false;
    window_.lblPrgm.Caption = "All Blocks Erased";
    desktop_.YieldOnce();
    window_.ProgressBar1.Counts = ProgressBar::Unit::Lines;
    window_.ProgressBar1.Min = 0;
    window_.ProgressBar1.Max = static_cast<float>(file_.LineCount);
    window_.ProgressBar1.Value = 0;
    desktop_.Sleep(2000ms);
}

bool UpdateRun::StartProgramming() {
    if (!controller_.PingDevice()) return false;
    window_.lblPrgm.Caption = "Programming Device";
    window_.ProgressBar1.Visible = true;
    if (!controller_.SendCalibration()) return false;
    desktop_.YieldOnce();
    return true;
}

// A line that was not acknowledged is not sent again: it may have been written, and only its echo
// lost. The next run begins with an erase.
bool UpdateRun::SendLines() {
    const auto& lines = file_.HexLines;
    for (std::size_t i = 0; i < lines.size() && !lines[i].empty(); ++i) {
        if (!controller_.SendDataLine(lines[i])) {
            window_.lblPrgm.Caption = "Programming Failed at Line " + std::to_string(i + 1);
            return false;
        }
        window_.ProgressBar1.Value = static_cast<float>(i);
    }
    return true;
}

void UpdateRun::ShowUpdateComplete() {
    auto& lblPrg = window_.lblPrg;
    window_.Command1.Visible = false;
    window_.Frame2.Caption = kUpdateComplete;
    window_.ProgressBar1.Visible = false;
    window_.Label10.Visible = false;
    for (Label& line : lblPrg)
        line.Caption = "";
    window_.cmdExit.Caption = "Finish";
    lblPrg[0].Caption = "Congratulations programming is now complete.";
    lblPrg[0].Bold = true;
    lblPrg[1].Caption = "Turn off power to the QDX-470 controller and disconnect the serial cable.";
    lblPrg[2].Caption =
        "Re-apply power and verify the voice announces the correct update version number.";
    lblPrg[3].Caption = "Close this program";
    desktop_.YieldOnce();
}

}  // namespace keplin
