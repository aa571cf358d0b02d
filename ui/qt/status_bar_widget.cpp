#include "ui/qt/status_bar_widget.h"

#include <QStyleOptionFrame>
#include <cmath>

#include "ui/status_panels.h"

namespace keplin::qt {
namespace {

constexpr int kMargin = 3;   // pixels between the bevel and the text
constexpr int kGap = 2;      // pixels between two panels
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
    setIndent(kMargin);
    setAlignment(Qt::AlignVCenter |
                 (panel.TextAlignment == Alignment::Centre ? Qt::AlignHCenter : Qt::AlignLeft));
    setAccessibleDescription(ToQt(panel.Description));
    setVisible(panel.Visible);
}

void PanelWidget::Apply(Aspect aspect) {
    setVisible(panel_.Visible);
    if (aspect == Aspect::Caption) bar_.Arrange();
}

int PanelWidget::BesideText() const {
    return 2 * (kMargin + frameWidth());
}

int PanelWidget::WidthOfText() const {
    return fontMetrics().horizontalAdvance(ToQt(panel_.Text)) + BesideText();
}

void PanelWidget::ShowText() {
    const QString whole = ToQt(panel_.Text);
    const bool fits = WidthOfText() <= width();
    const int room = width() - BesideText();
    setText(fits ? whole : fontMetrics().elidedText(whole, Qt::ElideMiddle, room));
    setToolTip(fits ? QString() : ToolTip(whole));
    const QString name = whole.isEmpty() ? accessibleDescription() : whole;
    if (accessibleName() != name) setAccessibleName(name);
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

// The bar follows the window's bottom edge.
void StatusBarWidget::Apply(Aspect) {
    const float top = look_.form.ClientHeight() - bar_.AboveBottom;
    setVisible(bar_.Visible);
    setGeometry(look_.scale.Pixels(Place{0, top, look_.form.Width, bar_.Height}));
    Arrange();
}

PanelWidget& StatusBarWidget::Add(const Panel& panel) {
    panels_.push_back(new PanelWidget(panel, *this));
    return *panels_.back();
}

void StatusBarWidget::Arrange() {
    if (panels_.size() != bar_.PanelCount()) return;
    std::vector<float> minimums;
    std::vector<float> texts;
    for (std::size_t i = 0; i < panels_.size(); ++i) {
        minimums.push_back(static_cast<float>(look_.scale.Pixels(bar_.Panels(i + 1).MinimumWidth)));
        texts.push_back(static_cast<float>(panels_[i]->WidthOfText() + kGap));
    }
    const auto widths = PanelWidths(bar_, static_cast<float>(width()), minimums, texts);
    float left = 0;
    for (std::size_t i = 0; i < panels_.size(); ++i) {
        const int from = static_cast<int>(std::lround(left));
        const int to = static_cast<int>(std::lround(left += widths[i]));
        panels_[i]->setGeometry(from, 1, to - from - kGap, height() - 1);
        panels_[i]->ShowText();
    }
}

}  // namespace keplin::qt
