// Whole updates with the simulated controller: as they are to be, and with each exchange failing
// once in every way that the controller knows.
#include <gtest/gtest.h>

#include "device/reply_verdict.h"
#include "simulator/faulty_device.h"
#include "tests/support/data.h"
#include "tests/support/rig.h"

namespace keplin::test {
namespace {

using namespace simulator;

// From the start of the program to Finish: what changes in the window, what goes over the line, and
// every pause.
TEST(UpdateRun, DoesEveryStepInItsOrder) {
    Rig rig;
    const TemporaryFile file(kSmallFile);
    rig.desktop.Ticks = false;
    rig.window.ProgressBar1.Value = 50;
    rig.ReachProgramPage(file.Path());
    EXPECT_TRUE(rig.Update());
    EXPECT_THROW(rig.window.cmdExit.Press(), ProgramEnded);
    EXPECT_EQ(WithoutPath(rig.trace.Take(), file.Path()), Data("whole-update.trace"));
    const auto memory = rig.loader.Memory().Cells();
    EXPECT_EQ(memory[0], 1);
    EXPECT_EQ(memory[0x2001], 0xA5);
    EXPECT_EQ(memory[0x7FFF], 0x42);
    EXPECT_EQ(memory[4], 0xFF);
}

TEST(UpdateRun, SendsUpToTheFirstEmptySlotOrTheLastOfTenThousandAndOne) {
    const std::string end = ":00000001FF\r";
    std::string all;
    for (int slot = 0; slot <= 10000; ++slot)
        all += end;
    const std::tuple<std::string, int, int> cases[] = {
        {"", 0, 0}, {end + "\r" + end, 3, 1}, {all, 10001, 10001}};
    for (const auto& [contents, lines, sent] : cases) {
        Rig rig;
        rig.trace.Recording = false;
        const TemporaryFile file(contents);
        rig.ReachProgramPage(file.Path());
        EXPECT_TRUE(rig.Update());
        EXPECT_EQ(rig.window.ProgressBar1.Max, lines);
        EXPECT_EQ(rig.window.ProgressBar1.Value, std::max(sent - 1, 0));
        EXPECT_EQ(std::ssize(rig.loader.ObeyedRecords()), 6 + sent);
    }
}

// Keeping awake is a favour. Anything else that fails ends the operation, and the next one can
// begin.
TEST(UpdateRun, NoFailureLeavesAHandler) {
    Rig rig;
    const TemporaryFile file(kSmallFile);
    const auto failing = [&](const Button& button, int yield) {
        rig.desktop.OnYield = [&, yield]() mutable {
            if (--yield == 0) throw std::runtime_error("no memory left");
        };
        EXPECT_NO_THROW(button.Press());
        rig.desktop.OnYield = nullptr;
        EXPECT_TRUE(button.CanBePressed() && rig.window.cmdExit.CanBePressed());
        EXPECT_FALSE(rig.window.Shape2.Visible);
    };
    rig.window.Next_1.Press();
    failing(rig.window.cmdPortTest, 3);
    rig.ReachProgramPage(file.Path());
    failing(rig.window.Command1, 10);
    rig.desktop.AwakeFails = true;
    EXPECT_TRUE(rig.Update());
}

// On the programming page, at a controller that can be made to fail.
struct FaultyRig {
    FaultyRig() {
        rig.trace.Recording = false;
        rig.ReachProgramPage(file.Path());
    }

    const TemporaryFile file{kSmallFile};
    Loader loader;
    FaultyDevice device{loader, 7};
    Rig rig{&device};
};

// What stands on the page after a run that stopped: the caption of lblPrgm, empty when it is
// hidden, and the value of ProgressBar1, -1 when that is.
using Stop = std::pair<std::string, float>;

constexpr int kBeforeTheLines = 9;  // exchanges
constexpr int kExchanges = kBeforeTheLines + 4;

Stop ExpectedStop(int exchange) {
    static const Stop kStops[kBeforeTheLines] = {{"", -1},
                                                 {"", -1},
                                                 {"", -1},
                                                 {"Programming in Progress", -1},
                                                 {"Block #1 Erase in Process", 0},
                                                 {"Block #2 Erase in Process", 33},
                                                 {"Block #3 Erase in Process", 66},
                                                 {"All Blocks Erased", -1},
                                                 {"Programming Device", 0}};
    const int line = exchange - kBeforeTheLines;
    if (line <= 0) return kStops[exchange - 1];
    return {"Programming Failed at Line " + std::to_string(line),
            static_cast<float>(std::max(line - 2, 0))};
}

Stop PageOf(const Rig& rig) {
    const ISPMain& window = rig.window;
    return {window.lblPrgm.Shown() ? window.lblPrgm.Caption.Get() : "",
            window.ProgressBar1.Shown() ? window.ProgressBar1.Value.Get() : -1.0F};
}

// Whether the transmission is acknowledged by what the faulty device sent in its place.
bool Passes(const std::string& transmission, const Injection& injection) {
    if (injection.kind == FaultKind::Babble) return false;
    if (transmission == "U") {
        return injection.sent.starts_with('U') && injection.kind != FaultKind::Slow;
    }
    const auto end = injection.sent.find('\n');
    return end != std::string::npos &&
           IsAcknowledged(transmission, injection.sent.substr(0, end + 1));
}

class EveryFault : public testing::TestWithParam<Fault> {};

TEST_P(EveryFault, AtEveryExchangeStopsTheRunWhereItStandsAndASecondRunCompletes) {
    FaultyRig clean;
    const int before = clean.device.ExchangesSeen();
    ASSERT_TRUE(clean.rig.Update());
    ASSERT_EQ(clean.device.ExchangesSeen() - before, kExchanges);

    int stops = 0;
    for (int k = 1; k <= kExchanges; ++k) {
        SCOPED_TRACE("exchange " + std::to_string(k));
        FaultyRig faulty;
        Rig& rig = faulty.rig;
        ISPMain& window = rig.window;
        window.ProgressBar1.Max = 7;
        window.ProgressBar1.Value = 7;
        faulty.device.Inject({GetParam().kind, before + k, false});
        const bool complete = rig.Update();

        ASSERT_EQ(faulty.device.Injections().size(), 1U);
        EXPECT_EQ(complete, Passes(clean.rig.port.Sent[static_cast<std::size_t>(before + k - 1)],
                                   faulty.device.Injections().front()));
        EXPECT_TRUE(window.cmdExit.CanBePressed());
        EXPECT_FALSE(window.Shape1.Visible || window.Shape2.Visible || window.Timer1.Enabled);
        EXPECT_FALSE(rig.desktop.Awake);
        if (complete) continue;

        ++stops;
        EXPECT_EQ(PageOf(rig), ExpectedStop(k));
        EXPECT_EQ(window.ProgressBar1.Max, k < 4 ? 7 : k < 8 ? 100 : 4);
        EXPECT_EQ(k == 4 ? window.ProgressBar1.Value.Get() : 0, 0);
        EXPECT_EQ(std::ssize(rig.port.Sent), before + k);
        faulty.device.ClearFaults();
        rig.time.Now += std::chrono::seconds(1);
        EXPECT_TRUE(rig.Update());
    }
    const bool harmless = GetParam().kind == FaultKind::Noise;
    EXPECT_EQ(stops == 0, harmless);
}

INSTANTIATE_TEST_SUITE_P(Simulator, EveryFault,
                         testing::ValuesIn(FaultTable().begin(), FaultTable().end()),
                         [](const auto& fault) {
                             std::string name(fault.param.name);
                             std::erase(name, '-');
                             return name;
                         });

// The cable is pulled, and plugged in again before the third try.
TEST(Faults, ALostLineEndsTheExchangeAtOnceAndIsFoundAgainByTheNextRun) {
    FaultyRig faulty;
    faulty.device.Inject({FaultKind::HangUp, faulty.device.ExchangesSeen() + 10, true});
    const auto start = faulty.rig.desktop.Now();
    for (int tries = 1; tries <= 2; ++tries) {
        EXPECT_FALSE(faulty.rig.Update());
        EXPECT_EQ(PageOf(faulty.rig), ExpectedStop(10)) << tries;
    }
    EXPECT_LT(faulty.rig.desktop.Now() - start, std::chrono::seconds(15));
    faulty.device.ClearFaults();
    EXPECT_TRUE(faulty.rig.Update());
}

// The adapter comes loose in the pause behind the erase, and another controller hangs on it when it
// is back: that one has not been erased.
TEST(Faults, AControllerThatComesIntoTheMidstOfAnUpdateIsNotProgrammed) {
    FaultyRig faulty;
    bool swapped = false;
    faulty.rig.desktop.OnYield = [&] {
        const std::string& stage = faulty.rig.window.lblPrgm.Caption;
        if (stage != "All Blocks Erased" || std::exchange(swapped, true)) return;
        faulty.device.HangUp();
        faulty.loader = Loader();
    };
    EXPECT_FALSE(faulty.rig.Update());
    EXPECT_EQ(PageOf(faulty.rig), ExpectedStop(8));
    EXPECT_TRUE(faulty.loader.ObeyedRecords().empty());
    EXPECT_TRUE(faulty.rig.Update());
}

// What a stuck adapter kept of a record leaves when it takes bytes again: ahead of the next ping.
TEST(Faults, WhatAnAdapterKeptOfOneExchangeSpoilsTheNextAndNeverPassesForIt) {
    for (std::size_t k = 0; k < kExchanges; ++k) {
        for (const std::size_t from : {0U, 1U, 6U}) {
            SCOPED_TRACE("exchange " + std::to_string(k + 1) + " from " + std::to_string(from));
            FaultyRig faulty;
            VirtualPort& port = faulty.rig.port;
            const std::size_t before = port.Sent.size();
            port.KeepBack(before + k, from);
            const bool complete = faulty.rig.Update();
            const bool isPing = port.Sent[before + k] == "U";
            EXPECT_EQ(complete, isPing && from > 0) << "nothing was kept";
            EXPECT_EQ(port.Sent.size() == before + k + 1, !complete);
            if (complete) continue;

            // The leftover of a ping is a ping.
            EXPECT_EQ(faulty.rig.Update(), isPing);
            if (isPing) continue;
            EXPECT_EQ(port.Sent.size(), before + k + 2) << "more than a ping was sent";
            EXPECT_TRUE(faulty.rig.Update());
        }
    }
}

}  // namespace
}  // namespace keplin::test
