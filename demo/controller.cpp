#include "demo/controller.h"

namespace keplin {
namespace {

constexpr std::uint32_t kSeed = 1;

}  // namespace

DemoController::DemoController(std::int32_t port, const std::vector<simulator::FaultAt>& faults)
    : port_(port), controller_(loader_, kSeed, faults), silentLine_(nobody_), line_(controller_) {}

std::vector<std::string> DemoController::DevicePaths() const {
    if (port_ == 1) return {line_.DevicePath(), silentLine_.DevicePath()};
    return {silentLine_.DevicePath(), line_.DevicePath()};
}

DemoController::Memory DemoController::ReadMemory() {
    return line_.WithDevice([this] {
        const auto cells = loader_.Memory().Cells();
        return Memory(cells.begin(), cells.end());
    });
}

}  // namespace keplin
