// What is drawn with: objects of the system that are freed with their owner.
#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

#include "ui/controls.h"
#include "ui/rect.h"

namespace keplin::win32 {

template <typename Handle>
struct DeleteGdi {
    using pointer = Handle;
    void operator()(Handle handle) const { DeleteObject(handle); }
};
template <typename Handle>
using Gdi = std::unique_ptr<std::remove_pointer_t<Handle>, DeleteGdi<Handle>>;

struct DeleteContext {
    using pointer = HDC;
    void operator()(HDC context) const { DeleteDC(context); }
};
using MemoryContext = std::unique_ptr<std::remove_pointer_t<HDC>, DeleteContext>;

// An object that is chosen into a context for as long as this exists.
class Chosen {
  public:
    Chosen(HDC context, HGDIOBJ object)
        : context_(context), before_(SelectObject(context, object)) {}
    ~Chosen() { SelectObject(context_, before_); }
    Chosen(const Chosen&) = delete;
    Chosen& operator=(const Chosen&) = delete;

  private:
    const HDC context_;
    const HGDIOBJ before_;
};

inline COLORREF ToRef(Colour colour) {
    return RGB(colour.red, colour.green, colour.blue);
}

inline RECT ToRect(const PixelRect& rect) {
    return {rect.left, rect.top, rect.Right(), rect.Bottom()};
}

// The size of a window's inside.
inline PixelSize InsideOf(HWND window) {
    RECT inside{};
    GetClientRect(window, &inside);
    return {inside.right, inside.bottom};
}

inline void Fill(HDC context, const RECT& rect, COLORREF colour) {
    SetDCBrushColor(context, colour);
    FillRect(context, &rect, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

// One pixel wide, along the inside of the rectangle.
inline void Outline(HDC context, const RECT& rect, COLORREF colour) {
    SetDCBrushColor(context, colour);
    FrameRect(context, &rect, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

}  // namespace keplin::win32
