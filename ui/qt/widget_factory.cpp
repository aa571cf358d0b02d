#include "ui/qt/widget_factory.h"

#include <utility>

#include "ui/qt/button_widget.h"
#include "ui/qt/frame_widget.h"
#include "ui/qt/label_widget.h"
#include "ui/qt/picture_widget.h"
#include "ui/qt/progress_bar_widget.h"
#include "ui/qt/shape_widget.h"
#include "ui/qt/status_bar_widget.h"
#include "ui/qt/tick_timer.h"

namespace keplin::qt {

template <typename Widget, typename... Arguments>
Widget* WidgetFactory::Make(const Control& control, Arguments&&... arguments) {
    QWidget* parent = control.Container ? containers_.at(control.Container) : &window_;
    auto* widget = new Widget(std::forward<Arguments>(arguments)..., parent);
    Made[&control] = widget;
    return widget;
}

void WidgetFactory::Visit(const Form&) {}

void WidgetFactory::Visit(const Page& page) {
    containers_[&page] = Make<PageWidget>(page, page, look_);
}

void WidgetFactory::Visit(const Frame& frame) {
    containers_[&frame] = Make<FrameWidget>(frame, frame, look_);
}

void WidgetFactory::Visit(const Label& label) {
    Make<LabelWidget>(label, label, look_);
}

void WidgetFactory::Visit(const Button& button) {
    Make<ButtonWidget>(button, button, look_, follower_);
}

void WidgetFactory::Visit(const Picture& picture) {
    Make<PictureWidget>(picture, picture, look_);
}

void WidgetFactory::Visit(const Shape& shape) {
    Make<ShapeWidget>(shape, shape, look_);
}

void WidgetFactory::Visit(const ProgressBar& bar) {
    Make<ProgressBarWidget>(bar, bar, look_);
}

void WidgetFactory::Visit(const StatusBar& bar) {
    bars_[&bar] = Make<StatusBarWidget>(bar, bar, look_);
}

void WidgetFactory::Visit(const Panel& panel) {
    Made[&panel] = &bars_.at(panel.Container)->Add(panel);
}

void WidgetFactory::Visit(const Timer& timer) {
    Make<TickTimer>(timer, timer);
}

}  // namespace keplin::qt
