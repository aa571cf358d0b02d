// What tells the demonstration from the product.

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
    EXPECT_EQ(window.windowIcon().availableSizes().size(), 3);
    EXPECT_NE(window.windowIcon().pixmap(16).toImage(), product);
    const QRectF icon = Find(model.Image1)->geometry();
    for (Page* page : {&model.PicGettingStarted, &model.PicSetup, &model.PicProgram}) {
        Show(*page);
        const QImage marked = window.grab().toImage();
        ribbon.hide();
        const QImage plain = window.grab().toImage();
        ribbon.show();
        int covered = 0;
        int letters = 0;
        for (int i = 0; i < plain.width() * plain.height(); ++i) {
            const QPoint at(i % plain.width(), i / plain.width());
            if (marked.pixel(at) == plain.pixel(at)) continue;
            ++covered;
            if (qGreen(marked.pixel(at)) > 200) ++letters;
            if (icon.contains(QPointF(at) / plain.devicePixelRatio())) continue;
            ASSERT_EQ(plain.pixel(at), plain.pixel(2, 2)) << page->Name << at.x() << "," << at.y();
        }
        EXPECT_GT(covered, 2000) << page->Name;
        EXPECT_GT(letters, 200) << page->Name;
    }
}

}  // namespace
}  // namespace keplin::test
