// When a file was last modified.
#pragma once

#include <array>
#include <stdexcept>

#include "platform/win32/utf16.h"

namespace keplin::win32 {

// The date, then the time, as the technician has them written. Throws std::runtime_error when it
// cannot be told.
inline std::string FileDate(const std::string& path) {
    constexpr int kLongest = 80;  // characters of a date or a time
    WIN32_FILE_ATTRIBUTE_DATA facts{};
    SYSTEMTIME universal{};
    SYSTEMTIME time{};
    if (!GetFileAttributesExW(ToWide(path).c_str(), GetFileExInfoStandard, &facts) ||
        !FileTimeToSystemTime(&facts.ftLastWriteTime, &universal) ||
        !SystemTimeToTzSpecificLocalTime(nullptr, &universal, &time)) {
        throw std::runtime_error("no date of " + path);
    }
    std::array<wchar_t, kLongest> date{};
    std::array<wchar_t, kLongest> clock{};
    GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &time, nullptr, date.data(), kLongest,
                    nullptr);
    GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, TIME_NOSECONDS, &time, nullptr, clock.data(),
                    kLongest);
    return ToUtf8(date.data()) + " " + ToUtf8(clock.data());
}

}  // namespace keplin::win32
