// keplin-bench-program load FILE
// keplin-bench-program update FILE DEVICE
// The whole program as it is installed, with its buttons pressed by itself. Prints what it measured
// as lines of a name and numbers: times in nanoseconds, moments as in moment.h.
#include <sys/resource.h>

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include "app/qt/program.h"
#include "benchmarks/first_paint.h"
#include "benchmarks/timed_doors.h"

namespace keplin::benchmarks {
namespace {

// Of this process, all threads, the system's work for it included.
Moment ProcessorTime() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto nanoseconds = [](const timeval& time) {
        return Moment{time.tv_sec} * 1'000'000'000 + Moment{time.tv_usec} * 1000;
    };
    return nanoseconds(usage.ru_utime) + nanoseconds(usage.ru_stime);
}

class Measurement {
  public:
    Measurement(std::string file, const std::string& device)
        : file_(std::move(file)), program_([device] { return std::vector{device}; }, Hooks()) {
        session_.Main();
    }

    // From the dialog's answer to the page that follows, painted.
    void Load() {
        program_.window.Next_1.Press();
        program_.window.Next_2.Enabled = true;
        program_.window.Next_2.Press();
        Demand(program_.window.PicProgram.Shown(), "the file was not loaded");
        std::cout << "load " << Now() - chosen_ << "\n";
    }

    void Update() {
        program_.window.Next_1.Press();
        program_.window.cmdPortTest.Press();
        program_.window.Next_2.Press();
        exchanges_.clear();
        exchanges_.reserve(16384);
        const Moment processor = ProcessorTime();
        const Moment start = Now();
        program_.window.Command1.Press();
        const Moment end = Now();
        Demand(program_.window.UpdateComplete(), "the update stopped");
        std::cout << "run " << start << " " << end << "\n"
                  << "processor " << ProcessorTime() - processor << "\n";
        for (const Exchange& exchange : exchanges_) {
            std::cout << "exchange " << exchange.writing << " " << exchange.written << " "
                      << exchange.slept << " " << exchange.answered << "\n";
        }
    }

  private:
    StandardDesktop::Hooks Hooks() {
        StandardDesktop::Hooks hooks;
        hooks.openFile = [this](const OpenFileRequest&) {
            chosen_ = Now();
            return file_;
        };
        return hooks;
    }

    static void Demand(bool holds, const char* otherwise) {
        if (holds) return;
        std::cerr << "keplin-bench-program: " << otherwise << "\n";
        std::_Exit(1);
    }

    const std::string file_;
    Moment chosen_ = 0;
    Program program_;
    std::vector<Exchange> exchanges_;
    TimedPort port_{program_.port, exchanges_};
    TimedDesktop desktop_{program_.desktop, exchanges_};
    Session session_{program_.window, port_, desktop_};  // in place of the program's own
};

}  // namespace
}  // namespace keplin::benchmarks

int main(int argc, char** argv) {
    using namespace keplin::benchmarks;
    QApplication application(argc, argv);
    const std::vector<std::string> words(argv + 1, argv + argc);
    const bool update = words.size() == 3 && words[0] == "update";
    if (!update && !(words.size() == 2 && words[0] == "load")) {
        std::cerr << "usage: keplin-bench-program load FILE | update FILE DEVICE\n";
        return 2;
    }
    Measurement measurement(words[1], update ? words[2] : "");
    const FirstPaint begin([&] {
        if (update) {
            measurement.Update();
        } else {
            measurement.Load();
        }
        QApplication::exit();
    });
    return QApplication::exec();
}
