// What the window paints: texts that are whole, in the colours of the design.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFontDatabase>
#include <QLabel>
#include <QScreen>
#include <algorithm>
#include <tuple>

#include "tests/support/qt_window.h"
#include "tests/support/text_fit.h"
#include "ui/program_instructions.h"

namespace keplin::test {
namespace {

TEST_F(QtWindow, EveryTextIsWholeAtEveryStage) {
    const QSize screen = window.screen()->size();
    const int full = qRound(9330 * window.logicalDpiX() / 1440.0);
    EXPECT_LE(window.height() + 40, screen.height());  // room for a title bar
    EXPECT_EQ(window.width(), std::min(full, screen.width() - 4));
    const QPoint middle = PaintedInk(*Find<QLabel>(model.Label8)).center();
    EXPECT_NEAR(middle.x(), Find(model.Label8)->rect().center().x(), 2);
    const QColor bevel = window.palette().window().color().darker(160);
    EXPECT_TRUE(IsPainted(model.StatusBar1.Panels(2), bevel, 1));
    const std::vector<std::string> none;
    model.StatusBar1.Panels(2).Text = " Number of Lines: 10001  ";
    model.StatusBar2.Panels(1).Text = " File Size: 5240524     Hex: 4FF68C";
    model.StatusBar2.Panels(2).Text = " Created 12/31/2026 11:59 PM";
    model.StatusBar2.Panels(3).Text = "Checksum: FFFFD8EF";
    EXPECT_EQ(TextsThatDoNotFit(window), none);
    Show(model.PicSetup);
    const double size = Find(model.Label4)->font().pointSizeF();
    EXPECT_EQ(Find(model.cmdPortTest)->font().pointSizeF(), size);
    EXPECT_TRUE(QFontDatabase::hasFamily(window.font().family()));
    for (const char* text :
         {"Port 4 Active.  Ping Test Started", "Query to Port 4   Port Not Active",
          " Port 4 Ready.  Click NEXT to continue.", " Communications Fail on All Ports"}) {
        model.lblResults.Caption = text;
        EXPECT_EQ(TextsThatDoNotFit(window), none) << text;
    }
    Show(model.PicProgram);
    EXPECT_EQ(TextsThatDoNotFit(window), none);
    ShowProgramInstructions(model, desktop);
    model.lblPrgm.Visible = true;
    model.lblPrgm.Caption = "Programming Failed at Line 10001";
    EXPECT_EQ(TextsThatDoNotFit(window), none);
    for (Control* hidden : std::initializer_list<Control*>{&model.Command1, &model.Label10,
                                                           &model.ProgressBar1, &model.lblPrgm}) {
        hidden->Visible = false;
    }
    model.lblPrg[0].Caption = "Congratulations programming is now complete.";
    model.lblPrg[0].Bold = true;
    model.lblPrg[1].Caption =
        "Turn off power to the QDX-470 controller and disconnect the serial cable.";
    model.lblPrg[2].Caption =
        "Re-apply power and verify the voice announces the correct update version number.";
    EXPECT_EQ(TextsThatDoNotFit(window), none);
    for (const Label& label : model.lblPrg)
        EXPECT_EQ(Find(label)->font().pointSizeF(), size);
}

TEST_F(QtWindow, ALabelThatIsTooNarrowWritesSmallerAsLongAsItMust) {
    Show(model.PicProgram);
    const double size = Find(model.lblPrg[0])->font().pointSizeF();
    model.lblPrg[0].Caption = model.lblPrg[0].Caption.Get() + " Please.";
    EXPECT_LT(Find(model.lblPrg[0])->font().pointSizeF(), size);
    EXPECT_TRUE(TextsThatDoNotFit(window).empty());
    model.Command1.Visible = false;
    EXPECT_EQ(Find(model.lblPrg[0])->font().pointSizeF(), size);
}

TEST_F(QtWindow, PaintsTheColoursOfTheDesignAlsoInADarkTheme) {
    const QPalette light = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    desktop.YieldOnce();
    model.lblResults.Caption = "Query to Port 1";
    for (Control* hidden :
         std::initializer_list<Control*>{&model.lblPrgm, &model.Shape1, &model.Shape2})
        hidden->Visible = true;
    for (Page* page : {&model.PicGettingStarted, &model.PicSetup, &model.PicProgram}) {
        Show(*page);
        EXPECT_TRUE(IsPainted(*page, QColor(192, 192, 255), 4)) << page->Name;
        for (const Control* control : model.Controls()) {
            const bool frame = dynamic_cast<const Frame*>(control) != nullptr;
            const bool label = dynamic_cast<const Label*>(control) != nullptr;
            const bool onPage = control->Container != nullptr && control->Shown();
            if (!onPage || !(frame || label) || control == &model.Label10) continue;
            EXPECT_TRUE(IsPainted(*control, Qt::black, frame ? 12 : 1000)) << control->Name;
            if (!frame) continue;
            const QImage image = Find(*control)->grab().toImage();
            const QPoint end = image.rect().bottomRight();
            const QPoint gap =
                QPoint(window.width() * 7 / 622, Find(*control)->fontMetrics().height() / 2) *
                window.devicePixelRatioF();
            EXPECT_EQ(image.pixelColor(gap), QColor(192, 192, 255));
            for (const QPoint on : {QPoint(0, end.y() / 2),
                                    {end.x(), end.y() / 2},
                                    {end.x() / 2, end.y()},
                                    {end.x() - 9, gap.y()}})
                EXPECT_EQ(image.pixelColor(on), QColor(120, 120, 159)) << control->Name;
        }
    }
    EXPECT_TRUE(IsPainted(model.Label10, Qt::red));
    EXPECT_TRUE(IsPainted(model.Image1, QColor(255, 208, 48)));
    const QColor bevel = window.palette().window().color().darker(160);
    EXPECT_TRUE(IsPainted(model.StatusBar1.Panels(2), bevel, 1));
    for (const Control* control : std::initializer_list<Control*>{&model.Label8, &model.Shape1})
        EXPECT_TRUE(IsPainted(*control, QApplication::palette().windowText().color()));
    EXPECT_TRUE(IsPainted(model.Shape2, Qt::blue, 1));
    Show(model.PicSetup);
    EXPECT_TRUE(IsPainted(model.lblResults, QColor(255, 255, 192)));
    EXPECT_TRUE(IsPainted(model.lblResults, Qt::black, 1)) << "its border";
    const std::tuple<const Picture*, QPointF, QColor> spots[] = {
        {&model.Image1, {0.5, 0.15}, {255, 208, 48}},              // the arrow
        {&model.Image2, {113.0 / 292, 97.0 / 105}, {8, 96, 72}}};  // the board's rim
    for (QScreen* screen : QApplication::screens()) {
        window.setScreen(screen);
        for (const auto& [picture, spot, colour] : spots) {
            auto* shown = Find<QLabel>(*picture);
            shown->grab();
            const QImage image = shown->pixmap(Qt::ReturnByValue).toImage();
            EXPECT_EQ(image.size(), (QSizeF(shown->size()) * window.devicePixelRatioF()).toSize());
            EXPECT_EQ(image.devicePixelRatio(), window.devicePixelRatioF());
            const QPointF place(spot.x() * image.width(), spot.y() * image.height());
            EXPECT_EQ(image.pixelColor(place.toPoint()), colour) << picture->Name;
            EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0) << "on a ground of its own";
        }
    }
    Find(model.cmdPortTest)->setFocus();
    const QImage focused = Find(model.cmdPortTest)->grab().toImage();
    Find(model.cmdExit)->setFocus();
    EXPECT_NE(Find(model.cmdPortTest)->grab().toImage(), focused);
    QApplication::setPalette(light);
}

}  // namespace
}  // namespace keplin::test
