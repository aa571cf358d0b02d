// How the panels of a status bar share its width.
#pragma once

#include <span>
#include <vector>

#include "ui/controls.h"

namespace keplin {

// The width of each panel, in the unit of the arguments. `minimums` and `texts` hold for each panel
// its minimum and the width that its text needs, margins included. Panels sized by their text take
// what they need; the others share the rest equally, but none falls below its minimum, and the last
// ones run over the bar's end when the minimums are wider than the bar.
std::vector<float> PanelWidths(const StatusBar& bar, float barWidth,
                               std::span<const float> minimums, std::span<const float> texts);

}  // namespace keplin
