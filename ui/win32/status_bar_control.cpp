#include <windows.h>
// Behind it.
#include <commctrl.h>

#include <algorithm>

#include "ui/status_panels.h"
#include "ui/win32/drawn.h"
#include "ui/win32/utf16.h"

namespace keplin::win32 {
namespace {

constexpr int kBevel = 1;            // pixels
constexpr int kWidestToolTip = 600;  // pixels, from which on its text wraps

class StatusBarControl final : public Drawn {
  public:
    StatusBarControl(const StatusBar& bar, const Look& look, HWND container)
        : Drawn(bar, look), bar_(bar) {
        Create(container, STATUSCLASSNAMEW, CCS_NORESIZE | CCS_NOPARENTALIGN);
        tips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX, 0,
                                0, 0, 0, Handle(), nullptr, GetModuleHandleW(nullptr), nullptr);
        SendMessageW(tips_, TTM_SETMAXTIPWIDTH, 0, kWidestToolTip);
    }

    void Apply(Aspect aspect) override {
        Drawn::Apply(aspect);
        Arrange();
    }

    void Rescale() override {
        SetFont();
        Drawn::Rescale();
        Arrange();
    }

  protected:
    [[nodiscard]] PixelRect PlaceNow() const override {
        return Now().scale.PlaceAtBottom(bar_, look_.model);
    }

  private:
    // Shares the width among the panels by what they show now. A tabulator centres the text behind
    // it.
    void Arrange() const {
        const auto width = [this](const std::string& text) {
            return Now().fonts.LineSize(text, Now().fit.Font()).width;
        };
        const PixelRect place = PlaceNow();
        const auto panels =
            ArrangePanels(bar_, {place.width, place.height}, Now().scale, kBevel, width);
        std::vector<int> ends(panels.size());
        std::transform(panels.begin(), panels.end(), ends.begin(),
                       [](const PanelView& panel) { return panel.place.Right(); });
        SendMessageW(Handle(), SB_SETPARTS, ends.size(), reinterpret_cast<LPARAM>(ends.data()));
        for (std::size_t i = 0; i < panels.size(); ++i) {
            const bool centred = bar_.Panels(i + 1).TextAlignment == Alignment::Centre;
            const std::wstring text = (centred ? L"\t" : L"") + ToWide(panels[i].text);
            SendMessageW(Handle(), SB_SETTEXTW, i, reinterpret_cast<LPARAM>(text.c_str()));
            SetToolTip(i, panels[i]);
        }
    }

    void SetToolTip(std::size_t number, const PanelView& panel) const {
        std::wstring text = ToWide(panel.toolTip);
        TTTOOLINFOW tool{};
        tool.cbSize = sizeof tool;
        tool.uFlags = TTF_SUBCLASS;
        tool.hwnd = Handle();
        tool.uId = number;
        tool.rect = ToRect(panel.place);
        tool.lpszText = text.data();
        SendMessageW(tips_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
        if (!text.empty()) SendMessageW(tips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    }

    const StatusBar& bar_;
    HWND tips_ = nullptr;  // belongs to the control's window
};

}  // namespace

std::unique_ptr<Drawn> Make(const StatusBar& bar, const Look& look, HWND container) {
    return std::make_unique<StatusBarControl>(bar, look, container);
}

}  // namespace keplin::win32
