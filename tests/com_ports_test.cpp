#include "device/com_ports.h"

#include <gtest/gtest.h>

namespace keplin {
namespace {

TEST(ComPorts, KeepTheirNumbersUpToFourAndTheOthersFillTheGaps) {
    using Names = std::vector<std::string>;
    const std::pair<Names, Names> cases[] = {
        {{}, {"", "", "", ""}},
        {{"COM3"}, {"", "", "COM3", ""}},
        {{"COM12", "COM1", "COM7"}, {"COM1", "COM7", "COM12", ""}},
        {{"COM10", "COM9", "COM4", "COM2", "COM11"}, {"COM9", "COM2", "COM10", "COM4", "COM11"}},
        {{"COM4", "COM3", "COM2", "COM1", "COM256"}, {"COM1", "COM2", "COM3", "COM4", "COM256"}},
        {{"COM5", "COM5", "COM2", "COM2"}, {"COM5", "COM2", "", ""}},
        {{"CNCA0", "COM", "COM0", "COM-1", "COM1x", "LPT1", "COM99999999999", ""},
         {"", "", "", ""}},
    };
    for (const auto& [names, ports] : cases)
        EXPECT_EQ(ByPortNumber(names), ports) << testing::PrintToString(names);
}

}  // namespace
}  // namespace keplin
