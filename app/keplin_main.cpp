// keplin: the program that a technician installs updates with, on the computer's serial ports.
#include <QApplication>

#include "app/program.h"
#include "device/port_list.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName("keplin");
    QApplication::setDesktopFileName("keplin");
    keplin::Program program(keplin::NumberedComputerPorts(), {});
    program.handlers.Main();
    return QApplication::exec();
}
