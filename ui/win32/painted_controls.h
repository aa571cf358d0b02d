// The controls that are painted here: one class for each kind of the model's.
#pragma once

#include "ui/page_look.h"
#include "ui/win32/drawn.h"

namespace keplin::win32 {

// Keeps its colour whatever the system's are; what stands on it keeps the system's.
template <typename Kind>
class Container : public DrawnAs<Kind, Painted> {
  public:
    Container(const Kind& control, const Look& look, HWND container,
              const wchar_t* windowClass = L"STATIC", DWORD style = 0)
        : DrawnAs<Kind, Painted>(control, look, container, windowClass, style | WS_CLIPCHILDREN) {}

  protected:
    void Paint(HDC context, const RECT& inside) override {
        Fill(context, inside, ToRef(this->model_.Background));
    }

    // Gives the corners of a button the background.
    LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override {
        if (message != WM_CTLCOLORBTN) return Painted::OnMessage(message, first, second);
        const HDC context = reinterpret_cast<HDC>(first);
        return reinterpret_cast<LRESULT>(Brush(context, ToRef(this->model_.Background)));
    }
};

// A group box to the screen reader; painted plainly, so that its inside is the whole place.
class FrameControl final : public Container<Frame> {
  public:
    FrameControl(const Frame& frame, const Look& look, HWND container)
        : Container(frame, look, container, L"BUTTON", BS_GROUPBOX) {}

  protected:
    void Paint(HDC context, const RECT& inside) override {
        Container::Paint(context, inside);
        const std::string& caption = model_.Caption;
        const TextFont& font = Now().fit.Font();
        const PixelSize line = Now().fonts.LineSize(caption, font);
        const FrameParts parts = PartsOfFrame(InsideOf(Handle()), line, Now().scale);
        Outline(context, ToRect(parts.outline), ToRef(OutlineOn(model_.Background)));
        if (caption.empty()) return;
        Fill(context, ToRect(parts.gap), ToRef(model_.Background));
        SetTextColor(context, ToRef(kBlack));
        Now().fonts.DrawWrapped(context, caption, font, Alignment::Left, parts.caption);
    }
};

class LabelControl final : public DrawnAs<Label, Painted> {
  public:
    using DrawnAs::DrawnAs;

    void Apply(Aspect aspect) override {
        Drawn::Apply(aspect);
        Refit();
    }

    void Refit() override {
        const TextFont font = Now().fit.FontOf(model_);
        if (font != std::exchange(font_, font)) Repaint();
    }

  protected:
    // On the colour of its container, which shows through it: what of a neighbour below it lies
    // there is blank.
    void Paint(HDC context, const RECT& inside) override {
        const auto& own = model_.Style.background;
        Fill(context, inside, ToRef(own ? own : BackgroundBehind(model_), COLOR_BTNFACE));
        if (model_.Style.border) Outline(context, inside, ToRef(kBlack));
        SetTextColor(context, ToRef(TextColourOf(model_), COLOR_BTNTEXT));
        Now().fonts.DrawWrapped(context, model_.Caption, font_, model_.Style.alignment,
                                Now().fit.AreaOf(model_));
    }

  private:
    TextFont font_ = Now().fit.FontOf(model_);
};

class PictureControl final : public DrawnAs<Picture, Painted> {
  public:
    using DrawnAs::DrawnAs;

  protected:
    void Paint(HDC context, const RECT& inside) override {
        Fill(context, inside, ToRef(BackgroundBehind(model_), COLOR_BTNFACE));
        DrawImage(context, model_.Shows, InsideOf(Handle()));
    }
};

// Filled, or an outline in the window's text colour. It moves sideways a limited number of times a
// second however often its place changes.
class ShapeControl final : public DrawnAs<Shape, Painted> {
  public:
    using DrawnAs::DrawnAs;

    void Apply(Aspect aspect) override {
        aspect == Aspect::Left ? ShowSoon(throttle_) : Drawn::Apply(aspect);
    }

  protected:
    // Only moves it: a width that changed with the rounding would shimmer.
    void ShowNow() override {
        throttle_.WasShown();
        SetPlace(PlaceNow(), SWP_NOSIZE);
    }

    [[nodiscard]] bool IsPlain() const override { return true; }

    void Paint(HDC context, const RECT& inside) override {
        const auto& own = model_.Fill;
        const RECT rest = own ? inside : Outline(context, inside, GetSysColor(COLOR_BTNTEXT));
        Fill(context, rest, ToRef(own ? own : BackgroundBehind(model_), COLOR_BTNFACE));
    }

  private:
    Throttle throttle_{Throttle::kShape};
};

}  // namespace keplin::win32
