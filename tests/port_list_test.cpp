// Which serial ports a computer has, on folders laid out like those of a Linux system.
#include "device/posix/port_list.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>

namespace keplin::test {
namespace {

namespace fs = std::filesystem;

class PortList : public ::testing::Test {
  protected:
    void TearDown() override { fs::remove_all(root_); }

    void AddDevice(const std::string& name) const {
        fs::create_directories(devices_);
        std::ofstream(devices_ / name).flush();
    }
    void AddBoardPort(const std::string& name, const std::string& type) const {
        AddDevice(name);
        fs::create_directories(classes_ / name);
        std::ofstream(classes_ / name / "type") << type << '\n';
    }

    const fs::path root_ = fs::temp_directory_path() / ("keplin-ports-" + std::to_string(getpid()));
    const fs::path devices_ = root_ / "dev";
    const fs::path classes_ = root_ / "class";
};

TEST_F(PortList, ListsUsbThenModemThenBoardPortsByNumber) {
    for (const char* name : {"ttyS4", "ttyACM0", "ttyUSB10", "ttyUSB2", "ttyUSB", "ttyUSB3a",
                             "ttyUSB-1", "ttyUSB99999999999999999999", "ttySLAB0", "tty1"}) {
        AddDevice(name);
    }
    AddBoardPort("ttyS0", "0");
    AddBoardPort("ttyS11", "4");
    AddBoardPort("ttyS3", "16");
    AddBoardPort("ttyS5", "");

    const auto path = [this](const char* name) { return (devices_ / name).string(); };
    EXPECT_EQ(ComputerPorts(devices_, classes_),
              (std::vector{path("ttyUSB2"), path("ttyUSB10"), path("ttyACM0"), path("ttyS3"),
                           path("ttyS11")}));
}

TEST_F(PortList, IsEmptyWithoutTheFolders) {
    EXPECT_TRUE(ComputerPorts(devices_, classes_).empty());
}

}  // namespace
}  // namespace keplin::test
