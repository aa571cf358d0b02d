// Random updates: random files, faults and clicks, all from a seed, and what must hold in each.
#pragma once

#include <algorithm>
#include <array>
#include <numeric>
#include <random>

#include "simulator/faulty_device.h"
#include "tests/support/rig.h"

namespace keplin::test {

// Over all updates of a campaign.
struct Tally {
    int completed = 0;
    int stopped = 0;  // at a failed step
    int closed = 0;   // the technician closed the program
    int noFile = 0;   // the programming page was never reached
};

class RandomTechnician {
  public:
    explicit RandomTechnician(std::uint64_t seed)
        : random_(seed), device_(loader_, static_cast<std::uint32_t>(seed)), rig_(&device_) {
        rig_.trace.Recording = false;
        rig_.time.LongestWait = std::chrono::milliseconds(40);
        clickEvery_ = OneIn(3) ? 0 : 3 << Below(9);
        rig_.desktop.OnYield = [this] { DuringYield(); };
    }

    std::optional<std::string> Work(Tally& tally) {
        try {
            ReachProgramPage();
            if (!rig_.window.PicProgram.Shown()) {
                ++tally.noFile;
                return wrong_;
            }
            for (int run = 0; run < 3 && !rig_.window.UpdateComplete(); ++run)
                Update();
            ++(rig_.window.UpdateComplete() ? tally.completed : tally.stopped);
        } catch (const ProgramEnded&) {
            ++tally.closed;
            Demand(!rig_.desktop.EndedBusy, "the program ended during a search or a run");
        } catch (const DoesNotEnd&) {
            Demand(false, "an operation does not end");
        }
        return wrong_;
    }

  private:
    // More than any run can take: with the longest file and every limit reached, an update ends
    // sooner.
    static constexpr long kYieldLimit = 2'000'000;
    struct DoesNotEnd {};

    template <typename Number>
    Number Below(Number count) {
        return static_cast<Number>(random_() % static_cast<std::uint64_t>(count));
    }
    bool OneIn(int count) { return Below(count) == 0; }

    void Demand(bool holds, const char* what) {
        if (!holds && !wrong_) wrong_ = what;
    }

    void ReachProgramPage() {
        rig_.window.Next_1.Press();
        InjectFaults(2);
        for (int search = 0; search < 3 && !rig_.window.Next_2.Enabled; ++search)
            rig_.window.cmdPortTest.Press();
        file_.emplace(RandomFile());
        rig_.desktop.Answer = file_->Path();
        if (OneIn(50)) rig_.desktop.Answer = std::nullopt;
        rig_.window.Next_2.Press();
    }

    void Update() {
        if (OneIn(2)) InjectFaults(20 + static_cast<int>(lines_.size()));
        rig_.port.Settle();
        sentBefore_ = rig_.port.Sent.size();
        obeyedBefore_ = loader_.ObeyedRecords().size();
        leftover_ = rig_.port.KeepsBytes();
        swapAt_ = OneIn(8) ? rig_.desktop.Yields + Below(400) : -1;
        if (OneIn(8)) SwapController();
        if (OneIn(2)) rig_.port.CheckLine();
        if (OneIn(8)) rig_.port.KeepBack(sentBefore_ + Below(20U), Below(12U));
        const bool complete = rig_.Update();
        swapAt_ = -1;
        Demand(rig_.window.cmdExit.CanBePressed(), "Close cannot be pressed after a run");
        Demand(!rig_.window.Shape1.Visible && !rig_.window.Shape2.Visible &&
                   !rig_.window.Timer1.Enabled,
               "the activity indicator is on after a run");
        Demand(!rig_.desktop.Awake, "the computer is kept awake after a run");
        if (complete) DemandEveryLineObeyed();
        Demand(complete || rig_.window.Command1.CanBePressed(),
               "Update cannot be pressed after a stop");
        if (OneIn(2)) device_.ClearFaults();
        rig_.time.Now += std::chrono::seconds(3);
    }

    // The completion page says that the controller holds the file.
    void DemandEveryLineObeyed() {
        Demand(EveryLineObeyed(),
               "complete, but the controller did not obey every line once and in order");
        std::vector<std::string> sent(
            rig_.port.Sent.begin() + static_cast<std::ptrdiff_t>(sentBefore_),
            rig_.port.Sent.end());
        std::erase(sent, "U");
        Demand(sent == WholeUpdate(), "complete, but not every line was sent once and in order");
    }

    bool EveryLineObeyed() {
        const auto& obeyed = loader_.ObeyedRecords();
        const auto since = obeyed.begin() + static_cast<std::ptrdiff_t>(obeyedBefore_);
        std::vector<std::string> records(since, obeyed.end());
        const auto update = WholeUpdate();
        // What the adapter kept of a record leaves ahead of the first ping, and the erase follows.
        if (leftover_ && records.size() == update.size() + 1) records.erase(records.begin());
        return records == update;
    }

    // Every record of an update, in order.
    std::vector<std::string> WholeUpdate() {
        std::vector<std::string> records{":010000020CF1",   ":010000020CF1",   ":020000030100FA",
                                         ":020000030120DA", ":020000030140BA", ":010000020CF1"};
        const auto end = std::find(lines_.begin(), lines_.end(), "");
        records.insert(records.end(), lines_.begin(), end);
        return records;
    }

    void InjectFaults(int within) {
        for (int left = Below(3); left > 0; --left) {
            const auto faults = simulator::FaultTable();
            const auto kind = faults[Below(faults.size())].kind;
            const int at = device_.ExchangesSeen() + 1 + Below(within);
            device_.Inject({kind, at, OneIn(6)});
        }
    }

    std::string RandomFile() {
        std::string contents;
        const int count = OneIn(4) ? Below(60) : Below(12);
        for (int i = 0; i < count; ++i) {
            lines_.push_back(RandomLine(i));
            contents += lines_.back() + (OneIn(5) ? "\r" : "\r\n");
        }
        return contents;
    }

    std::string RandomLine(int index) {
        if (OneIn(60)) return "";
        if (OneIn(60)) return ":00000001FF";
        if (OneIn(60)) return RandomBytes(1 + Below(40U));
        if (OneIn(200)) return RandomBytes(5000);
        return DataRecord(index * 256, 1 + Below(OneIn(9) ? 255 : 24));
    }

    std::string RandomBytes(std::size_t length) {
        std::string text;
        while (text.size() < length) {
            const char byte = static_cast<char>(Below(256));
            // A line feed at the head of a line would belong to the end of the line before it.
            if (byte != '\r' && (byte != '\n' || !text.empty())) text.push_back(byte);
        }
        return text;
    }

    std::string DataRecord(int address, int count) {
        std::string bytes{static_cast<char>(count), static_cast<char>(address >> 8),
                          static_cast<char>(address), 0};
        for (int i = 0; i < count; ++i)
            bytes += static_cast<char>(Below(256));
        const int sum = std::accumulate(bytes.begin(), bytes.end(), 0);
        bytes += static_cast<char>(OneIn(100) ? 1 - sum : -sum);  // now and then a wrong checksum
        std::string record = ":";
        for (const unsigned char byte : bytes)
            record += {"0123456789ABCDEF"[byte >> 4], "0123456789ABCDEF"[byte & 15]};
        return record;
    }

    // The adapter is unplugged, and a controller that has not been erased hangs on it when it is
    // back, under the same name.
    void SwapController() {
        if (EveryLineObeyed()) return;
        device_.HangUp();
        loader_ = simulator::Loader();
        obeyedBefore_ = 0;
        leftover_ = false;
    }

    void DuringYield() {
        if (rig_.desktop.Yields == swapAt_) SwapController();
        if (OneIn(2)) rig_.port.CheckLine();
        if (rig_.desktop.Yields > kYieldLimit) throw DoesNotEnd{};
        Demand(!rig_.desktop.AwakeTwice, "two runs at a time");
        if (clickEvery_ == 0 || !OneIn(clickEvery_)) return;
        ISPMain& window = rig_.window;
        const std::array<const Button*, 5> buttons{&window.cmdExit, &window.Next_1, &window.Next_2,
                                                   &window.cmdPortTest, &window.Command1};
        const std::size_t choice = Below(buttons.size() + 1);
        const bool leaving = choice == 0 || choice == buttons.size();
        if (leaving && !rig_.desktop.Awake && !OneIn(20)) return;  // most stay to the end
        if (choice == buttons.size()) return window.RequestClose();
        buttons[choice]->Press();
    }

    std::mt19937_64 random_;
    simulator::Loader loader_;
    simulator::FaultyDevice device_;
    Rig rig_;
    std::optional<TemporaryFile> file_;
    std::vector<std::string> lines_;
    std::size_t sentBefore_ = 0;
    std::size_t obeyedBefore_ = 0;
    bool leftover_ = false;  // of an exchange before this run
    long swapAt_ = -1;    // the yield at which another controller takes this one's place; -1: none
    int clickEvery_ = 0;  // yields, on average; 0: never
    std::optional<std::string> wrong_;
};

// Runs one update. What did not hold, in words, or nothing.
inline std::optional<std::string> RandomUpdate(std::uint64_t seed, Tally& tally) {
    return RandomTechnician(seed).Work(tally);
}

}  // namespace keplin::test
