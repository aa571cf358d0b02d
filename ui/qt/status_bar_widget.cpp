#include "ui/qt/status_bar_widget.h"

#include <QStyleOptionFrame>

namespace keplin::qt {
namespace {

constexpr int kBevel = 160;  // percent of the window's own brightness

// A tool tip that looks like markup would be taken for it.
QString ToolTip(const QString& text) {
    return Qt::mightBeRichText(text) ? "<span>" + text.toHtmlEscaped() + "</span>" : text;
}

}  // namespace

PanelWidget::PanelWidget(const keplin::Panel& panel, StatusBarWidget& bar)
    : QLabel(&bar), panel_(panel), bar_(bar) {
    setObjectName(ToQt(panel.Name));
    setTextFormat(Qt::PlainText);
    setFrameStyle(QFrame::Panel | QFrame::Sunken);
    setAlignment(Qt::AlignVCenter |
                 (panel.TextAlignment == Alignment::Centre ? Qt::AlignHCenter : Qt::AlignLeft));
    setVisible(panel.Visible);
}

void PanelWidget::Apply(Aspect aspect) {
    setVisible(panel_.Visible);
    if (aspect == Aspect::Text) bar_.Arrange();
}

void PanelWidget::Show(const PanelView& view) {
    setGeometry(ToQt(view.place));
    setIndent(view.margin);
    setText(ToQt(view.text));
    setToolTip(ToolTip(ToQt(view.toolTip)));
    TellWhatItIs(*this, panel_);
}

// The bevel's two sides differ from the window by the same little in a light and in a dark theme.
void PanelWidget::initStyleOption(QStyleOptionFrame* option) const {
    QLabel::initStyleOption(option);
    const QColor window = palette().color(QPalette::Window);
    option->palette.setColor(QPalette::Dark, window.darker(kBevel));
    option->palette.setColor(QPalette::Light, window.lighter(kBevel));
}

StatusBarWidget::StatusBarWidget(const StatusBar& bar, const Look& look, QWidget* parent)
    : QWidget(parent), bar_(bar), look_(look) {
    setObjectName(ToQt(bar.Name));
    setVisible(bar.Visible);
}

void StatusBarWidget::Apply(Aspect) {
    setVisible(bar_.Visible);
    setGeometry(ToQt(look_.scale.PlaceAtBottom(bar_, look_.model)));
    Arrange();
}

PanelWidget& StatusBarWidget::Add(const Panel& panel) {
    panels_.push_back(new PanelWidget(panel, *this));
    return *panels_.back();
}

void StatusBarWidget::Arrange() {
    if (panels_.size() != bar_.PanelCount()) return;
    const auto width = [this](const std::string& text) {
        return fontMetrics().horizontalAdvance(ToQt(text));
    };
    const auto views =
        ArrangePanels(bar_, FromQt(size()), look_.scale, panels_.front()->frameWidth(), width);
    for (std::size_t i = 0; i < panels_.size(); ++i)
        panels_[i]->Show(views[i]);
}

}  // namespace keplin::qt
