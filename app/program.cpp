#include "app/program.h"

#include <utility>

namespace keplin {
namespace {

qt::QtDesktop::Hooks ForPort(qt::QtDesktop::Hooks hooks, PosixPort& port) {
    hooks.awaitsByte = [&port] { return port.TakeIdle(); };
    hooks.hungUp = [&port] { port.CheckLine(); };
    // Left to the end of the process, a port with unsent bytes could hold that up for half a
    // minute.
    hooks.beforeEnd = [&port, end = std::move(hooks.beforeEnd)] {
        port.Close();
        return end ? end() : 0;
    };
    return hooks;
}

}  // namespace

Program::Program(DevicePaths ports, qt::QtDesktop::Hooks hooks)
    : port(std::move(ports)),
      drawing(window),
      desktop(drawing, ForPort(std::move(hooks), port)),
      session(window, port, desktop) {
    port.OnLineChange = [this](int descriptor) { desktop.WatchLine(descriptor); };
}

Program::~Program() {
    port.Close();  // as long as there is somebody to be told
}

}  // namespace keplin
