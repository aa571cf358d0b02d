// An object of the system that is let go of with its last owner.
#pragma once

#include <wrl/client.h>

#include "platform/win32/system_call.h"

namespace keplin::win32 {

template <typename Interface>
using Object = Microsoft::WRL::ComPtr<Interface>;

// To be called before the system is asked for one, or for what uses some itself: a dialog, a shell.
inline void BeginObjects() {
    static const auto begin = SystemCall<decltype(CoInitializeEx)>(L"ole32.dll", "CoInitializeEx");
    [[maybe_unused]] static const auto begun = begin(nullptr, COINIT_APARTMENTTHREADED);
}

// The system's object of that class; empty where it has none.
template <typename Interface>
Object<Interface> ObjectOf(const CLSID& objectClass, const IID& interfaceId) {
    static const auto make =
        SystemCall<decltype(CoCreateInstance)>(L"ole32.dll", "CoCreateInstance");
    BeginObjects();
    Object<Interface> made;
    make(objectClass, nullptr, CLSCTX_INPROC_SERVER, interfaceId, &made);
    return made;
}

}  // namespace keplin::win32
