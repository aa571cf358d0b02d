// How the model's places, colours and pictures come into a context of the system.
#pragma once

#include <windows.h>

#include "platform/win32/gdi_objects.h"
#include "ui/controls.h"
#include "ui/rect.h"

namespace keplin::win32 {

inline COLORREF ToRef(Colour colour) {
    return RGB(colour.red, colour.green, colour.blue);
}

// `system`: the number of the system's colour that stands for none.
inline COLORREF ToRef(const std::optional<Colour>& colour, int system) {
    return colour ? ToRef(*colour) : GetSysColor(system);
}

inline RECT ToRect(const PixelRect& rect) {
    return {rect.left, rect.top, rect.Right(), rect.Bottom()};
}

inline RECT ToRect(PixelSize size) {
    return {0, 0, size.width, size.height};
}

// The size of a window's inside.
inline PixelSize InsideOf(HWND window) {
    RECT inside{};
    GetClientRect(window, &inside);
    return {inside.right, inside.bottom};
}

// To be used in the context before another one is asked for.
inline HBRUSH Brush(HDC context, COLORREF colour) {
    SetDCBrushColor(context, colour);
    return static_cast<HBRUSH>(GetStockObject(DC_BRUSH));
}

inline void Fill(HDC context, const RECT& rect, COLORREF colour) {
    FillRect(context, &rect, Brush(context, colour));
}

// One pixel wide, along the inside of the rectangle. What it leaves of that.
inline RECT Outline(HDC context, RECT rect, COLORREF colour) {
    FrameRect(context, &rect, Brush(context, colour));
    InflateRect(&rect, -1, -1);
    return rect;
}

// Draws the picture from the top-left corner, in that size.
void DrawImage(HDC context, Picture::Image image, PixelSize size);

// The program's icon, as wide as one of these two of the system: SM_CXICON or SM_CXSMICON. The
// system keeps it.
HICON ProgramIcon(int size);

}  // namespace keplin::win32
