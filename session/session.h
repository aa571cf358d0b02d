// One use of the program, from its start-up to its closing: one handler for each event of a
// control.
#pragma once

#include <functional>

#include "device/device_exchange.h"
#include "device/port_search.h"
#include "device/serial_port.h"
#include "platform/desktop.h"
#include "ui/isp_main.h"
#include "update/update_file.h"
#include "update/update_run.h"

namespace keplin {

// What stands behind one window. It answers the window's events from its making on; window, port
// and desktop must outlive it, and no event of the window may come after it.
class Session {
  public:
    Session(ISPMain& window, SerialPort& port, Desktop& desktop);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // The program begins here: shows the window with the getting-started page.
    void Main();

  private:
    void Next_1_Click();
    void cmdPortTest_Click();
    void ShowFoundPort(std::int16_t port);
    void Next_2_Click();
    void Command1_Click();
    void cmdExit_Click();
    void Timer1_Tick();
    void Form_CloseRequest();
    void Form_Unload();

    // A handler as the window calls it: passed over once the window is closing. A failure ends the
    // handler, never the program.
    using Handler = void (Session::*)();
    std::function<void()> On(Handler handler);

    ISPMain& window_;
    Desktop& desktop_;
    DeviceExchange controller_;
    PortSearch search_;
    UpdateFile file_;
    UpdateRun run_;

    bool lineInUse_ = false;  // by a port search or an update run: only one of them at a time
    bool ticking_ = false;
    bool closing_ = false;
};

}  // namespace keplin
