#include "device/posix/port_list.h"

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <map>
#include <string_view>
#include <system_error>

#include "device/number_behind.h"

namespace keplin {
namespace {

namespace fs = std::filesystem;

// The kernel keeps names ready for ports that the board does not have; their type is 0.
bool HasHardware(const fs::path& ttyClassFolder, const std::string& name) {
    std::ifstream file(ttyClassFolder / name / "type");
    int type = 0;
    return file >> type && type != 0;
}

std::map<std::uint32_t, std::string> NamesByNumber(const fs::path& folder,
                                                   std::string_view prefix) {
    std::map<std::uint32_t, std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; entry != end; entry.increment(error)) {
        auto name = entry->path().filename().string();
        if (const auto number = NumberBehind(prefix, name)) names.emplace(*number, std::move(name));
    }
    return names;
}

}  // namespace

std::vector<std::string> ComputerPorts(const fs::path& deviceFolder,
                                       const fs::path& ttyClassFolder) {
    std::vector<std::string> ports;
    for (const std::string_view prefix : {"ttyUSB", "ttyACM", "ttyS"}) {
        for (const auto& [number, name] : NamesByNumber(deviceFolder, prefix)) {
            if (prefix == "ttyS" && !HasHardware(ttyClassFolder, name)) continue;
            ports.push_back((deviceFolder / name).string());
        }
    }
    return ports;
}

}  // namespace keplin
