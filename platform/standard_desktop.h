// What of the desktop the standard library offers on every system.
#pragma once

#include <functional>

#include "platform/desktop.h"

namespace keplin {

class StandardDesktop : public Desktop {
  public:
    // What the program around it may want otherwise. An empty function changes nothing.
    struct Hooks {
        // Answers in place of the open-file dialog.
        std::function<std::optional<std::string>(const OpenFileRequest&)> openFile = {};
        // Runs right before the program ends and gives its exit code, which is 0 without it.
        std::function<int()> beforeEnd = {};
    };

    explicit StandardDesktop(Hooks hooks);

    std::chrono::milliseconds Now() final;
    std::optional<std::string> ShowOpen(const OpenFileRequest& request) final;
    std::string CurrentDirectory() final;
    std::uint64_t FileLength(const std::string& path) final;
    [[noreturn]] void End() final;

  private:
    // Shows the desktop's own dialog, as ShowOpen.
    virtual std::optional<std::string> AskForFile(const OpenFileRequest& request) = 0;

    const Hooks hooks_;
};

}  // namespace keplin
