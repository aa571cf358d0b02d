#include "demo/controller.h"

namespace keplin {
namespace {

constexpr std::uint32_t kSeed = 1;

simulator::FaultyDevice& WithFaults(simulator::FaultyDevice& device,
                                    const std::vector<simulator::FaultAt>& faults) {
    for (const simulator::FaultAt& fault : faults)
        device.Inject(fault);
    return device;
}

}  // namespace

DemoController::DemoController(std::int32_t port, const std::vector<simulator::FaultAt>& faults)
    : port_(port),
      controller_(loader_, kSeed),
      silentLine_(nobody_),
      line_(WithFaults(controller_, faults)) {}

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
