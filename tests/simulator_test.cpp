// The simulated controller: its loader, its faults and the wire it hangs on.
#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "simulator/faulty_device.h"
#include "simulator/wire.h"

namespace keplin::simulator {
namespace {

const std::string kCalibration = ":010000020CF1";
const std::string kErase1 = ":020000030100FA";
const std::string kData = ":03000000010203F7";  // 01 02 03 from 0000 on

std::string Send(DeviceEnd& device, std::string_view text) {
    Reply answer;
    for (const char character : text)
        device.Receive(static_cast<std::uint8_t>(character), answer);
    std::string result;
    for (const SentByte byte : answer)
        result.push_back(static_cast<char>(byte.value));
    return result;
}

// One with faults, on its wire.
struct FaultyController {
    FaultyController(std::initializer_list<FaultAt> faults, std::uint32_t seed = 1)
        : device(loader, seed) {
        for (const FaultAt fault : faults)
            device.Inject(fault);
    }

    Loader loader;
    FaultyDevice device;
    Wire wire{device};
};

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
    Loader loader;
    const auto old = loader.Memory().Cells().first(0x8000);  // a program, from one end to the other
    EXPECT_EQ(std::ranges::count(old, Flash::kErased), 0);
    // Each record with the letter that comes behind its echo.
    const std::vector<std::string> cases{
        kErase1 + " N",      ":01800000017E N",   kCalibration + " .", ":03000000010203F8 S",
        ":00000004FC T",     ":0100000100FE F",   ":010000020DF0 F",   ":020000030700F4 F",
        ":020001030100F9 F", ":020000020100FB F", kData + " W",        ":02FFFF000102FD R"};
    for (const std::string& text : cases) {
        const std::string record = text.substr(0, text.size() - 2);
        EXPECT_EQ(Send(loader, record), record + text.back() + "\r\n");
        EXPECT_TRUE(SameMemory(loader.Memory(), Flash())) << record;
    }
}

TEST(SimulatedLoader, ErasesEachBlockWhollyAndNoOther) {
    const std::pair<std::string, Block> erasures[] = {
        {":020000030100FA", {0x0000, 0x2000}},
        {":020000030120DA", {0x2000, 0x2000}},
        {":020000030140BA", {0x4000, 0x4000}},
    };
    for (const auto& [record, block] : erasures) {
        Loader loader;
        Send(loader, kCalibration + ":01800000116E:01BFFF00443D:01C00000221D:01FFFF0033CE");
        std::vector expected(loader.Memory().Cells().begin(), loader.Memory().Cells().end());
        EXPECT_TRUE(expected[0x8000] == 0x11 && expected[0xFFFF] == 0x33);
        std::fill_n(expected.data() + block.first, block.size, Flash::kErased);
        EXPECT_EQ(Send(loader, record), record + ".\r\n");
        EXPECT_TRUE(std::ranges::equal(loader.Memory().Cells(), expected)) << record;
    }
}

TEST(SimulatedLoader, WritesDataOnceAndForgetsItsCalibrationWithThePower) {
    Loader loader;
    Send(loader, kCalibration + kErase1 + kData);
    const auto cells = loader.Memory().Cells().first(4);
    EXPECT_EQ(std::vector(cells.begin(), cells.end()), (std::vector<std::uint8_t>{1, 2, 3, 0xFF}));
    EXPECT_EQ(Send(loader, kData), kData + "W\r\n");
    const std::string overlapping = ":03000200010203F5";
    EXPECT_EQ(Send(loader, overlapping), overlapping + "W\r\n");
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
                             "silence@1++", "silence@99999999999", "quiet@1", "@1"})
        EXPECT_EQ(ParseFault(text), std::nullopt) << text;
}

// What becomes of the reply to the calibration when a fault strikes it, and only it.
TEST(SimulatedFaults, EachChangesOneReply) {
    const std::string echo = kCalibration;
    const std::string honest = echo + ".\r\n";
    const std::tuple<FaultKind, std::string, bool> cases[] = {
        {FaultKind::Silence, "", true},
        {FaultKind::LowerCase, ":010000020cf1.\r\n", true},
        {FaultKind::NoDot, echo + "\r\n", true},
        {FaultKind::LateDot, echo + "\r\n.", true},
        {FaultKind::NoLineFeed, echo + ".\r", true},
        {FaultKind::Babble, "", true},
        {FaultKind::Slow, honest, true},
        {FaultKind::Refused, echo + "Z\r\n", false},
        {FaultKind::HangUp, "", false},
        {FaultKind::PowerLost, "", false},
        {FaultKind::PowerLostHalf, "", false},
    };
    for (const auto& [kind, reply, obeyed] : cases) {
        SCOPED_TRACE(FaultOf(kind).name);
        FaultyController faulty({{kind, 2}});
        FaultyDevice& device = faulty.device;
        EXPECT_EQ(Send(device, "?"), "");
        EXPECT_EQ(Send(device, kCalibration), reply);
        EXPECT_EQ(faulty.loader.ObeyedRecords().size(), obeyed ? 1u : 0u);
        if (device.HungUp()) device.LineClosed();
        EXPECT_EQ(Send(device, "a line U" + kCalibration), "U" + honest);
        EXPECT_EQ(device.ExchangesSeen(), 5);
        ASSERT_EQ(device.Injections().size(), 1u);
        const Injection& done = device.Injections()[0];
        EXPECT_EQ(std::tie(done.exchange, done.sent, done.honest),
                  std::tuple(2, reply, obeyed ? honest : ""));
    }
}

TEST(SimulatedFaults, StrayBytesAreNoneOfTheReplyAndHaveNoEndOfALine) {
    for (std::uint32_t seed = 0; seed < 1000; ++seed) {
        FaultyController faulty(
            {{FaultKind::ByteFirst, 1}, {FaultKind::Noise, 2}, {FaultKind::Babble, 3}}, seed);
        const std::string first = Send(faulty.device, "U");
        ASSERT_TRUE(first.size() == 2 && first[0] != 'U' && first[1] == 'U') << seed;
        const std::string noisy = Send(faulty.device, "U");
        ASSERT_TRUE(noisy.size() > 1 && noisy[0] == 'U') << seed;
        Reply babble;
        ASSERT_EQ(Send(faulty.device, "U"), "");
        for (int i = 0; i < 5000; ++i)
            faulty.device.LineIdle(babble);
        ASSERT_GT(babble.size(), 4200u) << seed;
        ASSERT_TRUE(std::ranges::none_of(babble, [](SentByte byte) { return byte.value == '\n'; }));
    }
}

TEST(SimulatedFaults, PowerLostInAnEraseLeavesTheBlockOrHalfOfIt) {
    Flash expected;
    for (const auto kind : {FaultKind::PowerLost, FaultKind::PowerLostHalf}) {
        FaultyController faulty({{kind, 2}});
        Send(faulty.device, kCalibration);
        EXPECT_EQ(Send(faulty.device, kErase1), "");
        EXPECT_TRUE(SameMemory(faulty.loader.Memory(), expected));
        EXPECT_EQ(Send(faulty.device, kErase1), kErase1 + "N\r\n");
        expected.Erase({0, 0x1000});
    }
}

TEST(SimulatedWire, EachByteTakesItsTimeInBothDirections) {
    using namespace std::chrono_literals;
    EXPECT_EQ(kByteTime, 260417ns);
    Loader loader;
    Wire wire(loader);
    const std::string record = ":00000001FF";
    wire.HostSends(std::vector<std::uint8_t>(record.begin(), record.end()), 5ms);
    Time due = 5ms + kByteTime;
    for (const char byte : record + ".\r\n") {
        due += kByteTime;
        EXPECT_EQ(wire.ReadAtHost(due - 1ns), std::nullopt);
        EXPECT_EQ(wire.ReadAtHost(due), byte);
    }
    EXPECT_EQ(wire.NextEvent(), std::nullopt);
}

TEST(SimulatedWire, ADeviceAtRestMayGoOnSending) {
    FaultyController faulty({{FaultKind::Babble, 1, true}});
    faulty.wire.HostSends(std::vector<std::uint8_t>{'U'}, Time{0});
    for (int i = 2; i < 50; ++i)
        EXPECT_NE(faulty.wire.ReadAtHost(i * kByteTime), std::nullopt) << i;
}

TEST(SimulatedWire, AHangUpLosesWhatIsOnItsWayAndWhatIsSentBeforeItIsNoticed) {
    FaultyController faulty({{FaultKind::HangUp, 2}});
    Wire& wire = faulty.wire;
    wire.HostSends(std::vector<std::uint8_t>{'U', ':', 'U'}, Time{0});
    EXPECT_EQ(wire.ReadAtHost(2 * kByteTime), std::nullopt);
    wire.HostSends(std::vector<std::uint8_t>{'U'}, 2 * kByteTime);
    EXPECT_TRUE(wire.PlugIn());
    EXPECT_EQ(wire.ReadAtHost(9 * kByteTime), std::nullopt);
}

}  // namespace
}  // namespace keplin::simulator
