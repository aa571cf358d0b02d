// Paths as the program hands them around: UTF-8, which on POSIX systems means the bytes of the file
// system, whatever they are.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace keplin {

// Throws std::exception where the system cannot express the text as a path.
inline std::filesystem::path ToPath(std::string_view text) {
    return std::u8string(text.begin(), text.end());
}

// The reverse; throws as above.
inline std::string FromPath(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

}  // namespace keplin
