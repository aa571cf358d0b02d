// Where the program stands.
#pragma once

#include <windows.h>

#include <filesystem>
#include <string>

namespace keplin {

inline std::filesystem::path ProgramFolder() {
    constexpr std::size_t kLongestPath = 32768;
    std::wstring path(kLongestPath, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return std::filesystem::path(path).parent_path();
}

}  // namespace keplin
