// The program with its event loop and without its drawing, on a serial line of the virtual machine.
#pragma once

#include <poll.h>

#include <QWidget>

#include "device/posix/port_list.h"
#include "device/posix/posix_port.h"
#include "session/session.h"
#include "ui/qt/qt_desktop.h"

namespace keplin::test {

// The desktop of a slow computer, on which the answer that is given 50 ms may take a second.
class MachineDesktop : public qt::QtDesktop {
  public:
    using Milliseconds = std::chrono::milliseconds;
    static constexpr Milliseconds kAnswerTime{50};

    MachineDesktop(QWidget& window, PosixPort& port)
        : QtDesktop(window, port, {.openFile = [this](const auto&) { return File; }}) {
        port.OnLineChange = [this, watch = port.OnLineChange](int line) { watch(line_ = line); };
    }

    void Sleep(Milliseconds duration) override {
        if (OnSleep) OnSleep(duration);
        const bool answer = duration == kAnswerTime;
        QtDesktop::Sleep(answer ? duration : duration / Hurry);
        pollfd waiting{.fd = line_, .events = POLLIN, .revents = 0};
        if (answer && line_ >= 0) ::poll(&waiting, 1, 1000);
    }

    std::string File;  // chosen in the open-file dialog
    int Hurry = 10;    // the pauses are that many times shorter
    std::function<void(Milliseconds)> OnSleep;

  private:
    int line_ = -1;
};

struct Program {
    explicit Program(DevicePaths ports = [] { return ComputerPorts(); }) : port(std::move(ports)) {
        session.Main();
    }

    // Whether a port was found.
    bool ReachProgramPage(const std::string& file) {
        desktop.File = file;
        window.Next_1.Press();
        window.cmdPortTest.Press();
        window.Next_2.Press();
        return window.PicProgram.Visible;
    }

    // Whether the window says that the update is complete.
    bool Update() {
        window.Command1.Press();
        return window.UpdateComplete();
    }

    ISPMain window;
    PosixPort port;
    QWidget drawing;
    MachineDesktop desktop{drawing, port};
    Session session{window, port, desktop};
};

}  // namespace keplin::test
