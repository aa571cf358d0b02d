// One control of the model as it is drawn: a control of the system inside its container's.
#pragma once

#include <functional>
#include <memory>
#include <unordered_map>

#include "ui/follower.h"
#include "ui/text_fit.h"
#include "ui/throttle.h"
#include "ui/win32/fonts.h"
#include "ui/win32/system_window.h"

namespace keplin::win32 {

// All that depends on the dots per inch, and is made anew when the window comes to a screen that
// has others.
struct Measures {
    Measures(const ISPMain& model, double dpi)
        : scale(dpi), fonts(dpi), fit(model.Controls(), scale, fonts) {}

    const Scale scale;
    const Fonts fonts;
    const TextFit fit;
};

// What every control of one window shares.
struct Look {
    const ISPMain& model;
    Follower& follower;
    const Button*& focused;  // that has the focus, or has it once the window is the active one
    const std::function<bool()> mayAct;  // what a press or a tick does may begin now
    std::unique_ptr<const Measures> measures;
};

class Drawn : public SystemWindow {
  public:
    // Made of the system's control of that class, as the model has it, above those that stand in
    // the container already.
    Drawn(const Control& control, const Look& look, HWND container, const wchar_t* windowClass,
          DWORD style);

    // Takes over from the model what the aspect names; this one what every control has: its place,
    // whether it is there and enabled, and its text.
    virtual void Apply(Aspect aspect);
    // A neighbour came or went.
    virtual void Refit() {}
    // The measures are new ones.
    virtual void Rescale();

  protected:
    void SetPlace(const PixelRect& place, UINT flags = 0) const;
    void Repaint() const { InvalidateRect(Handle(), nullptr, FALSE); }
    // Shows the text while the mouse rests there; "" shows nothing. `part` counts from 0, and a new
    // one follows the last.
    void SetToolTip(std::size_t part, const RECT& where, const std::string& text);
    // OnTimer comes again and again after that time; the system knows none shorter than 10 ms.
    void StartTimer(std::chrono::milliseconds interval) const;
    void StopTimer() const { KillTimer(Handle(), kTimer); }
    // ShowNow comes once the throttle lets the change be shown, which may be at once.
    void ShowSoon(Throttle& throttle);

    virtual void ShowNow() {}
    virtual void OnTimer();
    LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override;
    [[nodiscard]] virtual PixelRect PlaceNow() const { return Now().scale.PlaceOf(control_); }

    [[nodiscard]] const Measures& Now() const { return *look_.measures; }

    const Control& control_;
    const Look& look_;

  private:
    void TakeFont() const;

    static constexpr UINT_PTR kTimer = 470;  // clear of those that the system's controls have

    HWND tips_ = nullptr;  // made with the first tool tip; belongs to the control's window
};

// One that knows the control of the model as what it is.
template <typename Kind, typename Base = Drawn>
class DrawnAs : public Base {
  public:
    DrawnAs(const Kind& control, const Look& look, HWND container,
            const wchar_t* windowClass = L"STATIC", DWORD style = SS_NOPREFIX)
        : Base(control, look, container, windowClass, style), model_(control) {}

  protected:
    const Kind& model_;
};

// One that is painted here and not by the system: all of its place, in one go.
class Painted : public Drawn {
  public:
    using Drawn::Drawn;

  protected:
    virtual void Paint(HDC context, const RECT& inside) = 0;
    // No pixel of it is painted twice, so that nobody sees anything come and go.
    [[nodiscard]] virtual bool IsPlain() const { return false; }
    LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override;

  private:
    void PaintAll();
};

using DrawnControls = std::unordered_map<const Control*, std::unique_ptr<Drawn>>;

// One control of the system in that window for each of the model, in the model's order; none for
// the window itself, nor for a panel, which its bar draws. The look must outlive them.
DrawnControls MakeControls(HWND window, const Look& look);

// Tells a screen reader a property of the control beyond what the system's tells by itself. Not
// before the first page: the speech would keep it waiting.
void Annotate(HWND control, const GUID& property, const std::string& text);

}  // namespace keplin::win32
