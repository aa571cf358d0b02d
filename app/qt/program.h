// The program as Qt draws it on a POSIX system. Needs a QApplication.
#pragma once

#include "app/program.h"
#include "device/posix/posix_port.h"
#include "ui/qt/main_window.h"
#include "ui/qt/qt_desktop.h"

namespace keplin {

using Program = ProgramOf<PosixPort, qt::MainWindow, qt::QtDesktop>;

}  // namespace keplin
