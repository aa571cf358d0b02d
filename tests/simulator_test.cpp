// The simulated controller: its loader and its faults.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "simulator/faulty_device.h"
#include "simulator/loader.h"

namespace keplin::simulator {
namespace {

const std::string kCalibration = ":010000020CF1";
const std::string kErase1 = ":020000030100FA";
const std::string kData = ":03000000010203F7";  // 01 02 03 from 0000 on

std::string Send(DeviceEnd& device, std::string_view text) {
    Reply answer;
    for (const char character : text) {
        device.Receive(static_cast<std::uint8_t>(character), answer);
    }
    std::string result;
    for (const SentByte byte : answer) {
        result.push_back(static_cast<char>(byte.value));
    }
    return result;
}

bool SameMemory(const Flash& one, const Flash& other) {
    return std::ranges::equal(one.Cells(), other.Cells());
}

TEST(SimulatedLoader, EchoesARecordAsItComesAndObeys) {
    Loader loader;
    EXPECT_EQ(Send(loader, "U\r\nabcU.:01000002"), "UU:01000002");
    EXPECT_EQ(Send(loader, "0CF1"), "0CF1.\r\n");
    EXPECT_EQ(Send(loader, ":010000020cf1"), ":010000020cf1.\r\n");
    EXPECT_EQ(Send(loader, ":0100.0:00000001FF"), ":0100H\r\n:00000001FF.\r\n");
    EXPECT_EQ(loader.ObeyedRecords(),
              (std::vector<std::string>{kCalibration, ":010000020cf1", ":00000001FF"}));
}

TEST(SimulatedLoader, RefusesEachWithItsLetterAndKeepsItsMemory) {
    struct Case {
        bool calibrated;
        std::string record;
        char letter;
    };
    const std::vector<Case> cases{
        {true, ":03000000010203F8", 'S'}, {true, ":00000004FC", 'T'},
        {true, ":0100000100FE", 'F'},     {true, ":010000020DF0", 'F'},
        {true, ":020000030700F4", 'F'},   {false, kErase1, 'N'},
        {false, ":01800000017E", 'N'},    {true, kData, 'W'},
        {true, ":02FFFF000102FD", 'R'},
    };
    for (const Case& one : cases) {
        Loader loader;
        if (one.calibrated) Send(loader, kCalibration);
        EXPECT_EQ(Send(loader, one.record), one.record + one.letter + "\r\n");
        EXPECT_TRUE(SameMemory(loader.Memory(), Flash())) << one.record;
    }
}

TEST(SimulatedLoader, ErasesEachBlockWhollyAndNoOther) {
    struct Case {
        std::string record;
        std::size_t first;
        std::size_t end;
    };
    const std::vector<Case> cases{
        {":020000030100FA", 0x0000, 0x2000},
        {":020000030120DA", 0x2000, 0x4000},
        {":020000030140BA", 0x4000, 0x8000},
    };
    for (const Case& one : cases) {
        Loader loader;
        Send(loader, kCalibration + ":01800000116E:01BFFF00443D:01C00000221D:01FFFF0033CE");
        std::vector<std::uint8_t> expected(loader.Memory().Cells().begin(),
                                           loader.Memory().Cells().end());
        EXPECT_EQ(expected[0xFFFF], 0x33);
        std::fill(expected.data() + one.first, expected.data() + one.end, Flash::kErased);
        EXPECT_EQ(Send(loader, one.record), one.record + ".\r\n");
        EXPECT_TRUE(std::ranges::equal(loader.Memory().Cells(), expected)) << one.record;
    }
}

TEST(SimulatedLoader, WritesDataOnceAndForgetsItsCalibrationWithThePower) {
    Loader loader;
    Send(loader, kCalibration + kErase1 + kData);
    const auto cells = loader.Memory().Cells().first(4);
    EXPECT_EQ(std::vector(cells.begin(), cells.end()), (std::vector<std::uint8_t>{1, 2, 3, 0xFF}));
    EXPECT_EQ(Send(loader, kData), kData + "W\r\n");
    Send(loader, ":01");
    loader.Restart();
    EXPECT_EQ(Send(loader, kErase1), kErase1 + "N\r\n");
}

TEST(SimulatedFaults, NamesAreReadWithTheirPlace) {
    for (const Fault& fault : FaultTable()) {
        const std::string name(fault.name);
        EXPECT_EQ(ParseFault(name + "@7"), (FaultAt{fault.kind, 7, false}));
        EXPECT_EQ(ParseFault(name + "@12+"), (FaultAt{fault.kind, 12, true}));
    }
    for (const char* text : {"", "silence", "silence@", "silence@0", "silence@-1", "silence@1x",
                             "silence@1++", "silence@99999999999", "quiet@1", "@1"}) {
        EXPECT_EQ(ParseFault(text), std::nullopt) << text;
    }
}

// What becomes of the reply to the calibration when a fault strikes it, and only it.
TEST(SimulatedFaults, EachChangesOneReply) {
    const std::string echo = kCalibration;
    const std::string honest = echo + ".\r\n";
    struct Case {
        FaultKind kind;
        std::string reply;
        bool obeyed = true;
    };
    const std::vector<Case> cases{
        {FaultKind::Silence, ""},
        {FaultKind::LowerCase, ":010000020cf1.\r\n"},
        {FaultKind::NoDot, echo + "\r\n"},
        {FaultKind::LateDot, echo + "\r\n."},
        {FaultKind::NoLineFeed, echo + ".\r"},
        {FaultKind::Babble, ""},
        {FaultKind::Slow, honest},
        {FaultKind::Refused, echo + "Z\r\n", false},
        {FaultKind::HangUp, "", false},
        {FaultKind::PowerLost, "", false},
        {FaultKind::PowerLostHalf, "", false},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(FaultOf(one.kind).name);
        Loader loader;
        FaultyDevice device(loader, 1);
        device.Inject({one.kind, 2, false});
        EXPECT_EQ(Send(device, "U"), "U");
        EXPECT_EQ(Send(device, kCalibration), one.reply);
        EXPECT_EQ(loader.ObeyedRecords().size(), one.obeyed ? 1u : 0u);
        if (device.HungUp()) device.LineClosed();
        EXPECT_EQ(Send(device, "a line U" + kCalibration), "U" + honest);
        EXPECT_EQ(device.ExchangesSeen(), 5);
        ASSERT_EQ(device.Injections().size(), 1u);
        const Injection& done = device.Injections()[0];
        EXPECT_EQ(std::tie(done.exchange, done.sent), std::tuple(2, one.reply));
        EXPECT_EQ(done.honest, one.obeyed ? honest : "");
    }
}

TEST(SimulatedFaults, PowerLostInAnEraseLeavesTheBlockOrHalfOfIt) {
    const Flash untouched;
    Flash halfErased;
    halfErased.Erase({0, 0x1000});
    for (const auto kind : {FaultKind::PowerLost, FaultKind::PowerLostHalf}) {
        Loader loader;
        FaultyDevice device(loader, 1);
        device.Inject({kind, 2, false});
        Send(device, kCalibration);
        EXPECT_EQ(Send(device, kErase1), "");
        const Flash& expected = kind == FaultKind::PowerLost ? untouched : halfErased;
        EXPECT_TRUE(SameMemory(loader.Memory(), expected));
        EXPECT_EQ(Send(device, kErase1), kErase1 + "N\r\n");
    }
}

}  // namespace
}  // namespace keplin::simulator
