// The controls that are painted here: one class for each kind of the model's.
#pragma once

#include "ui/page_look.h"
#include "ui/throttle.h"
#include "ui/win32/drawn.h"

namespace keplin::win32 {

// Keeps its colour whatever the system's are; what stands on it keeps the system's.
class Container : public Painted {
  public:
    Container(const Control& control, Colour background, const Look& look, HWND container,
              const wchar_t* windowClass, DWORD style)
        : Painted(control, look, container, windowClass, style | WS_CLIPCHILDREN),
          background_(ToRef(background)) {}

  protected:
    void Paint(HDC context, const RECT& inside) override { Fill(context, inside, background_); }

    // Passes a press on to the window, and gives the corners of a button the background.
    LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override {
        if (message == WM_COMMAND) return SendMessageW(GetParent(Handle()), message, first, second);
        if (message != WM_CTLCOLORBTN) return Painted::OnMessage(message, first, second);
        SetDCBrushColor(reinterpret_cast<HDC>(first), background_);
        return reinterpret_cast<LRESULT>(GetStockObject(DC_BRUSH));
    }

  private:
    const COLORREF background_;
};

class PageControl final : public Container {
  public:
    PageControl(const Page& page, const Look& look, HWND container)
        : Container(page, page.Background, look, container, L"STATIC", 0) {}
};

// A group box to the screen reader; painted plainly, so that its inside is the whole place.
class FrameControl final : public Container {
  public:
    FrameControl(const Frame& frame, const Look& look, HWND container)
        : Container(frame, frame.Background, look, container, L"BUTTON", BS_GROUPBOX),
          frame_(frame) {}

  protected:
    void Paint(HDC context, const RECT& inside) override {
        Container::Paint(context, inside);
        const std::string& caption = frame_.Caption;
        const TextFont& font = Now().fit.Font();
        const PixelSize line = Now().fonts.LineSize(caption, font);
        const FrameParts parts = PartsOfFrame(InsideOf(Handle()), line, Now().scale);
        Outline(context, ToRect(parts.outline), ToRef(OutlineOn(frame_.Background)));
        if (caption.empty()) return;
        Fill(context, ToRect(parts.gap), ToRef(frame_.Background));
        SetTextColor(context, ToRef(kBlack));
        Now().fonts.DrawWrapped(context, caption, font, Alignment::Left, parts.caption);
    }

  private:
    const Frame& frame_;
};

// The colour on which a control stands that is inside this container; nullptr is the window.
inline COLORREF BackgroundIn(const Control* container) {
    if (const auto* frame = dynamic_cast<const Frame*>(container)) return ToRef(frame->Background);
    if (const auto* page = dynamic_cast<const Page*>(container)) return ToRef(page->Background);
    return GetSysColor(COLOR_BTNFACE);
}

class LabelControl final : public Painted {
  public:
    LabelControl(const Label& label, const Look& look, HWND container)
        : Painted(label, look, container, L"STATIC", SS_NOPREFIX), label_(label) {}

    void Apply(Aspect aspect) override {
        Painted::Apply(aspect);
        Refit();
    }

    void Refit() override {
        const TextFont font = Now().fit.FontOf(label_);
        if (font != std::exchange(font_, font)) Repaint();
    }

  protected:
    // On the colour of its container, which shows through it: what of a neighbour below it lies
    // there is blank.
    void Paint(HDC context, const RECT& inside) override {
        const auto& background = label_.Style.background;
        Fill(context, inside, background ? ToRef(*background) : BackgroundIn(label_.Container));
        if (label_.Style.border) Outline(context, inside, ToRef(kBlack));
        const auto colour = TextColourOf(label_);
        SetTextColor(context, colour ? ToRef(*colour) : GetSysColor(COLOR_BTNTEXT));
        Now().fonts.DrawWrapped(context, label_.Caption, font_, label_.Style.alignment,
                                Now().fit.AreaOf(label_));
    }

  private:
    const Label& label_;
    TextFont font_;
};

class PictureControl final : public Painted {
  public:
    PictureControl(const Picture& picture, const Look& look, HWND container)
        : Painted(picture, look, container, L"STATIC", SS_NOPREFIX), picture_(picture) {}

  protected:
    void Paint(HDC context, const RECT& inside) override {
        Fill(context, inside, BackgroundIn(picture_.Container));
        DrawImage(context, picture_.Shows, InsideOf(Handle()));
    }

  private:
    const Picture& picture_;
};

// Filled, or an outline in the window's text colour. It moves sideways a limited number of times a
// second however often its place changes.
class ShapeControl final : public Painted {
  public:
    ShapeControl(const Shape& shape, const Look& look, HWND container)
        : Painted(shape, look, container, L"STATIC", 0), shape_(shape) {}

    void Apply(Aspect aspect) override {
        if (aspect != Aspect::Left) {
            Painted::Apply(aspect);
        } else if (const auto pause = throttle_.Changed()) {
            pause->count() == 0 ? OnTimer() : StartTimer(*pause);
        }
    }

  protected:
    // Only moves it: a width that changed with the rounding would shimmer.
    void OnTimer() override {
        StopTimer();
        throttle_.WasShown();
        SetPlace(PlaceNow(), SWP_NOSIZE);
    }

    void Paint(HDC context, const RECT& inside) override {
        Fill(context, inside, shape_.Fill ? ToRef(*shape_.Fill) : BackgroundIn(shape_.Container));
        if (!shape_.Fill) Outline(context, inside, GetSysColor(COLOR_BTNTEXT));
    }

  private:
    const Shape& shape_;
    Throttle throttle_{Throttle::kShape};
};

}  // namespace keplin::win32
