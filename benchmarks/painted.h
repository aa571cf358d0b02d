// What a program tells when its first window has been painted.
#pragma once

#include <fstream>
#include <iostream>
#include <string>

#include "benchmarks/first_paint.h"
#include "benchmarks/moment.h"

namespace keplin::benchmarks {

// Runs the event loop until the first window was painted. Prints that moment, and as the system
// tells them the most memory that the process ever held and what it holds now.
inline int TellWhenPainted() {
    const FirstPaint painted([] {
        std::cout << "painted " << Now() << "\n";
        std::ifstream status("/proc/self/status");
        for (std::string line; std::getline(status, line);) {
            if (line.starts_with("VmHWM") || line.starts_with("VmRSS")) std::cout << line << "\n";
        }
        QApplication::exit();
    });
    return QApplication::exec();
}

}  // namespace keplin::benchmarks
