#include "device/com_ports.h"

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string_view>

namespace keplin {
namespace {

constexpr std::size_t kNumbers = 4;

// 0 when it is no COM port.
std::uint32_t NumberOf(std::string_view name) {
    if (!name.starts_with("COM")) return 0;
    std::uint32_t number = 0;
    const char* const end = name.data() + name.size();
    const auto [stop, error] = std::from_chars(name.data() + 3, end, number);
    return error == std::errc{} && stop == end ? number : 0;
}

}  // namespace

std::vector<std::string> ByPortNumber(const std::vector<std::string>& names) {
    std::vector<std::string> ports(kNumbers);
    std::set<std::uint32_t> others;
    for (const std::string& name : names) {
        const std::uint32_t number = NumberOf(name);
        if (number > kNumbers) others.insert(number);
        if (number > 0 && number <= kNumbers) ports[number - 1] = name;
    }
    std::size_t next = 0;
    for (const std::uint32_t number : others) {
        while (next < ports.size() && !ports[next].empty())
            ++next;
        if (next == ports.size()) ports.emplace_back();
        ports[next] = "COM" + std::to_string(number);
    }
    return ports;
}

}  // namespace keplin
