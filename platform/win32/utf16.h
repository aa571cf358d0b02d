// Texts as Windows has them. Everywhere else in the program they are UTF-8.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace keplin::win32 {

// A byte that is no UTF-8 becomes a replacement character.
inline std::wstring ToWide(std::string_view utf8) {
    const int length = static_cast<int>(utf8.size());
    std::wstring wide(utf8.size(), L'\0');  // never longer than its UTF-8
    const int size = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, wide.data(), length);
    wide.resize(static_cast<std::size_t>(size));
    return wide;
}

// Half a character, which a file's name may hold, becomes a replacement character.
inline std::string ToUtf8(std::wstring_view wide) {
    const int length = static_cast<int>(wide.size());
    std::string utf8(3 * wide.size(), '\0');  // the most that 16 bits become
    const int size = WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, utf8.data(), 3 * length,
                                         nullptr, nullptr);
    utf8.resize(static_cast<std::size_t>(size));
    return utf8;
}

}  // namespace keplin::win32
