// What the program asks of the desktop it runs on: StandardDesktop does what every system has, and
// QtDesktop and Win32Desktop the rest. The tests bring one with a virtual clock.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace keplin {

// What an open-file dialog is to show. Paths are as in path.h.
struct OpenFileRequest {
    std::string filter;            // "description|pattern"
    std::string title;             // of the dialog's window
    std::string initialDirectory;  // where browsing starts
    bool hideReadOnly = false;     // no check box for opening read-only
};

class Desktop {
  public:
    virtual ~Desktop() = default;

    // Processes the pending window events once. May first wait up to 2 ms for one to arrive while
    // the serial line is idle, so that waiting costs no processor time.
    virtual void YieldOnce() = 0;

    // Blocks for that long, with all that was set on the screen, but for what changes too often to
    // be shown each time; no window event is processed meanwhile.
    virtual void Sleep(std::chrono::milliseconds duration) = 0;

    // Time since some fixed moment; never goes back, whatever happens to the wall clock.
    virtual std::chrono::milliseconds Now() = 0;

    // Shows a modal open-file dialog. The full path chosen or typed (it need not exist), or
    // nothing when the technician cancelled.
    virtual std::optional<std::string> ShowOpen(const OpenFileRequest& request) = 0;

    // The current directory of the process, or a directory in its place where that was deleted.
    virtual std::string CurrentDirectory() = 0;

    // The file's length in bytes. Throws std::runtime_error when it cannot be told.
    virtual std::uint64_t FileLength(const std::string& path) = 0;

    // The file's last modification as text: date, then time, as the technician's locale writes
    // them. Throws std::runtime_error when it cannot be told.
    virtual std::string FileDateTime(const std::string& path) = 0;

    // Keeps the computer from falling asleep (true) or lets it again (false). Where the desktop
    // offers no such service nothing happens. May throw std::exception when it cannot even ask.
    virtual void KeepAwake(bool awake) = 0;

    // Ends the program at once; no further event of the window runs. Does not return.
    [[noreturn]] virtual void End() = 0;
};

}  // namespace keplin
