// Work that a driver can hold up for long.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <utility>

#include "platform/win32/owned.h"

namespace keplin {

// Whether the work ended in time. Otherwise its thread stays behind with what it holds. False too
// where the system has no thread left.
inline bool EndsWithin(std::chrono::milliseconds limit, std::function<void()> work) {
    // Not std::thread: with that of MinGW 12 a wait missed the end now and then, and the heap
    // broke.
    using Work = std::function<void()>;
    const auto run = [](void* given) -> DWORD {
        const std::unique_ptr<Work> owned(static_cast<Work*>(given));
        (*owned)();
        return 0;
    };
    auto owned = std::make_unique<Work>(std::move(work));
    const UniqueHandle thread = Own(CreateThread(nullptr, 0, run, owned.get(), 0, nullptr));
    if (!thread) return false;
    static_cast<void>(owned.release());  // the thread owns it now
    return WaitForSingleObject(thread.get(), static_cast<DWORD>(limit.count())) == WAIT_OBJECT_0;
}

}  // namespace keplin
