// What has come of a demonstration.
#pragma once

#include <cstdint>
#include <span>

#include "demo/options.h"

namespace keplin {

// Saves the controller's memory where the options want it, and after a walk says on standard output
// whether the completion page was reached and the memory holds what the file describes. The exit
// code: 0 when nothing was to be done, or was done and is true.
int EndOfDemo(const DemoOptions& options, bool completed, std::span<const std::uint8_t> memory);

}  // namespace keplin
