// The update run: erases the controller, sends it every line of the update file, and tells the
// technician how it ended.
#pragma once

#include "device/device_exchange.h"
#include "platform/desktop.h"
#include "ui/isp_main.h"
#include "update/update_file.h"

namespace keplin {

class UpdateRun {
  public:
    UpdateRun(ISPMain& window, DeviceExchange& controller, const UpdateFile& file, Desktop& desktop)
        : window_(window), controller_(controller), file_(file), desktop_(desktop) {}

    // One whole run, from the first ping to the completion page or the step that failed. Whatever
    // the outcome, Close can be pressed again at its end, the activity indicator is off, and the
    // computer may sleep.
    void Run();

  private:
    bool EraseAndProgram();
    bool ReachLoader();
    void ShowAllErased();
    bool StartProgramming();
    bool SendLines();
    void ShowUpdateComplete();

    ISPMain& window_;
    DeviceExchange& controller_;
    const UpdateFile& file_;
    Desktop& desktop_;
};

}  // namespace keplin
