// keplin-bench-start: the program up to its first page.
#include "app/win32/program.h"
#include "benchmarks/win32/painted.h"
#include "device/win32/port_list.h"
#include "device/win32/win32_port.h"

int main() {
    keplin::WindowsProgram<keplin::Win32Port> program([] { return keplin::ComputerPorts(); }, {});
    program.session.Main();
    keplin::benchmarks::TellWhenPainted(program.drawing.Handle());
}
