#include "app/program.h"

#include <utility>

namespace keplin {
namespace {

qt::QtDesktop::Hooks ForPort(qt::QtDesktop::Hooks hooks, PosixPort& port) {
    hooks.idleDescriptor = [&port] { return port.TakeIdleDescriptor(); };
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
      handlers(window, port, desktop) {}

}  // namespace keplin
