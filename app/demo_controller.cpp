#include "app/demo_controller.h"

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

DemoController::DemoController(const std::vector<simulator::FaultAt>& faults)
    : controller_(loader_, kSeed), port1_(nobody_), port2_(WithFaults(controller_, faults)) {}

std::string DemoController::DevicePath(std::int32_t port) const {
    if (port == 1) return port1_.DevicePath();
    if (port == 2) return port2_.DevicePath();
    return "";
}

DemoController::Memory DemoController::ReadMemory() {
    return port2_.WithDevice([this] {
        const auto cells = loader_.Memory().Cells();
        return Memory(cells.begin(), cells.end());
    });
}

}  // namespace keplin
