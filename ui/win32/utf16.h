// Texts as Windows has them. Everywhere else in the program they are UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace keplin::win32 {

// A byte that is no UTF-8 becomes a replacement character.
std::wstring ToWide(std::string_view utf8);

// Half a character, which a file's name may hold, becomes a replacement character.
std::string ToUtf8(std::wstring_view wide);

}  // namespace keplin::win32
