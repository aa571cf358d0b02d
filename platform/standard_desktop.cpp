#include "platform/standard_desktop.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/path.h"

namespace keplin {

StandardDesktop::StandardDesktop(Hooks hooks) : hooks_(std::move(hooks)) {}

std::chrono::milliseconds StandardDesktop::Now() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now);
}

std::optional<std::string> StandardDesktop::ShowOpen(const OpenFileRequest& request) {
    return hooks_.openFile ? hooks_.openFile(request) : AskForFile(request);
}

std::string StandardDesktop::CurrentDirectory() {
    std::error_code deleted;
    const auto path = std::filesystem::current_path(deleted);
    if (!deleted) return FromPath(path);
    const char* home = std::getenv("HOME");
    return home != nullptr && *home != '\0' ? home : "/";
}

std::uint64_t StandardDesktop::FileLength(const std::string& path) {
    return std::filesystem::file_size(ToPath(path));
}

// Output that is still in a buffer goes out first; nothing else of the program runs any more.
void StandardDesktop::End() {
    int exitCode = 0;
    try {
        if (hooks_.beforeEnd) exitCode = hooks_.beforeEnd();
    } catch (const std::exception&) {  // the program ends all the same
        exitCode = 1;
    }
    std::fflush(nullptr);
    std::_Exit(exitCode);
}

}  // namespace keplin
