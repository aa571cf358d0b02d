// Owns one handle of the system.
#pragma once

#include <windows.h>

#include <memory>

namespace keplin {

struct HandleCloser {
    void operator()(HANDLE handle) const noexcept { CloseHandle(handle); }
};
using UniqueHandle = std::unique_ptr<void, HandleCloser>;

// Takes the handle over; the invalid one is none.
inline UniqueHandle Own(HANDLE handle) {
    return UniqueHandle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

}  // namespace keplin
