// Colours and insets of what a drawing paints itself: a page keeps its colour whatever the
// desktop's theme is, so what is painted on it keeps its own.
#pragma once

#include "ui/scale.h"

namespace keplin {

inline constexpr Colour kBlack{0, 0, 0};

// Nothing where the text has the colour that the desktop gives to the texts of a window.
std::optional<Colour> TextColourOf(const Label& label);

// On what the control stands: the colour of its frame or page; nothing where that is the window.
std::optional<Colour> BackgroundBehind(const Control& control);

// The outline of a frame on a background: the same, darker. That of a label is black.
Colour OutlineOn(Colour background);

// A frame, in pixels from its top-left corner. All outlines are one pixel of the screen wide and
// lie inside their rectangle.
struct FrameParts {
    PixelRect outline;  // of the frame: it runs through the middle of the caption
    PixelRect gap;      // in the outline around the caption, in the background's colour
    PixelRect caption;  // black, where there is one
};

// `frame`: the frame's size; `caption`: the width of its text, the height of its line.
FrameParts PartsOfFrame(PixelSize frame, PixelSize caption, const Scale& scale);

}  // namespace keplin
