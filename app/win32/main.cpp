// keplin: the program that a technician installs updates with, on the computer's serial ports.
#include "app/win32/program.h"
#include "device/win32/port_list.h"
#include "device/win32/win32_port.h"

int main() {
    keplin::WindowsProgram<keplin::Win32Port>([] { return keplin::ComputerPorts(); }, {}).Run();
}
