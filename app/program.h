// The whole program, put together: the window's model, its drawing, the serial port, the desktop
// and the session.
#pragma once

#include <utility>

#include "device/serial_port.h"
#include "platform/standard_desktop.h"
#include "session/session.h"
#include "ui/isp_main.h"

namespace keplin {

// Left to the end of the process, a port with unsent bytes could hold that up for half a minute.
inline StandardDesktop::Hooks ClosingFirst(SerialPort& port, StandardDesktop::Hooks hooks) {
    hooks.beforeEnd = [&port, end = std::move(hooks.beforeEnd)] {
        port.Close();
        return end ? end() : 0;
    };
    return hooks;
}

// With the port of one system, the drawing of one toolkit and what that makes of the desktop, which
// looks after the port's line.
template <typename Port, typename Drawing, typename DesktopOfDrawing>
struct ProgramOf {
    // `ports` is what the port is made of. It is closed before the program ends.
    template <typename Ports>
    ProgramOf(Ports&& ports, StandardDesktop::Hooks hooks)
        : port(std::forward<Ports>(ports)),
          drawing(window),
          desktop(drawing, port, ClosingFirst(port, std::move(hooks))),
          session(window, port, desktop) {}
    ProgramOf(const ProgramOf&) = delete;
    ProgramOf& operator=(const ProgramOf&) = delete;

    ISPMain window;
    Port port;
    Drawing drawing;
    DesktopOfDrawing desktop;
    Session session;
};

}  // namespace keplin
