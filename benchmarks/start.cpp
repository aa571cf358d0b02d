// keplin-bench-start: the program up to its first page.
#include "app/qt/program.h"
#include "benchmarks/painted.h"
#include "device/posix/port_list.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    keplin::Program program([] { return keplin::ComputerPorts(); }, {});
    program.session.Main();
    return keplin::benchmarks::TellWhenPainted();
}
