#include "device/win32/port_list.h"

#include <windows.h>

#include <array>

#include "device/com_ports.h"
#include "platform/win32/owned.h"

namespace keplin {

// The system keeps one value for each device: its name is the driver's, its text the port's. The
// names that matter are ASCII.
std::vector<std::string> ComputerPorts() {
    HKEY key = nullptr;
    RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"HARDWARE\\DEVICEMAP\\SERIALCOMM", 0, KEY_READ, &key);
    const Owned<HKEY, RegCloseKey> map(key);
    std::vector<std::string> names;
    for (DWORD i = 0; map; ++i) {
        std::array<char, 256> device{};
        std::array<char, 256> port{};
        DWORD length = device.size();
        DWORD bytes = port.size() - 1;
        DWORD type = 0;
        const auto result = RegEnumValueA(map.get(), i, device.data(), &length, nullptr, &type,
                                          reinterpret_cast<BYTE*>(port.data()), &bytes);
        if (result == ERROR_MORE_DATA) continue;  // no port has so long a name
        if (result != ERROR_SUCCESS) break;
        if (type == REG_SZ) names.push_back(port.data());
    }
    return ByPortNumber(names);
}

}  // namespace keplin
