// Makes one widget for each control of the model, in the model's order.
#pragma once

#include <QWidget>
#include <unordered_map>

#include "ui/follower.h"
#include "ui/qt/drawn.h"

namespace keplin::qt {

class StatusBarWidget;

// The widgets belong to the window; they hold on to the look and the follower.
class WidgetFactory : public ControlVisitor {
  public:
    WidgetFactory(QWidget& window, const Look& look, Follower& follower)
        : window_(window), look_(look), follower_(follower) {}

    void Visit(const Form& form) override;
    void Visit(const Page& page) override;
    void Visit(const Frame& frame) override;
    void Visit(const Label& label) override;
    void Visit(const Button& button) override;
    void Visit(const Picture& picture) override;
    void Visit(const Shape& shape) override;
    void Visit(const ProgressBar& bar) override;
    void Visit(const StatusBar& bar) override;
    void Visit(const Panel& panel) override;
    void Visit(const Timer& timer) override;

    // What was made for each control; nothing for the window itself.
    std::unordered_map<const Control*, Drawn*> Made;

  private:
    // Makes the widget of a control inside that of its container.
    template <typename Widget, typename... Arguments>
    Widget* Make(const Control& control, Arguments&&... arguments);

    QWidget& window_;
    const Look& look_;
    Follower& follower_;
    std::unordered_map<const Control*, QWidget*> containers_;
    std::unordered_map<const Control*, StatusBarWidget*> bars_;
};

}  // namespace keplin::qt
