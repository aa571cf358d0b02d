#include "demo/win32/mark.h"

#include <array>
#include <memory>
#include <string>

#include "platform/win32/utf16.h"

namespace keplin {
namespace {

constexpr Colour kRed{0xB0, 0x00, 0x20};
constexpr Colour kWhite{0xFF, 0xFF, 0xFF};
constexpr const wchar_t* kText = L"DEMONSTRATION";
constexpr LONG kDown = -450;  // tenths of a degree

// Across the upper right corner, over the window's own small icon and clear of everything else.
class Ribbon final : public win32::Painted {
  public:
    Ribbon(const Control& place, const win32::Look& look, HWND window)
        : win32::Painted(place, look, window, L"STATIC", WS_VISIBLE) {
        SetText("Demonstration: nothing is sent to a controller");
        Rescale();
    }

    void Rescale() override {
        win32::Painted::Rescale();
        const int side = PlaceNow().width;
        const int half = side * 10 / 56;  // of the band's breadth, along an edge
        const std::array<POINT, 4> band{{{-half, -half},
                                         {half, -half},
                                         {side + half, side - half},
                                         {side - half, side + half}}};
        SetWindowRgn(Handle(), CreatePolygonRgn(band.data(), 4, WINDING), TRUE);
    }

  protected:
    void Paint(HDC context, const RECT& inside) override {
        win32::Fill(context, inside, win32::ToRef(kRed));
        LOGFONTW letters{};
        GetObjectW(Now().fonts.Get(Now().fit.Font()), sizeof letters, &letters);
        letters.lfHeight = -inside.right / 8;
        letters.lfWeight = FW_BOLD;
        letters.lfEscapement = letters.lfOrientation = kDown;
        const win32::Gdi<HFONT> font(CreateFontIndirectW(&letters));
        const win32::Chosen chosen(context, font.get());
        SIZE size{};
        GetTextExtentPoint32W(context, kText, static_cast<int>(std::wstring(kText).size()), &size);
        SetBkMode(context, TRANSPARENT);
        SetTextColor(context, win32::ToRef(kWhite));
        // From the middle back along the band by half the length, and up by half the height.
        constexpr double kHalfOfDiagonal = 0.3536;
        const int back = static_cast<int>(kHalfOfDiagonal * static_cast<double>(size.cx));
        const int up = static_cast<int>(kHalfOfDiagonal * static_cast<double>(size.cy));
        TextOutW(context, static_cast<int>(inside.right) / 2 - back + up,
                 static_cast<int>(inside.bottom) / 2 - back - up, kText,
                 static_cast<int>(std::wstring(kText).size()));
    }
};

}  // namespace

HWND MarkAsDemonstration(win32::MainWindow& window, const ISPMain& model) {
    const std::string& title = model.Caption;
    const std::string marked = "DEMONSTRATION - " + title.substr(title.find_first_not_of(' '));
    SetWindowTextW(window.Handle(), win32::ToWide(marked).c_str());
    static Form form("Mark", "", model.Width, model.Height);
    const float side = model.Image1.Width * 11 / 4;
    static const Shape place(form, "Ribbon", {model.Width - side, 0, side, side}, kRed);
    return window.Add<Ribbon>(place).Handle();
}

}  // namespace keplin
