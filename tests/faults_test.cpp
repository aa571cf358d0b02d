// Every exchange of an update fails once in every way that the simulated controller knows.
#include <gtest/gtest.h>

#include "device/reply_verdict.h"
#include "simulator/faulty_device.h"
#include "tests/support/rig.h"

namespace keplin::test {
namespace {

using namespace simulator;

struct FaultyRig {
    Loader loader;
    FaultyDevice device{loader, 7};
    Rig rig{&device};

    FaultyRig() { rig.trace.Recording = false; }
    void Update() { rig.window.Command1.Press(); }
};

// What stands on the page after a run that stopped: the caption of lblPrgm, empty when it is
// hidden, and the value of ProgressBar1, -1 when that is.
using Stop = std::pair<std::string, float>;

Stop ExpectedStop(int exchange) {
    static const std::vector<Stop> kBeforeTheLines = {
        {"", -1},
        {"", -1},
        {"", -1},
        {"Programming in Progress", -1},
        {"Block #1 Erase in Process", 0},
        {"Block #2 Erase in Process", 33},
        {"Block #3 Erase in Process", 66},
        {"All Blocks Erased", -1},
        {"Programming Device", 0},
    };
    const auto index = static_cast<std::size_t>(exchange - 1);
    if (index < kBeforeTheLines.size()) return kBeforeTheLines[index];
    const auto line = static_cast<int>(index - kBeforeTheLines.size());
    return {"Programming Failed at Line " + std::to_string(line + 1),
            static_cast<float>(std::max(line - 1, 0))};
}

Stop PageOf(const ISPMain& window) {
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
    const TemporaryFile file(kSmallFile);
    FaultyRig clean;
    clean.rig.ReachProgramPage(file.Path());
    const int before = clean.device.ExchangesSeen();
    clean.Update();
    ASSERT_TRUE(clean.rig.Completed());
    const int exchanges = clean.device.ExchangesSeen() - before;
    ASSERT_EQ(exchanges, 9 + 4);

    int stops = 0;
    for (int k = 1; k <= exchanges; ++k) {
        SCOPED_TRACE("exchange " + std::to_string(k));
        FaultyRig faulty;
        ISPMain& window = faulty.rig.window;
        faulty.rig.ReachProgramPage(file.Path());
        window.ProgressBar1.Max = 7;
        window.ProgressBar1.Value = 7;
        faulty.device.Inject({GetParam().kind, before + k, false});
        faulty.Update();

        ASSERT_EQ(faulty.device.Injections().size(), 1U);
        const bool passed = Passes(clean.rig.port.Sent[static_cast<std::size_t>(before + k - 1)],
                                   faulty.device.Injections().front());
        EXPECT_EQ(faulty.rig.Completed(), passed);
        EXPECT_TRUE(window.cmdExit.CanBePressed());
        EXPECT_FALSE(window.Shape1.Visible || window.Shape2.Visible || window.Timer1.Enabled);
        EXPECT_FALSE(faulty.rig.desktop.Awake);
        if (passed) continue;

        ++stops;
        EXPECT_EQ(PageOf(window), ExpectedStop(k));
        EXPECT_EQ(window.ProgressBar1.Max, k < 4 ? 7 : k < 8 ? 100 : 4);
        EXPECT_EQ(k == 4 ? window.ProgressBar1.Value.Get() : 0, 0);
        EXPECT_EQ(faulty.rig.port.Sent.size(), static_cast<std::size_t>(before + k));
        faulty.device.ClearFaults();
        faulty.rig.time.Now += std::chrono::seconds(1);
        faulty.Update();
        EXPECT_TRUE(faulty.rig.Completed());
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

// The cable is pulled, and plugged in again before the next try.
TEST(Faults, ALostLineEndsTheExchangeAtOnceAndIsFoundAgainByTheNextRun) {
    const TemporaryFile file(kSmallFile);
    FaultyRig faulty;
    faulty.rig.ReachProgramPage(file.Path());
    faulty.device.Inject({FaultKind::HangUp, faulty.device.ExchangesSeen() + 10, true});
    const auto start = faulty.rig.desktop.Now();
    faulty.Update();
    EXPECT_EQ(PageOf(faulty.rig.window), ExpectedStop(10));
    EXPECT_LT(faulty.rig.desktop.Now() - start, std::chrono::seconds(15));
    faulty.Update();
    EXPECT_EQ(PageOf(faulty.rig.window), ExpectedStop(10));  // still unplugged: nothing changes
    faulty.device.ClearFaults();
    faulty.Update();
    EXPECT_TRUE(faulty.rig.Completed());
}

// The adapter comes loose in the pause behind the erase, and another controller hangs on it when it
// is back: that one has not been erased.
TEST(Faults, AControllerThatComesIntoTheMidstOfAnUpdateIsNotProgrammed) {
    const TemporaryFile file(kSmallFile);
    FaultyRig faulty;
    faulty.rig.ReachProgramPage(file.Path());
    bool swapped = false;
    faulty.rig.desktop.OnYield = [&] {
        const std::string& stage = faulty.rig.window.lblPrgm.Caption;
        if (stage != "All Blocks Erased" || std::exchange(swapped, true)) return;
        faulty.device.HangUp();
        faulty.loader = Loader();
    };
    faulty.Update();
    EXPECT_EQ(PageOf(faulty.rig.window), ExpectedStop(8));
    EXPECT_TRUE(faulty.loader.ObeyedRecords().empty());
    faulty.Update();
    EXPECT_TRUE(faulty.rig.Completed());
}

// What a stuck adapter kept of a record leaves when it takes bytes again: ahead of the next ping.
TEST(Faults, WhatAnAdapterKeptOfOneExchangeSpoilsTheNextAndNeverPassesForIt) {
    const TemporaryFile file(kSmallFile);
    for (std::size_t k = 0; k < 9 + 4; ++k) {
        for (const std::size_t from : {0U, 1U, 6U}) {
            SCOPED_TRACE("exchange " + std::to_string(k + 1) + " from " + std::to_string(from));
            Rig rig;
            rig.trace.Recording = false;
            rig.ReachProgramPage(file.Path());
            const std::size_t before = rig.port.Sent.size();
            rig.port.KeepBack(before + k, from);
            rig.window.Command1.Press();
            const bool isPing = rig.port.Sent[before + k] == "U";
            EXPECT_EQ(rig.Completed(), isPing && from > 0) << "nothing was kept";
            EXPECT_EQ(rig.port.Sent.size() == before + k + 1, !rig.Completed());
            if (rig.Completed()) continue;

            // The leftover of a ping is a ping.
            rig.window.Command1.Press();
            EXPECT_EQ(rig.Completed(), isPing);
            if (isPing) continue;
            EXPECT_EQ(rig.port.Sent.size(), before + k + 2) << "more than a ping was sent";
            rig.window.Command1.Press();
            EXPECT_TRUE(rig.Completed());
        }
    }
}

}  // namespace
}  // namespace keplin::test
