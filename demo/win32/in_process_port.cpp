#include "demo/win32/in_process_port.h"

#include <chrono>

namespace keplin {
namespace {

constexpr std::int32_t kPorts = 2;

simulator::Time Now() {
    return std::chrono::steady_clock::now().time_since_epoch();
}

}  // namespace

std::int32_t InProcessPort::Open() {
    open_ = number_ >= 1 && number_ <= kPorts ? number_ : 0;
    lost_ = Connected() && !wire_.PlugIn();
    DiscardInput();
    return open_;
}

std::int32_t InProcessPort::ReadByte() {
    const auto byte = Connected() && !lost_ ? wire_.ReadAtHost(Now()) : std::nullopt;
    lost_ = Connected() && wire_.HungUp();
    mayWait_ = !byte;
    return byte ? *byte : -1;
}

void InProcessPort::WriteText(std::string_view text) {
    if (open_ == 0 || lost_) throw PortError("there is no line");
    mayWait_ = false;  // a reply may be there by the next yield
    if (!Connected()) return;
    wire_.HostSends({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}, Now());
}

void InProcessPort::DiscardInput() {
    mayWait_ = true;
    if (!Connected()) return;
    wire_.DropArrived(Now());
    lost_ = wire_.HungUp();
}

void InProcessPort::ReopenLostLine() {
    DiscardInput();
    if (lost_) lost_ = !wire_.PlugIn();
}

}  // namespace keplin
