#include "ui/throttle.h"
#include "ui/win32/drawn.h"

namespace keplin::win32 {
namespace {

// Filled, or an outline in the window's text colour. It moves sideways a limited number of times a
// second however often its place changes.
class ShapeControl final : public Painted {
  public:
    ShapeControl(const Shape& shape, const Look& look, HWND container)
        : Painted(shape, look), shape_(shape) {
        Create(container, L"STATIC", 0);
    }

    void Apply(Aspect aspect) override {
        if (aspect != Aspect::Left) {
            Painted::Apply(aspect);
        } else if (const auto pause = throttle_.Changed()) {
            pause->count() == 0 ? MoveSideways() : StartTimer(*pause);
        }
    }

  protected:
    LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override {
        if (message != WM_TIMER) return Painted::OnMessage(message, first, second);
        MoveSideways();
        return 0;
    }

    void Paint(HDC context, const RECT& inside) override {
        Fill(context, inside, shape_.Fill ? ToRef(*shape_.Fill) : BackgroundIn(shape_.Container));
        if (!shape_.Fill) Outline(context, inside, GetSysColor(COLOR_BTNTEXT));
    }

  private:
    // Only moves it: a width that changed with the rounding would shimmer.
    void MoveSideways() {
        StopTimer();
        throttle_.WasShown();
        const PixelRect place = PlaceNow();
        SetWindowPos(Handle(), nullptr, place.left, place.top, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }

    const Shape& shape_;
    Throttle throttle_{Throttle::kShape};
};

}  // namespace

std::unique_ptr<Drawn> Make(const Shape& shape, const Look& look, HWND container) {
    return std::make_unique<ShapeControl>(shape, look, container);
}

}  // namespace keplin::win32
