// The search for the serial port on which the controller answers.
#pragma once

#include <cstdint>

#include "device/device_exchange.h"
#include "device/serial_port.h"
#include "platform/desktop.h"
#include "ui/isp_main.h"

namespace keplin {

inline constexpr std::int16_t kNoPort = -1;

class PortSearch {
  public:
    PortSearch(ISPMain& window, SerialPort& port, DeviceExchange& controller, Desktop& desktop)
        : window_(window), Port1(port), controller_(controller), desktop_(desktop) {}

    // Tries ports 1 to 4 in ascending order and tells each step in lblResults, a second for each.
    // The number of the first port on which the controller answered a ping, which stays open, or
    // kNoPort, and then every port is closed.
    std::int16_t FindDevicePort();

    // True when the port, 1 to 4, is open now at the loader's speed. Any failure gives False.
    bool OpenPort(std::int16_t port);

    // Closes the open port, if there is one. A close that fails is passed over.
    void ClosePort();

    // What Open or Close last gave: above 0 a port is open, 0 and -1 none is.
    std::int16_t PortStatus = 0;

  private:
    bool TryPort(std::int16_t port);
    void ShowForASecond(const std::string& text);

    ISPMain& window_;
    SerialPort& Port1;
    DeviceExchange& controller_;
    Desktop& desktop_;
};

}  // namespace keplin
