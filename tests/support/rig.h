// The whole program on the virtual clock: the window's model, its handlers, and a port at whose
// other end a simulated controller stands.
#pragma once

#include "session/session.h"
#include "simulator/loader.h"
#include "tests/support/temporary_file.h"
#include "tests/support/virtual_port.h"

namespace keplin::test {

// Three blocks get data, the last one at its very end.
inline constexpr std::string_view kSmallFile =
    ":0400000001020304F2\r\n:022000005AA5DF\r\n:017FFF00423F\r\n:00000001FF\r\n";

struct Rig : VirtualScreen {
    // `device` is what the wire ends at, in place of the rig's own loader.
    explicit Rig(simulator::DeviceEnd* device = nullptr)
        : port(device != nullptr ? *device : loader, *this) {
        session.Main();
    }

    // As a technician would: to the setup page, the port test, the file, the programming page.
    void ReachProgramPage(const std::string& path) {
        window.Next_1.Press();
        window.cmdPortTest.Press();
        desktop.Answer = path;
        window.Next_2.Press();
    }
    // Whether the window then says that the update is complete.
    bool Update() {
        window.Command1.Press();
        return window.UpdateComplete();
    }

    simulator::Loader loader;
    VirtualPort port;
    Session session{window, port, desktop};
    Observation observing{window, trace};
};

}  // namespace keplin::test
