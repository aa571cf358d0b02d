#include "session/session.h"

#include <string>

#include "platform/pass_over.h"
#include "ui/activity.h"

namespace keplin {
namespace {

// A flag that is up for as long as this exists.
class Raised {
  public:
    explicit Raised(bool& flag) : flag_(flag) { flag_ = true; }
    ~Raised() { flag_ = false; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;

  private:
    bool& flag_;
};

// Work during whose yields the same event may come again: it is passed over until the first is
// through.
template <typename Work>
void Once(bool& underWay, Work&& work) {
    if (underWay) return;
    const Raised raised(underWay);
    work();
}

}  // namespace

Session::Session(ISPMain& window, SerialPort& port, Desktop& desktop)
    : window_(window),
      desktop_(desktop),
      controller_(port, desktop),
      search_(window, port, controller_, desktop),
      file_(window, desktop),
      run_(window, controller_, file_, desktop) {
    window.Next_1.OnClick = On(&Session::Next_1_Click);
    window.cmdPortTest.OnClick = On(&Session::cmdPortTest_Click);
    window.Next_2.OnClick = On(&Session::Next_2_Click);
    window.Command1.OnClick = On(&Session::Command1_Click);
    window.cmdExit.OnClick = On(&Session::cmdExit_Click);
    window.Timer1.OnTimer = On(&Session::Timer1_Tick);
    window.OnCloseRequest = On(&Session::Form_CloseRequest);
}

std::function<void()> Session::On(Handler handler) {
    return [this, handler] {
        if (!closing_) PassOver([&] { (this->*handler)(); });
    };
}

void Session::Main() {
    StopActivity(window_);
    window_.lblPrgm.Visible = false;
    ShowPage(window_.PicGettingStarted);
    window_.PicSetup.Visible = false;
    window_.PicProgram.Visible = false;
    window_.Height = kShownHeight;
    window_.Visible = true;
}

void Session::Next_1_Click() {
    window_.Next_2.Enabled = false;
    window_.PicGettingStarted.Visible = false;
    ShowPage(window_.PicSetup);
}

void Session::cmdPortTest_Click() {
    Once(lineInUse_, [&] {
        window_.cmdPortTest.Enabled = false;
        window_.cmdExit.Enabled = false;
        std::int16_t port = kNoPort;
        PassOver([&] { port = search_.FindDevicePort(); });
        PassOver([&] { ShowFoundPort(port); });
        window_.Command1.Enabled = true;
        window_.cmdPortTest.Enabled = true;
        window_.cmdExit.Enabled = true;
    });
}

void Session::ShowFoundPort(std::int16_t port) {
    if (port == kNoPort) {
        window_.lblResults.Caption = " Communications Fail on All Ports";
    } else {
        window_.lblResults.Caption =
            " Port " + std::to_string(port) + " Ready.  Click NEXT to continue.";
        window_.Next_2.Enabled = true;
    }
}

void Session::Next_2_Click() {
    window_.PicSetup.Visible = false;
    if (!file_.LoadUpdateFile()) return;
    window_.Command1.Enabled = !lineInUse_;  // a second port test may be under way still
    window_.PicProgram.Left = kShownPageLeft;
    window_.PicProgram.Top = kShownPageTop;
    window_.ProgressBar1.Visible = false;
    window_.PicProgram.Visible = true;
    window_.ProgressBar1.Value = 0;
    desktop_.YieldOnce();
}

void Session::Command1_Click() {
    Once(lineInUse_, [&] { run_.Run(); });
}

void Session::cmdExit_Click() {
    Form_Unload();
}

// A tick that falls due while another one yields is left out: ticks never nest.
void Session::Timer1_Tick() {
    Once(ticking_, [&] { Timer1_Timer(window_, desktop_); });
}

// The title bar's close control does what Close does, and nothing while Close cannot be pressed:
// a search or an update is under way.
void Session::Form_CloseRequest() {
    if (window_.cmdExit.CanBePressed()) Form_Unload();
}

void Session::Form_Unload() {
    closing_ = true;
    PassOver([&] {
        desktop_.YieldOnce();
        Win95Shrivel(window_);
        desktop_.YieldOnce();
    });
    desktop_.End();
}

}  // namespace keplin
