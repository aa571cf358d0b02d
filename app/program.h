// The whole program, put together: the window's model, its drawing, the serial port, the desktop
// and the session.
#pragma once

#include "device/posix/posix_port.h"
#include "session/session.h"
#include "ui/isp_main.h"
#include "ui/qt/main_window.h"
#include "ui/qt/qt_desktop.h"

namespace keplin {

struct Program {
    // Needs a QApplication. The hooks that have to do with the line become those of the port, and
    // the port is closed before the program ends.
    Program(DevicePaths ports, qt::QtDesktop::Hooks hooks);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    ISPMain window;
    PosixPort port;
    qt::MainWindow drawing;
    qt::QtDesktop desktop;
    Session session;
};

}  // namespace keplin
