// keplin-bench-update FILE: the whole program with its buttons pressed by itself, on COM2. Prints
// what it measured as lines of a name and numbers, see measurement.h.
#include <windows.h>

#include "app/win32/program.h"
#include "benchmarks/measurement.h"
#include "device/win32/win32_port.h"

namespace keplin::benchmarks {

Moment ProcessorTime() {
    FILETIME unused{};
    FILETIME kernel{};
    FILETIME user{};
    GetProcessTimes(GetCurrentProcess(), &unused, &unused, &kernel, &user);
    const auto nanoseconds = [](const FILETIME& time) {
        return ((Moment{time.dwHighDateTime} << 32) + Moment{time.dwLowDateTime}) * 100;
    };
    return nanoseconds(kernel) + nanoseconds(user);
}

// What a look for events costs that finds none.
Moment LookTime() {
    constexpr int kLooks = 1000;
    MSG event{};
    const Moment start = Now();
    for (int i = 0; i < kLooks; ++i)
        PeekMessageW(&event, nullptr, 0, 0, PM_NOREMOVE);
    return (Now() - start) / kLooks;
}

}  // namespace keplin::benchmarks

int main(int argc, char** argv) {
    using namespace keplin;
    if (argc != 2) return 2;
    benchmarks::Measurement<WindowsProgram<Win32Port>> measurement(argv[1], "COM2");
    measurement.Update();
    std::cout << "look " << benchmarks::LookTime() << std::endl;
    std::_Exit(0);
}
