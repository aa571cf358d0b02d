// Functions of the system that are looked up when they are first needed: a library that few moments
// need does not keep the window waiting, and one that not every system has keeps nothing from
// starting.
#pragma once

#include <windows.h>

namespace keplin {

// nullptr where the library or the function is missing. `Function` is its type.
template <typename Function>
Function* SystemCall(const wchar_t* library, const char* name) {
    const HMODULE module = LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (module == nullptr) return nullptr;
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

}  // namespace keplin
