#include "device/posix/lock_file.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fstream>
#include <iterator>
#include <sstream>

namespace keplin {
namespace {

// The number of the process as text, or as the bytes of an int, which some programs write. 0 when
// the file holds neither.
pid_t ProcessIn(const std::filesystem::path& lockFile) {
    std::ifstream file(lockFile, std::ios::binary);
    const std::string contents{std::istreambuf_iterator<char>(file), {}};
    pid_t process = 0;
    if (contents.size() == sizeof process) {
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
