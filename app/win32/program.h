// The program as Windows draws it, with one port or another.
#pragma once

#include <utility>

#include "app/program.h"
#include "app/win32/manual_key.h"
#include "ui/win32/main_window.h"
#include "ui/win32/win32_desktop.h"

namespace keplin {

template <typename Port>
struct WindowsProgram : ProgramOf<Port, win32::MainWindow, win32::Win32Desktop> {
    using Base = ProgramOf<Port, win32::MainWindow, win32::Win32Desktop>;

    template <typename Ports>
    WindowsProgram(Ports&& ports, StandardDesktop::Hooks hooks)
        : Base(std::forward<Ports>(ports), std::move(hooks)) {
        Base::drawing.OnHelp = OpenManual;
    }

    // Shows the window and works until the program ends.
    [[noreturn]] void Run() {
        Base::session.Main();
        Base::desktop.Run();
    }
};

}  // namespace keplin
