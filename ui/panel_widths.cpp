#include "ui/panel_widths.h"

#include <algorithm>

namespace keplin {

std::vector<float> PanelWidths(const StatusBar& bar, float barWidth,
                               std::span<const float> minimums, std::span<const float> texts) {
    std::vector<float> widths(bar.PanelCount());
    float left = barWidth;
    float sharing = 0;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        if (bar.Panels(i + 1).Sizing == PanelSizing::Share) {
            ++sharing;
        } else {
            widths[i] = std::max(minimums[i], texts[i]);
            left -= widths[i];
        }
    }
    for (std::size_t i = 0; i < widths.size(); ++i) {
        if (bar.Panels(i + 1).Sizing == PanelSizing::Share) {
            widths[i] = std::max(minimums[i], left / sharing);
        }
    }
    return widths;
}

}  // namespace keplin
