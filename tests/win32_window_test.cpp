#include <windows.h>
// Behind it.
#include <commctrl.h>

#include <array>

#include "tests/support/win32_window.h"
#include "ui/win32/gdi.h"

namespace keplin::test {
namespace {

TEST_F(Win32Window, EveryControlStandsInItsPlaceUnderItsText) {
    RECT inside{};
    GetClientRect(window.Handle(), &inside);
    EXPECT_EQ(inside.right, 622);
    EXPECT_EQ(inside.bottom, 343);
    EXPECT_EQ(GetWindowLongPtrW(window.Handle(), GWL_STYLE) & (WS_THICKFRAME | WS_MAXIMIZEBOX), 0);
    EXPECT_EQ(PlaceOf(model.StatusBar1).top, 309);
    EXPECT_EQ(PlaceOf(model.StatusBar2).top, 326);
    int checked = 0;
    for (const Control* control : model.Controls()) {
        const auto* label = dynamic_cast<const Label*>(control);
        const bool other = dynamic_cast<const StatusBar*>(control) ||
                           dynamic_cast<const Timer*>(control) ||
                           dynamic_cast<const Panel*>(control) || control == &model;
        if (other) continue;
        const RECT place = PlaceOf(*control);
        EXPECT_EQ(place.left * 15, static_cast<LONG>(control->Left)) << control->Name;
        EXPECT_EQ(place.top * 15, static_cast<LONG>(control->Top)) << control->Name;
        EXPECT_EQ((place.right - place.left) * 15, static_cast<LONG>(control->Width));
        EXPECT_EQ((place.bottom - place.top) * 15, static_cast<LONG>(control->Height));
        if (label && label != &model.lblResults) {
            EXPECT_EQ(TextOf(*label), label->Caption.Get());
        }
        ++checked;
    }
    EXPECT_EQ(checked, 33);
    EXPECT_EQ(TextOf(model.lblResults), "Result of the port test");
    EXPECT_EQ(TextOf(model.ProgressBar1), "Progress of the update");
    EXPECT_EQ(TextOf(model.Frame1), "Setup Procedure");
}

TEST_F(Win32Window, OnAnotherScreenItHasThatScreensSize) {
    const RECT proposed{20, 30, 900, 600};
    SendMessageW(window.Handle(), WM_DPICHANGED, MAKEWPARAM(144, 144),
                 reinterpret_cast<LPARAM>(&proposed));
    RECT place{};
    GetWindowRect(window.Handle(), &place);
    EXPECT_EQ(place.left, 20);
    EXPECT_EQ(win32::InsideOf(window.Handle()), (PixelSize{933, 515}));
    EXPECT_EQ(PlaceOf(model.StatusBar2).top, 515 - 26);
    EXPECT_EQ(PlaceOf(model.Next_1).left, 660);
    LOGFONTW font{};
    const auto handle = reinterpret_cast<HFONT>(Send(model.Next_1, WM_GETFONT));
    EXPECT_NE(GetObjectW(handle, sizeof font, &font), 0) << "a font that is gone";
    EXPECT_NEAR(static_cast<double>(-font.lfHeight), 16.5, 2);
}

TEST_F(Win32Window, FollowsTheModel) {
    model.Shape2.Left = 5160;
    model.Command1.Caption = "Fish & Chips";
    model.Frame2.Caption = "Update Complete";
    model.lblResults.Caption = "Gr\xC3\xBC\xC3\x9F \xFF";
    EXPECT_EQ(PlaceOf(model.Shape2).left, 344);
    EXPECT_EQ(TextOf(model.Command1), "Fish && Chips");
    EXPECT_EQ(TextOf(model.Frame2), "Update Complete");
    EXPECT_EQ(TextOf(model.lblResults), "Gr\xC3\xBC\xC3\x9F \xEF\xBF\xBD");
    EXPECT_FALSE(IsWindowVisible(window.HandleOf(model.PicSetup)));
    Show(model.PicSetup);
    EXPECT_TRUE(IsWindowVisible(window.HandleOf(model.cmdPortTest)));
    model.cmdPortTest.Enabled = false;
    EXPECT_FALSE(IsWindowEnabled(window.HandleOf(model.cmdPortTest)));
    model.WindowState = Form::State::Minimised;
    EXPECT_TRUE(IsIconic(window.Handle()));
}

TEST_F(Win32Window, ClicksAndKeysPressWhatWasMeant) {
    int presses = 0;
    model.Next_1.OnClick = [&] { ++presses; };
    Click(model.Next_1);
    Type(VK_RETURN);
    Type(VK_SPACE);
    EXPECT_EQ(presses, 3);
    Type(VK_RETURN, true);
    Type(VK_SPACE, true);
    EXPECT_EQ(presses, 3);
    model.Next_1.Enabled = false;
    model.Next_1.Enabled = true;
    SetFocus(window.HandleOf(model.Next_1));
    for (const auto passed :
         {PressGuard::kGuard - std::chrono::milliseconds(1), std::chrono::milliseconds(1)}) {
        EXPECT_EQ(presses, 3);
        now += passed;
        Click(model.Next_1);
        Send(model.Next_1, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
        Send(model.Next_1, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
        Type(VK_RETURN);
        Type(VK_SPACE);
    }
    EXPECT_EQ(presses, 7);
}

TEST_F(Win32Window, TheFocusGoesToAButtonThatCanBePressed) {
    EXPECT_EQ(Focused(), "Next_1");
    model.PicGettingStarted.Visible = false;
    model.Next_2.Enabled = false;
    Show(model.PicSetup);
    EXPECT_EQ(Focused(), "cmdPortTest");
    model.Next_2.Enabled = true;
    for (const char* next : {"cmdExit", "Next_2", "cmdPortTest"}) {
        Type(VK_TAB);
        EXPECT_EQ(Focused(), next);
    }
    model.cmdPortTest.Enabled = false;
    EXPECT_EQ(Focused(), "Next_2");
    model.cmdExit.Enabled = false;
    model.Next_2.Enabled = false;
    EXPECT_EQ(GetFocus(), window.Handle());
    SetActiveWindow(nullptr);
    model.Next_2.Enabled = true;
    SetActiveWindow(window.Handle());
    EXPECT_EQ(Focused(), "Next_2");
    SetFocus(window.Handle());
    EXPECT_EQ(Focused(), "Next_2") << "never with the window itself";
}

TEST_F(Win32Window, AskedToCloseItAsksTheModelUnlessThatCameTooSoon) {
    int requests = 0;
    model.OnCloseRequest = [&] { ++requests; };
    SendMessageW(window.Handle(), WM_CLOSE, 0, 0);
    EXPECT_EQ(requests, 0) << "still within what the system does";
    Settle();
    EXPECT_EQ(requests, 1);
    EXPECT_EQ(SendMessageW(window.Handle(), WM_QUERYENDSESSION, 0, 0), TRUE);
    model.cmdExit.Enabled = false;
    EXPECT_EQ(SendMessageW(window.Handle(), WM_QUERYENDSESSION, 0, 0), FALSE);
    model.cmdPortTest.Enabled = false;
    EXPECT_EQ(SendMessageW(window.Handle(), WM_QUERYENDSESSION, 0, 0), TRUE) << "a port test";
    model.cmdExit.Enabled = true;
    SendMessageW(window.Handle(), WM_CLOSE, 0, 0);
    Settle();
    EXPECT_EQ(requests, 1);
    EXPECT_TRUE(IsWindow(window.Handle()));
}

void CALLBACK EndTheMove(HWND window, UINT, UINT_PTR timer, DWORD) {
    KillTimer(window, timer);
    PostMessageW(window, WM_KEYDOWN, VK_ESCAPE, 0);
}

TEST_F(Win32Window, WhileTheTitleBarIsHeldNothingOfTheProgramBegins) {
    int ticks = 0;
    int presses = 0;
    model.Timer1.OnTimer = [&] { ++ticks; };
    model.Next_1.OnClick = [&] { ++presses; };
    model.OnCloseRequest = [&] { ++presses; };
    model.Timer1.Enabled = true;
    EXPECT_TRUE(Until([&] { return ticks >= 3; }));
    SetTimer(window.Handle(), 99, 100, EndTheMove);
    ticks = 0;
    Send(model.Next_1, BM_CLICK);
    PostMessageW(window.Handle(), WM_CLOSE, 0, 0);
    SendMessageW(window.Handle(), WM_SYSCOMMAND, SC_MOVE, 0);
    EXPECT_EQ(ticks, 0);
    EXPECT_EQ(presses, 0);
    EXPECT_TRUE(Until([&] { return ticks >= 3; }));
    Send(model.Next_1, BM_CLICK);
    Settle();
    EXPECT_EQ(presses, 1);
    SetTimer(window.Handle(), 99, 100, EndTheMove);
    SendMessageW(window.Handle(), WM_SYSCOMMAND, SC_KEYMENU, 0);
    EXPECT_TRUE(KillTimer(window.Handle(), 99)) << "Alt alone holds nothing up";
}

// The pixels of a control that paints itself.
class Pixels {
  public:
    explicit Pixels(HWND handle) : size_(win32::InsideOf(handle)) {
        const HDC screen = GetDC(nullptr);
        bitmap_.reset(CreateCompatibleBitmap(screen, size_.width, size_.height));
        ReleaseDC(nullptr, screen);
        SelectObject(context_.get(), bitmap_.get());
        SendMessageW(handle, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(context_.get()), PRF_CLIENT);
    }
    // How many are of that colour within the rectangle.
    int Count(COLORREF colour, const RECT& where) const {
        int count = 0;
        for (int y = where.top; y < where.bottom; ++y) {
            for (int x = where.left; x < where.right; ++x)
                count += GetPixel(context_.get(), x, y) == colour ? 1 : 0;
        }
        return count;
    }
    int Count(COLORREF colour) const { return Count(colour, {0, 0, size_.width, size_.height}); }

  private:
    const PixelSize size_;
    win32::Gdi<HBITMAP> bitmap_;
    const win32::MemoryContext context_{CreateCompatibleDC(nullptr)};
};

TEST_F(Win32Window, PaintsInTheColoursOfTheDesignAndWritesWhereItMeasures) {
    constexpr COLORREF kPageBlue = RGB(192, 192, 255);
    Show(model.PicProgram);
    EXPECT_EQ(Pixels(window.HandleOf(model.PicProgram)).Count(kPageBlue), 561 * 193);
    EXPECT_GT(Pixels(window.HandleOf(model.Frame2)).Count(RGB(0, 0, 0)), 100) << "the caption";
    EXPECT_GT(Pixels(window.HandleOf(model.lblResults)).Count(RGB(255, 255, 192)), 200 * 13);
    EXPECT_EQ(Pixels(window.HandleOf(model.Shape2)).Count(RGB(0, 0, 255)), 9 * 17);
    EXPECT_GT(Pixels(window.HandleOf(model.Label10)).Count(RGB(255, 0, 0)), 100);
    EXPECT_GT(Pixels(window.HandleOf(model.Image2)).Count(RGB(16, 128, 96)), 3000) << "the board";
    const auto& fit = window.Now().fit;
    for (const Label* label : {&model.LblGetStarted0, &model.LblGetStarted4, &model.Label7}) {
        const Pixels pixels(window.HandleOf(*label));
        const COLORREF back =
            label == &model.Label7 ? GetSysColor(COLOR_BTNFACE) : static_cast<COLORREF>(kPageBlue);
        int left = static_cast<int>(label->Width * label->Height) / (15 * 15) - pixels.Count(back);
        EXPECT_GT(left, 100) << label->Name;
        const auto inks = window.Now().fonts.LineInks(
            label->Caption, fit.FontOf(*label), label->Style.alignment, fit.AreaOf(*label).width);
        EXPECT_EQ(inks.front().left > 100, label->Style.alignment == Alignment::Centre);
        for (const Rect<double>& ink : inks) {
            const RECT part{static_cast<LONG>(ink.left) - 1, static_cast<LONG>(ink.top),
                            static_cast<LONG>(ink.Right()) + 1, static_cast<LONG>(ink.Bottom())};
            left -= (part.right - part.left) * (part.bottom - part.top) - pixels.Count(back, part);
        }
        EXPECT_LE(left, 0) << label->Name << " has ink where none was measured";
    }
}

TEST_F(Win32Window, PanelsShareTheirBarAndShortenALongPath) {
    const auto shown = [this](std::size_t panel) {
        std::wstring text(300, L'\0');
        const LRESULT length =
            Send(model.StatusBar1, SB_GETTEXTW, panel, reinterpret_cast<LPARAM>(text.data()));
        return win32::ToUtf8(text.substr(0, LOWORD(length)));
    };
    model.StatusBar1.Panels(1).Text = " C:\\UPDATE.HEX";
    EXPECT_EQ(shown(0), " C:\\UPDATE.HEX");
    model.StatusBar1.Panels(1).Text = " C:\\" + std::string(200, 'x') + "\\UPDATE.HEX";
    EXPECT_LT(shown(0).size(), 120U);
    EXPECT_TRUE(shown(0).ends_with("UPDATE.HEX"));
    int edges[2] = {};
    Send(model.StatusBar1, SB_GETPARTS, 2, reinterpret_cast<LPARAM>(edges));
    EXPECT_EQ(edges[0], 622 - 133 - 2);
    model.StatusBar1.Panels(2).Text = " Number of Lines: 10  ";
    EXPECT_EQ(shown(1), "\t Number of Lines: 10  ");
}

TEST_F(Win32Window, TheProgressBarShowsWhatIsDone) {
    Show(model.PicProgram);
    const auto shown = [this] { return int(Send(model.ProgressBar1, PBM_GETPOS)); };
    model.ProgressBar1.Max = 1000;
    for (const int value : {500, 501, 900, 1000, 0}) {
        model.ProgressBar1.Value = static_cast<float>(value);
        EXPECT_TRUE(Until([&] { return std::abs(shown() - 10 * value) <= 20; })) << value;
    }
    model.ProgressBar1.Value = 500;
    model.ProgressBar1.Max = 0;
    EXPECT_TRUE(Until([&] { return shown() == 0; }));
}

// Also when the window came to another screen since.
TEST_F(Win32Window, AToolTipSaysHowFarTheBarIs) {
    Show(model.PicProgram);
    model.ProgressBar1.Value = 3;
    SendMessageW(window.Handle(), WM_DPICHANGED, MAKEWPARAM(144, 144),
                 reinterpret_cast<LPARAM>(std::array<RECT, 1>{}.data()));
    const HWND bar = window.HandleOf(model.ProgressBar1);
    std::array<wchar_t, 80> text{};
    TTTOOLINFOW tool{sizeof tool, 0, bar, 0, {}, nullptr, text.data(), 0, nullptr};
    const auto knows = [&](HWND tips) {
        return SendMessageW(tips, TTM_GETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&tool)) != 0;
    };
    HWND tips = nullptr;
    do {
        tips = FindWindowExW(nullptr, tips, TOOLTIPS_CLASSW, nullptr);
    } while (tips && !knows(tips));
    EXPECT_EQ(win32::ToUtf8(text.data()), model.ProgressBar1.DoneText());
    EXPECT_EQ(tool.rect.right, win32::InsideOf(bar).width);
    POINT inside{5, 5};
    ClientToScreen(bar, &inside);
    SetCursorPos(inside.x, inside.y);
    Send(model.ProgressBar1, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_TRUE(Until([&] { return IsWindowVisible(tips) != 0; }));
}

}  // namespace
}  // namespace keplin::test
