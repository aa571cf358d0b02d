#include "ui/win32/drawn.h"

namespace keplin::win32 {
namespace {

// To the system a single ampersand would be the mark of a shortcut.
std::string WithoutShortcut(const std::string& caption) {
    std::string text;
    for (const char letter : caption)
        text.append(letter == '&' ? 2 : 1, letter);
    return text;
}

// Takes no press that was not meant for it. A press becomes a message of its own: whoever made it,
// a screen reader for instance, need not wait for what it does.
class ButtonControl final : public Drawn {
  public:
    ButtonControl(const Button& button, const Look& look, HWND container)
        : Drawn(button, look), button_(button) {
        Create(container, L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP);
        Apply(Aspect::Caption);
    }

    void Apply(Aspect aspect) override {
        Drawn::Apply(aspect);
        if (aspect == Aspect::Caption) SetText(WithoutShortcut(button_.Caption));
    }

    void Rescale() override {
        Drawn::Rescale();
        SetFont();
    }

  protected:
    LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override {
        switch (message) {
            case WM_LBUTTONDOWN:
            case WM_LBUTTONDBLCLK:
                if (!look_.follower.MouseDown(button_)) return 0;
                break;
            case WM_KEYDOWN:
                if (TakeKey(first, second)) return 0;
                break;
            case WM_SETFOCUS:
                TellWindow(kFocusCame, reinterpret_cast<WPARAM>(Handle()), 0);
                look_.follower.FocusCame(button_);
                break;
            case kPressed:
                PostMessageW(Handle(), kPress, 0, 0);
                return 0;
            case kPress:
                if (look_.mayAct()) look_.follower.Press(button_);
                return 0;
            default:
                break;
        }
        return Drawn::OnMessage(message, first, second);
    }

  private:
    void TellWindow(UINT message, WPARAM first, LPARAM second) const {
        SendMessageW(GetAncestor(Handle(), GA_ROOT), message, first, second);
    }

    // True when the key is used up.
    bool TakeKey(WPARAM key, LPARAM details) {
        if (key == VK_TAB) TellWindow(WM_KEYDOWN, key, details);
        if (key != VK_RETURN && key != VK_SPACE) return key == VK_TAB;
        const PressKey pressing = key == VK_RETURN ? PressKey::Enter : PressKey::Space;
        const bool repeated = (HIWORD(details) & KF_REPEAT) != 0;
        const KeyEffect effect = look_.follower.KeyDown(button_, pressing, repeated);
        if (effect == KeyEffect::Press) PostMessageW(Handle(), kPress, 0, 0);
        return effect != KeyEffect::Hold;
    }

    const Button& button_;
};

}  // namespace

std::unique_ptr<Drawn> Make(const Button& button, const Look& look, HWND container) {
    return std::make_unique<ButtonControl>(button, look, container);
}

}  // namespace keplin::win32
