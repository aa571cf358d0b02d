// An object of the system that is let go of with its last owner.
#pragma once

#include <windows.h>
#include <wrl/client.h>

namespace keplin::win32 {

template <typename Interface>
using Object = Microsoft::WRL::ComPtr<Interface>;

// The system's object of that class; empty where it has none.
template <typename Interface>
Object<Interface> ObjectOf(const CLSID& objectClass, const IID& interfaceId) {
    Object<Interface> made;
    CoCreateInstance(objectClass, nullptr, CLSCTX_INPROC_SERVER, interfaceId, &made);
    return made;
}

}  // namespace keplin::win32
