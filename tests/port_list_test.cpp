// Which serial ports a computer has, on folders laid out like those of a Linux system.
#include "device/posix/port_list.h"

#include <gtest/gtest.h>

#include "tests/support/temporary_file.h"

namespace keplin::test {
namespace {

namespace fs = std::filesystem;

class PortList : public ::testing::Test {
  protected:
    void Add(const std::string& name, const char* type = nullptr) const {
        fs::create_directories(devices_);
        std::ofstream(devices_ / name).flush();
        if (type == nullptr) return;
        fs::create_directories(classes_ / name);
        std::ofstream(classes_ / name / "type") << type << '\n';
    }

    const TemporaryFolder root_;
    const fs::path devices_ = root_.Path() / "dev";
    const fs::path classes_ = root_.Path() / "class";
};

TEST_F(PortList, ListsUsbThenModemThenBoardPortsByNumber) {
    for (const char* name : {"ttyS4", "ttyACM0", "ttyUSB10", "ttyUSB2", "ttyUSB", "ttyUSB3a",
                             "ttyUSB-1", "ttyUSB99999999999999999999", "ttySLAB0", "tty1"}) {
        Add(name);
    }
    Add("ttyS0", "0");
    Add("ttyS11", "4");
    Add("ttyS3", "16");
    Add("ttyS5", "");

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
