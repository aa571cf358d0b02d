#include "ui/accessible_text.h"
#include "ui/page_look.h"
#include "ui/win32/drawn.h"

namespace keplin::win32 {
namespace {

class LabelControl final : public Painted {
  public:
    LabelControl(const Label& label, const Look& look, HWND container)
        : Painted(label, look), label_(label) {
        Create(container, L"STATIC", SS_NOPREFIX);
        Apply(Aspect::Caption);
    }

    void Apply(Aspect aspect) override {
        Painted::Apply(aspect);
        if (aspect == Aspect::Caption) {
            SetText(AccessibleTextOf(label_).name);
            Repaint();
        }
        Refit();
    }

    void Refit() override {
        const TextFont font = Now().fit.FontOf(label_);
        if (font == font_) return;
        font_ = font;
        Repaint();
    }

    void Rescale() override {
        Painted::Rescale();
        Refit();
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

}  // namespace

std::unique_ptr<Drawn> Make(const Label& label, const Look& look, HWND container) {
    return std::make_unique<LabelControl>(label, look, container);
}

}  // namespace keplin::win32
