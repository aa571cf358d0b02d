// keplin-bench-program load FILE
// keplin-bench-program update FILE DEVICE
// The whole program as it is installed, with its buttons pressed by itself. Prints what it measured
// as lines of a name and numbers: times in nanoseconds, moments as in moment.h.
#include <sys/resource.h>

#include <QApplication>
#include <iostream>
#include <string>
#include <vector>

#include "app/qt/program.h"
#include "benchmarks/first_paint.h"
#include "benchmarks/measurement.h"

namespace keplin::benchmarks {

Moment ProcessorTime() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto nanoseconds = [](const timeval& time) {
        return Moment{time.tv_sec} * 1'000'000'000 + Moment{time.tv_usec} * 1000;
    };
    return nanoseconds(usage.ru_utime) + nanoseconds(usage.ru_stime);
}

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
    Measurement<keplin::Program> measurement(words[1], update ? words[2] : "");
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
