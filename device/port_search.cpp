#include "device/port_search.h"

#include <string>

#include "platform/int16.h"
#include "platform/pass_over.h"

namespace keplin {
namespace {

using namespace std::chrono_literals;

constexpr std::int16_t kLastPort = 4;
constexpr std::int32_t kBitsPerSecond = 38400;

}  // namespace

std::int16_t PortSearch::FindDevicePort() {
    PassOver([&] { Port1.DiscardInput(); });
    for (std::int16_t port = 1; port <= kLastPort; ++port) {
        if (TryPort(port)) return port;
    }
    ClosePort();
    return kNoPort;
}

bool PortSearch::TryPort(std::int16_t port) {
    const std::string number = std::to_string(port);
    ClosePort();
    ShowForASecond("Query to Port " + number);
    if (!OpenPort(port)) {
        ClosePort();
        ShowForASecond("Query to Port " + number + "   Port Not Active");
        return false;
    }
    ShowForASecond("Port " + number + " Active.  Ping Test Started");
    controller_.DiscardReceived();
    const bool answered = controller_.PingDevice();
    ShowForASecond("Port " + number + (answered ? " Ping Test Passed" : " Ping Test Failed"));
    return answered;
}

void PortSearch::ShowForASecond(const std::string& text) {
    window_.lblResults.Caption = text;
    desktop_.YieldOnce();
    desktop_.Sleep(1000ms);
}

bool PortSearch::OpenPort(std::int16_t port) {
    try {
        Port1.LineSpeed(kBitsPerSecond);
        Port1.Setting3(0);
        Port1.PortNumber(port);
        PortStatus = ToInt16(Port1.Open());
    } catch (const std::exception&) {
        return false;
    }
    if (PortStatus != 0 && PortStatus != -1) return true;
    ClosePort();
    return false;
}

void PortSearch::ClosePort() {
    if (PortStatus <= 0) return;
    PassOver([&] { PortStatus = ToInt16(Port1.Close()); });
}

}  // namespace keplin
