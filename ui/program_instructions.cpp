#include "ui/program_instructions.h"

namespace keplin {

void ShowProgramInstructions(ISPMain& window, Desktop& desktop) {
    auto& lblPrg = window.lblPrg;
    lblPrg[0].Bold = false;
    lblPrg[0].Caption =
        "1. Verify the Filename listed at the bottom of this program window is correct.";
    lblPrg[1].Caption =
        "2. If OK, click the Update QDX-470 button to begin installing the new update.";
    lblPrg[2].Caption =
        "3. Observe below and verify the Erase process completes without any failures.";
    lblPrg[3].Caption = "4. After the erase process, the device programming will begin.";
    desktop.YieldOnce();
}

}  // namespace keplin
