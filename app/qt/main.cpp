// keplin: the program that a technician installs updates with, on the computer's serial ports.
#include "app/qt/application.h"
#include "app/qt/manual_key.h"
#include "app/qt/program.h"
#include "device/posix/port_list.h"

int main(int argc, char** argv) {
    const auto application = keplin::OpenDisplay(argc, argv, "keplin");
    keplin::Program program([] { return keplin::ComputerPorts(); }, {});
    keplin::OpenManualOnF1(program.drawing);
    program.session.Main();
    return QApplication::exec();
}
