#include "ui/win32/painted_controls.h"
#include "ui/win32/system_controls.h"

namespace keplin::win32 {
namespace {

class Factory : public ControlVisitor {
  public:
    Factory(HWND window, const Look& look) : window_(window), look_(look) {}

    void Visit(const Form&) override {}
    void Visit(const Page& page) override { Add<Container<Page>>(page); }
    void Visit(const Frame& frame) override { Add<FrameControl>(frame); }
    void Visit(const Label& label) override { Add<LabelControl>(label); }
    void Visit(const Button& button) override { Add<ButtonControl>(button); }
    void Visit(const Picture& picture) override { Add<PictureControl>(picture); }
    void Visit(const Shape& shape) override { Add<ShapeControl>(shape); }
    void Visit(const ProgressBar& bar) override { Add<ProgressBarControl>(bar); }
    void Visit(const StatusBar& bar) override { Add<StatusBarControl>(bar); }
    void Visit(const Panel&) override {}
    void Visit(const Timer& timer) override { Add<TimerControl>(timer); }

    DrawnControls Made;

  private:
    template <typename Drawing, typename Kind>
    void Add(const Kind& control) {
        const HWND in = control.Container ? Made.at(control.Container)->Handle() : window_;
        Made[&control] = std::make_unique<Drawing>(control, look_, in);
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
