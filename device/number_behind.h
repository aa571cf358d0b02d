// The number in a port's name.
#pragma once

#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>
#include <system_error>

namespace keplin {

// The number behind the prefix; nothing when the name has another prefix or no plain number.
inline std::optional<std::uint32_t> NumberBehind(std::string_view prefix, std::string_view name) {
    if (!name.starts_with(prefix)) return std::nullopt;
    const auto digits = name.substr(prefix.size());
    std::uint32_t number = 0;
    const auto* const end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, number);
    if (error != std::errc{} || stop != end) return std::nullopt;
    return number;
}

}  // namespace keplin
