#include "device/com_ports.h"

#include <cstddef>
#include <cstdint>
#include <set>

#include "device/number_behind.h"

namespace keplin {
namespace {

constexpr std::size_t kNumbers = 4;

}  // namespace

std::vector<std::string> ByPortNumber(const std::vector<std::string>& names) {
    std::vector<std::string> ports(kNumbers);
    std::set<std::uint32_t> others;
    for (const std::string& name : names) {
        const std::uint32_t number = NumberBehind("COM", name).value_or(0);
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
