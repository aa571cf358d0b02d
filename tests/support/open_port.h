// What opening a serial line gives, to this program, to another one and to another user.
#pragma once

#include <sys/wait.h>

#include "device/posix/posix_port.h"

namespace keplin::test {

inline std::int32_t OpenPort(PosixPort& port, std::int32_t number, std::int32_t speed = 38400) {
    port.LineSpeed(speed);
    port.Setting3(0);
    port.PortNumber(number);
    return port.Open();
}

// A computer on which port 1 is this one and there is no other.
inline DevicePaths Only(const std::string& path) {
    return [path] { return std::vector{path}; };
}

// What opening this path gives to somebody else.
inline std::int32_t OpenAnother(const std::filesystem::path& path,
                                const std::filesystem::path& lockFolder = "/nowhere") {
    PosixPort port(Only(path), lockFolder);
    return OpenPort(port, 1);
}

// The same without the privileges of root; the caller has them.
inline std::int32_t OpenAsNobody(const std::filesystem::path& path,
                                 const std::filesystem::path& lockFolder = "/nowhere") {
    constexpr unsigned kNobody = 65534;
    const pid_t child = fork();
    if (child == 0) {
        const bool changed = setgid(kNobody) == 0 && setuid(kNobody) == 0;
        _exit(changed ? OpenAnother(path, lockFolder) : 99);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace keplin::test
