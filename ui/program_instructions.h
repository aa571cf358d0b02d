// The instruction lines of the programming page.
#pragma once

#include "ui/isp_main.h"

namespace keplin {

// Writes the four lines that tell the technician how to start the update, then yields.
void ShowProgramInstructions(ISPMain& window, Desktop& desktop);

}  // namespace keplin
