// The activity indicator: a blue block that slides to and fro along a track while an update runs.
#pragma once

#include "ui/isp_main.h"

namespace keplin {

// Shows the track and the block where it last stood, and starts the ticks.
void StartActivity(ISPMain& window);

// Hides the track and the block and stops the ticks; place and direction stay for the next start.
void StopActivity(ISPMain& window);

// One tick: moves the block 15 twips on, and turns it round at the ends of the track.
void Timer1_Timer(ISPMain& window, Desktop& desktop);

}  // namespace keplin
