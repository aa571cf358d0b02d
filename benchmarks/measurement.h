// What is measured of the whole program, whoever draws it. Prints lines of a name and numbers:
// times in nanoseconds, moments as in moment.h.
#pragma once

#include <cstdlib>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

#include "app/program.h"
#include "benchmarks/timed_doors.h"

namespace keplin::benchmarks {

// Of this process, all threads, the system's work for it included: each system has its own.
Moment ProcessorTime();

// The program as it is installed, with its buttons pressed by itself.
template <typename Program>
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

}  // namespace keplin::benchmarks
