// One control of the model as it is drawn: a control of the system inside its container's.
#pragma once

#include <functional>
#include <memory>
#include <unordered_map>

#include "ui/follower.h"
#include "ui/text_fit.h"
#include "ui/win32/fonts.h"

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
    const std::function<bool()> mayAct;  // what a press or a tick does may begin now
    std::unique_ptr<const Measures> measures;
};

// What the window and its controls send each other beyond the system's own messages.
inline constexpr UINT kPressed = WM_APP;         // to a button: it reported a press
inline constexpr UINT kPress = WM_APP + 1;       // to a button, by itself: what it does is due
inline constexpr UINT kCloseAsked = WM_APP + 2;  // to the window: it is to close
inline constexpr UINT kSpeak = WM_APP + 3;       // to the window: there is news to speak
inline constexpr UINT kFocusCame = WM_APP + 4;   // to the window: the focus is at this control

class Drawn {
  public:
    Drawn(const Control& control, const Look& look) : control_(control), look_(look) {}
    virtual ~Drawn() = default;
    Drawn(const Drawn&) = delete;
    Drawn& operator=(const Drawn&) = delete;

    // Takes over from the model what the aspect names; this one what every control has.
    virtual void Apply(Aspect aspect);
    // A neighbour came or went.
    virtual void Refit() {}
    // The measures are new ones, or the control is. Takes over everything.
    virtual void Rescale();

    [[nodiscard]] HWND Handle() const { return handle_; }

  protected:
    // Makes the system's control of that class, above those that stand in the container already.
    void Create(HWND container, const wchar_t* windowClass, DWORD style);
    // The text by which others find the control.
    void SetText(const std::string& text) const;
    // Has the control write by itself in the window's font.
    void SetFont() const;
    void Repaint() const { InvalidateRect(handle_, nullptr, FALSE); }
    // WM_TIMER comes again and again after that time; the system knows none shorter than 10 ms.
    void StartTimer(std::chrono::milliseconds pause) const;
    void StopTimer() const { KillTimer(handle_, kTimer); }
    static constexpr UINT_PTR kTimer = 1;

    // What the control is sent. The default does what the system's control does with it.
    virtual LRESULT OnMessage(UINT message, WPARAM first, LPARAM second);
    [[nodiscard]] virtual PixelRect PlaceNow() const { return Now().scale.PlaceOf(control_); }

    [[nodiscard]] const Measures& Now() const { return *look_.measures; }

    const Control& control_;
    const Look& look_;

  private:
    static LRESULT CALLBACK Receive(HWND handle, UINT message, WPARAM first, LPARAM second,
                                    UINT_PTR id, DWORD_PTR self);

    HWND handle_ = nullptr;
};

// One that is painted here and not by the system: all of its place, in one go.
class Painted : public Drawn {
  public:
    using Drawn::Drawn;

  protected:
    virtual void Paint(HDC context, const RECT& inside) = 0;
    LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override;

  private:
    void PaintAll();
};

// The colour on which a control stands that is inside this container; nullptr is the window.
COLORREF BackgroundIn(const Control* container);

using DrawnControls = std::unordered_map<const Control*, std::unique_ptr<Drawn>>;

// One control of the system in that window for each of the model, in the model's order; none for
// the window itself. The look must outlive them.
DrawnControls MakeControls(HWND window, const Look& look);

// One kind each, inside the container.
std::unique_ptr<Drawn> Make(const Page& page, const Look& look, HWND container);
std::unique_ptr<Drawn> Make(const Frame& frame, const Look& look, HWND container);
std::unique_ptr<Drawn> Make(const Label& label, const Look& look, HWND container);
std::unique_ptr<Drawn> Make(const Button& button, const Look& look, HWND container);
std::unique_ptr<Drawn> Make(const Picture& picture, const Look& look, HWND container);
std::unique_ptr<Drawn> Make(const Shape& shape, const Look& look, HWND container);
std::unique_ptr<Drawn> Make(const ProgressBar& bar, const Look& look, HWND container);
std::unique_ptr<Drawn> Make(const StatusBar& bar, const Look& look, HWND container);

// The program's icon, as wide as one of these two of the system: SM_CXICON or SM_CXSMICON. The
// system keeps it.
HICON ProgramIcon(int size);

}  // namespace keplin::win32
