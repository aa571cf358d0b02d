// Functions of the system that not every Windows has.
#pragma once

#include <windows.h>

namespace keplin::win32 {

// nullptr where the library or the function is missing. `Function` is its type.
template <typename Function>
Function* SystemCall(const wchar_t* library, const char* name) {
    const HMODULE module = LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (module == nullptr) return nullptr;
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

}  // namespace keplin::win32
