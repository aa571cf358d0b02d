// What tells the demonstration from the product.
#include <gtest/gtest.h>

#include <QIcon>

#include "demo/mark.h"
#include "tests/support/qt_window.h"

namespace keplin::test {
namespace {

TEST_F(QtWindow, TheDemonstrationIsMarkedOnEveryPageAndHidesNothingButTheIcon) {
    const QImage product = window.windowIcon().pixmap(16).toImage();
    const QString title = window.windowTitle();
    QWidget& ribbon = MarkAsDemonstration(window);
    EXPECT_TRUE(window.windowTitle().startsWith("DEMONSTRATION"));
    EXPECT_TRUE(window.windowTitle().endsWith(title.trimmed()));
    EXPECT_NE(window.windowIcon().pixmap(16).toImage(), product);
    const QRectF icon = Find(model.Image1)->geometry();
    for (Page* page : {&model.PicGettingStarted, &model.PicSetup, &model.PicProgram}) {
        Show(*page);
        const QImage marked = window.grab().toImage();
        ribbon.hide();
        const QImage plain = window.grab().toImage();
        ribbon.show();
        const double ratio = plain.devicePixelRatio();
        int covered = 0;
        for (int y = 0; y < plain.height(); ++y) {
            for (int x = 0; x < plain.width(); ++x) {
                if (marked.pixel(x, y) == plain.pixel(x, y)) continue;
                ++covered;
                if (icon.contains(QPointF(x, y) / ratio)) continue;
                ASSERT_EQ(plain.pixel(x, y), plain.pixel(2, 2)) << page->Name << x << "," << y;
            }
        }
        EXPECT_GT(covered, 2000) << page->Name;
    }
}

}  // namespace
}  // namespace keplin::test
