#include "ui/win32/drawn.h"

namespace keplin::win32 {
namespace {

// A tick that falls due while the system has the thread is left out.
class TickTimer final : public Drawn {
  public:
    TickTimer(const Timer& timer, const Look& look, HWND window)
        : Drawn(timer, look), timer_(timer) {
        Create(window, L"STATIC", 0);
    }

    void Apply(Aspect) override {
        if (timer_.Enabled) {
            StartTimer(std::chrono::milliseconds(timer_.Interval));
        } else {
            StopTimer();
        }
    }
    void Rescale() override {}

  protected:
    LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override {
        if (message != WM_TIMER) return Drawn::OnMessage(message, first, second);
        if (look_.mayAct()) timer_.Tick();
        return 0;
    }

  private:
    const Timer& timer_;
};

// A panel has no window of its own: what changes in it changes in its bar.
class PanelOfBar final : public Drawn {
  public:
    PanelOfBar(const Panel& panel, const Look& look, Drawn& bar) : Drawn(panel, look), bar_(bar) {}
    void Apply(Aspect) override { bar_.Apply(Aspect::Caption); }
    void Rescale() override {}

  private:
    Drawn& bar_;
};

class Factory : public ControlVisitor {
  public:
    Factory(HWND window, const Look& look) : window_(window), look_(look) {}

    void Visit(const Form&) override {}
    void Visit(const Page& page) override { Add(page, Make(page, look_, In(page))); }
    void Visit(const Frame& frame) override { Add(frame, Make(frame, look_, In(frame))); }
    void Visit(const Label& label) override { Add(label, Make(label, look_, In(label))); }
    void Visit(const Button& button) override { Add(button, Make(button, look_, In(button))); }
    void Visit(const Picture& picture) override { Add(picture, Make(picture, look_, In(picture))); }
    void Visit(const Shape& shape) override { Add(shape, Make(shape, look_, In(shape))); }
    void Visit(const ProgressBar& bar) override { Add(bar, Make(bar, look_, In(bar))); }
    void Visit(const StatusBar& bar) override { Add(bar, Make(bar, look_, In(bar))); }
    void Visit(const Panel& panel) override {
        Made[&panel] = std::make_unique<PanelOfBar>(panel, look_, *Made.at(panel.Container));
    }
    void Visit(const Timer& timer) override {
        Add(timer, std::make_unique<TickTimer>(timer, look_, window_));
    }

    DrawnControls Made;

  private:
    [[nodiscard]] HWND In(const Control& control) const {
        return control.Container ? Made.at(control.Container)->Handle() : window_;
    }

    void Add(const Control& control, std::unique_ptr<Drawn> made) {
        made->Rescale();
        made->Apply(Aspect::Visible);
        Made[&control] = std::move(made);
    }

    const HWND window_;
    const Look& look_;
};

}  // namespace

DrawnControls MakeControls(HWND window, const Look& look) {
    Factory factory(window, look);
    for (const Control* control : look.model.Controls())
        control->Accept(factory);
    return std::move(factory.Made);
}

}  // namespace keplin::win32
