#include "device/posix/lock_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <sstream>

#include "platform/posix/unique_fd.h"

namespace keplin {
namespace {

// The beginning of the file, as far as it can be read without waiting. Anybody may put anything
// into the folder: what never ends, or waits for a writer, must not hold up a port test.
std::string BeginningOf(const std::filesystem::path& lockFile) {
    const UniqueFd file{::open(lockFile.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC)};
    std::array<char, 64> bytes{};
    const ssize_t count = file ? ::read(file.Get(), bytes.data(), bytes.size()) : -1;
    return {bytes.data(), count > 0 ? static_cast<std::size_t>(count) : 0};
}

// The number of the process as text, or as the bytes of an int, which some programs write. 0 when
// the file holds neither.
pid_t ProcessIn(const std::filesystem::path& lockFile) {
    const std::string contents = BeginningOf(lockFile);
    pid_t process = 0;
    const bool isText = contents.find_first_not_of("0123456789 \n") == std::string::npos;
    if (contents.size() == sizeof process && !isText) {
        std::memcpy(&process, contents.data(), sizeof process);
    } else {
        std::istringstream(contents) >> process;
    }
    return process;
}

// A process of another user may not be signalled, but it is there.
bool IsRunning(pid_t process) {
    return process > 0 && (kill(process, 0) == 0 || errno == EPERM);
}

}  // namespace

bool IsLockedByProcess(const std::string& devicePath, const std::filesystem::path& lockFolder) {
    const auto name = std::filesystem::path(devicePath).filename().string();
    return IsRunning(ProcessIn(lockFolder / ("LCK.." + name)));
}

}  // namespace keplin
