// The exchange with the controller's loader and the port search, on a port that follows a script.
#include <gtest/gtest.h>

#include <deque>
#include <optional>

#include "app/program.h"
#include "device/com_ports.h"
#include "device/port_search.h"
#include "device/reply_verdict.h"
#include "tests/support/data.h"
#include "tests/support/virtual_desktop.h"

namespace keplin::test {
namespace {

using namespace std::chrono_literals;

// A member that the script does not have next is a failure of the test, and so is what is left of
// the script at the end.
class ScriptedPort : public SerialPort {
  public:
    // The screen's trace notes each member that is called.
    explicit ScriptedPort(VirtualScreen& screen) : screen_(screen) {}
    ~ScriptedPort() override { EXPECT_TRUE(script_.empty()) << "left: " << script_.front().first; }

    // The next member called must be `call`, and gives `result`, or fails where there is none.
    ScriptedPort& Expect(std::string call, std::optional<std::int32_t> result = 0) {
        script_.emplace_back(std::move(call), result);
        return *this;
    }
    ScriptedPort& Fail(std::string call) { return Expect(std::move(call), std::nullopt); }
    ScriptedPort& ExpectDiscardStep() { return Expect("Setting47 -1").Expect("DiscardInput"); }
    ScriptedPort& ExpectReads(std::string_view bytes) {
        for (const char byte : bytes)
            Expect("ReadByte", static_cast<unsigned char>(byte));
        return *this;
    }

    void PortNumber(std::int32_t number) override { Play("PortNumber " + std::to_string(number)); }
    void LineSpeed(std::int32_t speed) override { Play("LineSpeed " + std::to_string(speed)); }
    void Setting3(std::int32_t value) override { Play("Setting3 " + std::to_string(value)); }
    void Setting47(std::int32_t value) override { Play("Setting47 " + std::to_string(value)); }
    std::int32_t Open() override { return Play("Open"); }
    std::int32_t Close() override { return Play("Close"); }
    std::int32_t ReadByte() override {
        const std::int32_t byte = Play("ReadByte");
        if (byte < 0) screen_.time.ReadNothing();
        return byte;
    }
    void WriteByte(std::uint8_t byte) override { Play("WriteByte " + std::to_string(byte)); }
    void DiscardInput() override { Play("DiscardInput"); }
    void WriteText(std::string_view text) override { Play("WriteText " + std::string(text)); }
    [[nodiscard]] bool LineLost() const override { return Lost; }
    void ReopenLostLine() override { Play("ReopenLostLine"); }

    bool Lost = false;

  private:
    std::int32_t Play(const std::string& call) {
        if (script_.empty() || script_.front().first != call) {
            ADD_FAILURE() << "called: " << call << ", expected: "
                          << (script_.empty() ? "nothing more" : script_.front().first);
            return -1;
        }
        screen_.trace.Add(call);
        const auto result = script_.front().second;
        script_.pop_front();
        return result ? *result : throw PortError(call);
    }

    VirtualScreen& screen_;
    // Each member, and what it gives: nothing when it fails.
    std::deque<std::pair<std::string, std::optional<std::int32_t>>> script_;
};

struct OnScript : testing::Test, VirtualScreen {
    ScriptedPort port{*this};
    DeviceExchange controller{port, desktop};
};

TEST_F(OnScript, TheEndOfTheProgramClosesThePortFirst) {
    port.Expect("Close");
    EXPECT_EQ(ClosingFirst(port, {}).beforeEnd(), 0);
}

struct DeviceExchanges : OnScript {
    void ExpectRecord(const std::string& record, const std::string& reply) {
        port.ExpectDiscardStep().Expect("WriteText " + record).ExpectReads(reply);
    }
};

TEST_F(DeviceExchanges, PingTakesTheOneByteThatIsThereAfterFiftyMilliseconds) {
    for (const int answer : {0x55, -1, 0x00, 0x54, 0x0A}) {
        port.Fail("Setting47 -1").Fail("DiscardInput").Fail("WriteByte 85");
        port.Expect("ReadByte", answer);
        EXPECT_EQ(controller.PingDevice(), answer == 0x55) << answer;
        EXPECT_EQ(trace.Take(),
                  "Setting47 -1\nDiscardInput\nWriteByte 85\nSleep 50\nYield, ReadByte\n");
    }
}

TEST_F(DeviceExchanges, RecordsGoOutAsTheLoaderKnowsThem) {
    ExpectRecord(":010000020CF1", ":010000020CF1.\r\n");
    EXPECT_TRUE(controller.SendCalibration());
    const char* const erase[] = {":020000030100FA", ":020000030120DA", ":020000030140BA",
                                 ":0200000301807A", ":0200000301C03A", ":020000030700F4"};
    for (std::int16_t selector = 1; selector <= 6; ++selector) {
        const std::string record = erase[selector - 1];
        ExpectRecord(record, record + ".\n");
        EXPECT_TRUE(controller.SendEraseCommand(selector)) << selector;
    }
    const std::string line("any \0\x80\xFF line", 12);
    ExpectRecord(line, line + ".\n");
    EXPECT_TRUE(controller.SendDataLine(line));
}

TEST_F(DeviceExchanges, ReplyEndsAtTheFirstLineFeedWhateverPausesItHas) {
    port.ExpectDiscardStep().Expect("WriteText :00");
    port.ExpectReads(":0").Expect("ReadByte", -1).Fail("ReadByte").ExpectReads("0.\n");
    EXPECT_TRUE(controller.SendDataLine(":00"));
    EXPECT_EQ(trace.Take(),
              "Setting47 -1\nDiscardInput\nWriteText :00\nSleep 50\nYield, ReadByte\n");
    ExpectRecord(":00", ":00\n");  // a "." that would come behind it is left unread
    EXPECT_FALSE(controller.SendDataLine(":00"));
}

// 30 s after the last byte, which a yield brings within 2 ms, and after 120 s however many come.
TEST_F(DeviceExchanges, ALineThatBringsNoEndIsGivenUp) {
    using Times = std::deque<std::chrono::milliseconds>;
    const std::pair<Times, std::chrono::milliseconds> cases[] = {
        {{}, 30s}, {{29s}, 59s + 2ms}, {{20s, 40s, 60s, 80s, 100s}, 120s}};
    for (auto [bytesAt, end] : cases) {
        port.ExpectDiscardStep().Fail("WriteText :00");
        const auto start = desktop.Now();
        desktop.OnYield = [&, &due = bytesAt] {
            const bool comes = !due.empty() && desktop.Now() - start >= due.front();
            port.Expect("ReadByte", !comes ? -1 : due.size() % 2 == 0 ? 0 : 0xFF);
            if (comes) due.pop_front();
        };
        EXPECT_FALSE(controller.SendDataLine(":00"));
        EXPECT_EQ(desktop.Now() - start, end);
    }
}

TEST_F(DeviceExchanges, AYieldThatTheTechnicianHoldsUpIsNoSilence) {
    bool held = false;
    desktop.OnYield = [&] {
        if (!std::exchange(held, true)) time.Now += 40s;
    };
    port.ExpectDiscardStep().Expect("WriteText :00").Expect("ReadByte", -1).ExpectReads(":00.\n");
    EXPECT_TRUE(controller.SendDataLine(":00"));
}

TEST_F(DeviceExchanges, BabbleAndALostLineEndTheExchangeUnlessTheReplyIsComplete) {
    int reads = 0;
    desktop.OnYield = [&] { port.Expect("ReadByte", 'x'), ++reads; };
    port.ExpectDiscardStep().Expect("WriteText :00");
    EXPECT_FALSE(controller.SendDataLine(":00"));
    EXPECT_EQ(reads, 3 + 4096);

    desktop.OnYield = [&] { port.Expect("ReadByte", -1); };
    port.ExpectDiscardStep().Expect("WriteText :00");
    port.Lost = true;
    const auto start = desktop.Now();
    EXPECT_FALSE(controller.SendDataLine(":00"));
    EXPECT_LT(desktop.Now() - start, 1s);
    desktop.OnYield = nullptr;
    ExpectRecord(":00", ":00.\n");
    EXPECT_TRUE(controller.SendDataLine(":00"));
}

TEST(ReplyVerdict, AsksForTheEchoAndADotBehindIt) {
    EXPECT_TRUE(IsAcknowledged(":0A", ":0A.\r\n"));
    EXPECT_TRUE(IsAcknowledged(":0A", ":0A noise . noise\n"));
    EXPECT_TRUE(IsAcknowledged(":0.", ":0.\n"));  // the echoed "." is at the last character
    EXPECT_FALSE(IsAcknowledged(":.A", ":.A\n"));
    for (const char* reply : {":0a.\n", "x:0A.\n", ":0A\n", ":0", ""})
        EXPECT_FALSE(IsAcknowledged(":0A", reply)) << reply;
}

struct PortSearches : OnScript {
    PortSearch search{window, port, controller, desktop};
    Observation observing{window, trace};

    ScriptedPort& ExpectOpen(int number, int status) {
        port.Expect("LineSpeed 38400").Expect("Setting3 0");
        return port.Expect("PortNumber " + std::to_string(number)).Expect("Open", status);
    }
    void ExpectPing(int answer) {
        port.ExpectDiscardStep().ExpectDiscardStep();
        port.Expect("WriteByte 85").Expect("ReadByte", answer);
    }
};

TEST_F(PortSearches, FindsTheControllerOnPortThreeAndLeavesItOpen) {
    port.Expect("DiscardInput");
    ExpectOpen(1, 0);
    ExpectOpen(2, 7);
    ExpectPing(-1);
    port.Expect("Close", 0);
    ExpectOpen(3, 7);
    ExpectPing(0x55);

    EXPECT_EQ(search.FindDevicePort(), 3);
    EXPECT_EQ(search.PortStatus, 7);
    EXPECT_EQ(trace.Take(), Data("port-search.trace"));
}

TEST_F(PortSearches, ASearchThatFindsNothingClosesWhatItOpened) {
    port.Fail("DiscardInput");
    for (int number = 1; number <= 4; ++number) {
        ExpectOpen(number, 1);
        ExpectPing('x');
        port.Expect("Close", -1);
    }
    EXPECT_EQ(search.FindDevicePort(), kNoPort);
    EXPECT_EQ(search.PortStatus, -1);
}

TEST_F(PortSearches, OpeningFailsAtTheFirstStepThatFails) {
    port.Fail("LineSpeed 38400");
    EXPECT_FALSE(search.OpenPort(1));
    port.Expect("LineSpeed 38400").Expect("Setting3 0").Fail("PortNumber 2");
    EXPECT_FALSE(search.OpenPort(2));
    for (const int notOpen : {0, -1, 32768, -32769, 65537}) {
        search.PortStatus = 0;
        ExpectOpen(3, notOpen);
        EXPECT_FALSE(search.OpenPort(3)) << notOpen;
        EXPECT_LE(search.PortStatus, 0);
    }
    ExpectOpen(4, -2);  // no success that anybody could close, but not a failure either
    EXPECT_TRUE(search.OpenPort(4));
    search.ClosePort();
}

TEST_F(PortSearches, ACloseThatFailsKeepsTheStatus) {
    search.PortStatus = 5;
    port.Fail("Close").Expect("Close", 65536);
    search.ClosePort();
    search.ClosePort();
    EXPECT_EQ(search.PortStatus, 5);
    port.Expect("Close", 0);
    search.ClosePort();
    search.ClosePort();
    EXPECT_EQ(search.PortStatus, 0);
}

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
}  // namespace keplin::test
