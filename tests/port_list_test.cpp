// Which serial ports a computer has, on folders laid out like those of a Linux system.
#include "device/posix/port_list.h"

#include <gtest/gtest.h>

#include <utility>

#include "tests/support/temporary_file.h"

namespace keplin::test {
namespace {

namespace fs = std::filesystem;

TEST(PortList, ListsUsbThenModemThenBoardPortsByNumber) {
    const TemporaryFolder root;
    const fs::path devices = root.Path() / "dev";
    const fs::path classes = root.Path() / "class";
    EXPECT_TRUE(ComputerPorts(devices, classes).empty());

    fs::create_directory(devices);
    const std::pair<const char*, const char*> boardPorts[] = {
        {"ttyS0", "0"}, {"ttyS11", "4"}, {"ttyS3", "16"}, {"ttyS5", ""}};
    for (const auto& [name, type] : boardPorts) {
        std::ofstream(devices / name).flush();
        fs::create_directories(classes / name);
        std::ofstream(classes / name / "type") << type << '\n';
    }
    for (const char* name : {"ttyS4", "ttyACM0", "ttyUSB10", "ttyUSB2", "ttyUSB", "ttyUSB3a",
                             "ttyUSB-1", "ttyUSB99999999999999999999", "ttySLAB0", "tty1"}) {
        std::ofstream(devices / name).flush();
    }
    std::vector<std::string> expected;
    for (const char* name : {"ttyUSB2", "ttyUSB10", "ttyACM0", "ttyS3", "ttyS11"})
        expected.push_back(devices / name);
    EXPECT_EQ(ComputerPorts(devices, classes), expected);
}

}  // namespace
}  // namespace keplin::test
