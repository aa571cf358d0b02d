// keplin-demo: the whole program with a simulated controller plugged in.
#include <windows.h>
// Behind it.
#include <shellapi.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <vector>

#include "app/win32/program.h"
#include "app/win32/program_folder.h"
#include "demo/options.h"
#include "demo/outcome.h"
#include "demo/walk.h"
#include "demo/win32/in_process_port.h"
#include "demo/win32/mark.h"
#include "demo/win32/save_picture.h"
#include "platform/path.h"
#include "platform/win32/utf16.h"
#include "simulator/faulty_device.h"

namespace keplin {
namespace {

constexpr std::uint32_t kSeed = 1;

class Demonstration {
  public:
    explicit Demonstration(DemoOptions options)
        : options_(std::move(options)),
          controller_(loader_, kSeed, options_.faults),
          program_(PluggedIn{controller_, options_.port},
                   HooksOf(options_, [this] { return End(); })),
          ribbon_(MarkAsDemonstration(program_.drawing, program_.window)) {}

    [[noreturn]] void Run() {
        if (!options_.walk) program_.Run();
        Walk walk(
            program_.window, options_, [this](const Button& button) { Press(button); },
            [this](const std::string& path) { return SaveWindow(path); });
        program_.session.Main();
        program_.desktop.YieldOnce();
        walk.Go();
        program_.desktop.Run();
    }

  private:
    int End() {
        return EndOfDemo(options_, program_.window.UpdateComplete(), loader_.Memory().Cells());
    }

    // As the button itself reports it; what it does is done in the next yield.
    void Press(const Button& button) {
        const HWND handle = program_.drawing.HandleOf(button);
        SendMessageW(GetParent(handle), WM_COMMAND, MAKEWPARAM(0, BN_CLICKED),
                     reinterpret_cast<LPARAM>(handle));
        program_.desktop.YieldOnce();
    }

    bool SaveWindow(const std::string& path) {
        ShowWindow(ribbon_, SW_HIDE);
        program_.drawing.PaintNow();
        const bool saved = SavePicture(program_.drawing.Handle(), path);
        ShowWindow(ribbon_, SW_SHOWNA);
        return saved;
    }

    DemoOptions options_;
    simulator::Loader loader_;
    simulator::FaultyDevice controller_;
    WindowsProgram<InProcessPort> program_;
    const HWND ribbon_;
};

// The command line in UTF-8.
std::vector<std::string> Arguments() {
    int count = 0;
    wchar_t** wide = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments(static_cast<std::size_t>(count));
    std::transform(wide, wide + count, arguments.begin(), win32::ToUtf8);
    return arguments;
}

// A program with a window has no place to print to, unless it was started from a console or its
// output goes to a file.
void PrintToConsole() {
    if (GetStdHandle(STD_OUTPUT_HANDLE) != nullptr || !AttachConsole(ATTACH_PARENT_PROCESS)) return;
    std::freopen("CONOUT$", "w", stdout);
    std::freopen("CONOUT$", "w", stderr);
}

}  // namespace
}  // namespace keplin

int main() try {
    using namespace keplin;
    PrintToConsole();
    std::vector<std::string> arguments = Arguments();
    std::vector<char*> pointers(arguments.size());
    std::transform(arguments.begin(), arguments.end(), pointers.begin(),
                   [](std::string& argument) { return argument.data(); });
    const std::filesystem::path sample = ProgramFolder() / "QDX-470-sample.HEX";
    int exitCode = 0;
    auto options = ReadDemoOptions(static_cast<int>(pointers.size()), pointers.data(),
                                   FromPath(sample), exitCode);
    if (!options) return exitCode;
    Demonstration(std::move(*options)).Run();
} catch (const std::exception& error) {
    std::fprintf(stderr, "keplin-demo: %s\n", error.what());
    return 2;
}
