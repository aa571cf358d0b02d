#include "ui/page_look.h"
#include "ui/win32/drawn.h"

namespace keplin::win32 {
namespace {

// Keeps its colour whatever the system's are; what stands on it keeps the system's.
class Container : public Painted {
  public:
    Container(const Control& control, Colour background, const Look& look)
        : Painted(control, look),
          background_(ToRef(background)),
          brush_(CreateSolidBrush(background_)) {}

  protected:
    void Paint(HDC context, const RECT& inside) override { Fill(context, inside, background_); }

    // Hands a press to the button that reports it, and gives its corners the background.
    LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override {
        if (message == WM_CTLCOLORBTN) return reinterpret_cast<LRESULT>(brush_.get());
        if (message == WM_COMMAND && HIWORD(first) == BN_CLICKED && second != 0)
            return SendMessageW(reinterpret_cast<HWND>(second), kPressed, 0, 0);
        return Painted::OnMessage(message, first, second);
    }

  private:
    const COLORREF background_;
    const Gdi<HBRUSH> brush_;
};

class PageControl final : public Container {
  public:
    PageControl(const Page& page, const Look& look, HWND container)
        : Container(page, page.Background, look) {
        Create(container, L"STATIC", WS_CLIPCHILDREN);
    }
};

// A group box to the screen reader; painted plainly, so that its inside is the whole place.
class FrameControl final : public Container {
  public:
    FrameControl(const Frame& frame, const Look& look, HWND container)
        : Container(frame, frame.Background, look), frame_(frame) {
        Create(container, L"BUTTON", BS_GROUPBOX | WS_CLIPCHILDREN);
        Apply(Aspect::Caption);
    }

    void Apply(Aspect aspect) override {
        Container::Apply(aspect);
        if (aspect != Aspect::Caption) return;
        SetText(frame_.Caption);
        Repaint();
    }

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

}  // namespace

std::unique_ptr<Drawn> Make(const Page& page, const Look& look, HWND container) {
    return std::make_unique<PageControl>(page, look, container);
}

std::unique_ptr<Drawn> Make(const Frame& frame, const Look& look, HWND container) {
    return std::make_unique<FrameControl>(frame, look, container);
}

}  // namespace keplin::win32
