// Owns one thing of the system: a handle, a key, a text.
#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

namespace keplin {

template <auto Free>
struct FreeBy {
    template <typename Thing>
    void operator()(Thing* thing) const noexcept {
        Free(thing);
    }
};

// `Free` is the function of the system that takes it back; nullptr is none.
template <typename Handle, auto Free>
using Owned = std::unique_ptr<std::remove_pointer_t<Handle>, FreeBy<Free>>;

using UniqueHandle = Owned<HANDLE, CloseHandle>;

// Takes the handle over; the invalid one is none.
inline UniqueHandle Own(HANDLE handle) {
    return UniqueHandle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

}  // namespace keplin
