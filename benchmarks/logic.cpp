// keplin-bench-logic FILE...: what the logic itself costs, without a window and without waiting.
// Measured for each update file: loading it, copying its bytes, and, where the controller takes
// the file, a whole session on the virtual clock. Beside these: 200 random updates.
#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "benchmarks/allocations.h"
#include "tests/campaign/campaign.h"
#include "tests/support/rig.h"
#include "update/update_file.h"

namespace keplin::benchmarks {
namespace {

using Clock = std::chrono::steady_clock;

// The moment and the allocations so far.
struct Mark {
    Clock::time_point time = Clock::now();
    std::uint64_t allocations = AllocationCount();
};

// Marks the moment at which the dialog answers.
class MarkingDesktop : public test::VirtualDesktop {
  public:
    using VirtualDesktop::VirtualDesktop;
    std::optional<std::string> ShowOpen(const OpenFileRequest&) override {
        Answered = Mark();
        return Answer;
    }
    Mark Answered;
};

// Marks the moment at which the last panel has its text.
class LastPanelWatch : public Observer {
  public:
    explicit LastPanelWatch(ISPMain& window) : window_(window) {}

    void Changed(const Control& control, Aspect) override {
        if (&control == &window_.StatusBar2.Panels(3)) Shown = Mark();
    }
    Mark Shown;

  private:
    ISPMain& window_;
    Observation watching_{window_, *this};
};

// The program loads a file once, into slots that are empty; so does each round here.
void Load(benchmark::State& state, const std::string& path) {
    for ([[maybe_unused]] auto round : state) {
        ISPMain window;
        test::Trace trace;
        trace.Recording = false;
        test::VirtualTime time;
        MarkingDesktop desktop(window, trace, time);
        desktop.Answer = path;
        UpdateFile file(window, desktop);
        const LastPanelWatch watch(window);
        if (!file.LoadUpdateFile()) state.SkipWithError("not loaded");
        const std::chrono::duration<double> took = watch.Shown.time - desktop.Answered.time;
        state.SetIterationTime(took.count());
        state.counters["allocations"] =
            static_cast<double>(watch.Shown.allocations - desktop.Answered.allocations);
    }
}

void Copy(benchmark::State& state, const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    const std::string from{std::istreambuf_iterator(file), {}};
    std::string to(from.size(), '\0');
    for ([[maybe_unused]] auto round : state) {
        from.copy(to.data(), from.size());
        benchmark::DoNotOptimize(to.data());
        benchmark::ClobberMemory();
    }
}

// From the start of the program to the completion page.
void Session(benchmark::State& state, const std::string& path) {
    long exchanges = 0;
    for ([[maybe_unused]] auto round : state) {
        test::Rig rig;
        rig.trace.Recording = false;
        rig.ReachProgramPage(path);
        rig.window.Command1.Press();
        if (!rig.Completed()) state.SkipWithError("not completed");
        exchanges = static_cast<long>(rig.port.Sent.size());
    }
    state.counters["exchanges"] = static_cast<double>(exchanges);
}

void Campaign(benchmark::State& state) {
    constexpr std::uint64_t kSeeds = 200;
    for ([[maybe_unused]] auto round : state) {
        test::Tally tally;
        for (std::uint64_t seed = 1; seed <= kSeeds; ++seed) {
            if (test::RandomUpdate(seed, tally)) state.SkipWithError("an update went wrong");
        }
    }
}

bool ControllerTakes(const std::string& path) {
    test::Rig rig;
    rig.trace.Recording = false;
    rig.ReachProgramPage(path);
    rig.window.Command1.Press();
    return rig.Completed();
}

void Register(const std::string& path) {
    const std::string name = std::filesystem::path(path).stem().string();
    benchmark::RegisterBenchmark(("load/" + name).c_str(), Load, path)
        ->UseManualTime()
        ->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark(("copy/" + name).c_str(), Copy, path)
        ->Unit(benchmark::kMicrosecond);
    if (!ControllerTakes(path)) return;
    benchmark::RegisterBenchmark(("session/" + name).c_str(), Session, path)
        ->Unit(benchmark::kMicrosecond);
}

}  // namespace
}  // namespace keplin::benchmarks

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    benchmark::RegisterBenchmark("campaign", keplin::benchmarks::Campaign)
        ->Unit(benchmark::kMicrosecond);
    for (int i = 1; i < argc; ++i)
        keplin::benchmarks::Register(argv[i]);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
