// What the panels of a status bar show, and where.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ui/scale.h"

namespace keplin {

// How wide a text is on one line, in pixels, in the font of the panels.
using TextWidth = std::function<int(const std::string&)>;

// The text, or as much of its beginning and its end as the room has place for, as wide as each
// other, with an ellipsis between them. No character is cut in two. "" where there is no room for
// the ellipsis. `text` is UTF-8; a byte that is none counts as a character.
std::string ShortenedInMiddle(const std::string& text, int room, const TextWidth& width);

struct PanelView {
    PixelRect place;      // in the bar, bevel included
    int margin = 0;       // between the bevel and the text
    std::string text;     // that is shown in one line
    std::string toolTip;  // the whole text where it is shown shortened, or else ""
};

// Each panel of a bar of that size, which may change with any text in the bar. `bevel`: how wide
// the drawing paints a panel's edge, in pixels.
std::vector<PanelView> ArrangePanels(const StatusBar& bar, PixelSize size, const Scale& scale,
                                     int bevel, const TextWidth& width);

}  // namespace keplin
