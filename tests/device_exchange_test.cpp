#include "device/device_exchange.h"

#include <gtest/gtest.h>

#include "device/reply_verdict.h"
#include "tests/support/scripted_port.h"
#include "tests/support/virtual_desktop.h"

namespace keplin::test {
namespace {

using namespace std::chrono_literals;

struct DeviceExchanges : testing::Test, VirtualScreen {
    ScriptedPort port{time};
    DeviceExchange controller{port, desktop};

    void ExpectRecord(const std::string& record, const std::string& reply) {
        port.ExpectDiscardStep().Expect("WriteText " + record).ExpectReads(reply);
    }
};

TEST_F(DeviceExchanges, PingTakesTheOneByteThatIsThereAfterFiftyMilliseconds) {
    for (const int answer : {0x55, -1, 0x00, 0x54, 0x0A}) {
        port.Fail("Setting47 -1").Fail("DiscardInput").Fail("WriteByte 85");
        port.Expect("ReadByte", answer);
        EXPECT_EQ(controller.PingDevice(), answer == 0x55) << answer;
        EXPECT_EQ(trace.Take(), "Sleep 50\nYield\n");
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
    EXPECT_EQ(trace.Take(), "Sleep 50\nYield\nYield\nYield\nYield\nYield\nYield\nYield\n");
    ExpectRecord(":00", ":00\n");  // a "." that would come behind it is left unread
    EXPECT_FALSE(controller.SendDataLine(":00"));
}

TEST_F(DeviceExchanges, ALineThatBringsNoEndIsGivenUp) {
    port.ExpectDiscardStep().Fail("WriteText :00");
    desktop.OnYield = [&] { port.Expect("ReadByte", -1); };
    const auto start = desktop.Now();
    EXPECT_FALSE(controller.SendDataLine(":00"));
    EXPECT_EQ(desktop.Now() - start, 30s);

    port.ExpectDiscardStep().Expect("WriteText :00");
    const auto second = desktop.Now();
    bool sent = false;
    desktop.OnYield = [&] {
        const bool late = !sent && desktop.Now() - second >= 29s;
        sent = sent || late;
        port.Expect("ReadByte", late ? 0xFF : -1);
    };
    EXPECT_FALSE(controller.SendDataLine(":00"));
    EXPECT_GE(desktop.Now() - second, 59s);
    EXPECT_LT(desktop.Now() - second, 60s);

    port.ExpectDiscardStep().Expect("WriteText :00");
    const auto third = desktop.Now();
    std::chrono::seconds next = 20s;
    desktop.OnYield = [&] {
        const bool due = desktop.Now() - third >= next;
        if (due) next += 20s;
        port.Expect("ReadByte", due ? 0 : -1);
    };
    EXPECT_FALSE(controller.SendDataLine(":00"));
    EXPECT_EQ(desktop.Now() - third, 120s) << "however often a byte comes";
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

}  // namespace
}  // namespace keplin::test
