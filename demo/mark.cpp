#include "demo/mark.h"

#include <QIcon>
#include <QPainter>

// Resources of a static library are known only after this.
static void InitIcon() {
    Q_INIT_RESOURCE(demo_icon);
}

namespace keplin {
namespace {

constexpr QColor kRed{0xB0, 0x00, 0x20};

// That of the demonstration's desktop entry.
QIcon DemoIcon() {
    InitIcon();
    QIcon icon;
    for (const char* png :
         {":/keplin-demo-16.png", ":/keplin-demo-32.png", ":/keplin-demo-128.png"})
        icon.addFile(png);
    return icon;
}

// Across the upper right corner, over the window's own small icon and clear of everything else.
class Ribbon final : public QWidget {
  public:
    explicit Ribbon(const QWidget& icon) : QWidget(icon.parentWidget()) {
        const int side = icon.width() * 11 / 4;
        setGeometry(parentWidget()->width() - side, 0, side, side);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAccessibleName("Demonstration: nothing is sent to a controller");
        show();
        raise();
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(width() / 2.0, height() / 2.0);
        painter.rotate(45);
        const QRectF band(-width(), -width() / 8.0, 2 * width(), width() / 4.0);
        painter.fillRect(band, kRed);
        QFont letters = font();
        letters.setBold(true);
        letters.setPixelSize(width() / 8);
        painter.setFont(letters);
        painter.setPen(Qt::white);
        painter.drawText(band, Qt::AlignCenter, "DEMONSTRATION");
    }
};

}  // namespace

QWidget& MarkAsDemonstration(QWidget& window) {
    window.setWindowTitle("DEMONSTRATION - " + window.windowTitle().trimmed());
    window.setWindowIcon(DemoIcon());
    return *new Ribbon(*window.findChild<QWidget*>("Image1"));
}

}  // namespace keplin
