// The first phase of an update: the three blocks of the controller's program memory are erased.
#pragma once

#include "device/device_exchange.h"
#include "platform/desktop.h"
#include "ui/isp_main.h"

namespace keplin {

// Pings and calibrates the loader, then erases blocks 1, 2 and 3, telling each step in lblPrgm and
// ProgressBar1. False as soon as a step fails; the page keeps what the last step showed.
bool EraseDevice(ISPMain& window, DeviceExchange& controller, Desktop& desktop);

}  // namespace keplin
