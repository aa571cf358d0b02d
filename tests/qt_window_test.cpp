#include "tests/support/qt_window.h"

#include <QAccessible>
#include <QDir>
#include <QGroupBox>
#include <QHelpEvent>
#include <QProgressBar>
#include <QResource>
#include <QScreen>
#include <QToolTip>
#include <thread>

#include "tests/support/text_fit.h"
#include "ui/accessible_text.h"
#include "ui/throttle.h"

namespace keplin::test {
namespace {

TEST_F(QtWindow, EveryControlStandsInItsPlace) {
    EXPECT_EQ(window.size(), QSize(622, 343));
    EXPECT_EQ(window.minimumSize(), window.maximumSize());
    EXPECT_EQ(window.windowTitle(), "  Keplin For QDX-470");
    EXPECT_EQ(window.windowFlags() & Qt::WindowMinMaxButtonsHint, Qt::WindowMinimizeButtonHint);
    const QStringList prepared = QDir(":/").entryList({"keplin*x*"});
    EXPECT_EQ(prepared.size(), window.windowIcon().availableSizes().size());
    for (const QString& name : prepared) {
        const int size = name.section('x', -1).toInt();
        const QImage icon = window.windowIcon().pixmap(size / 2).toImage();  // ratio two
        EXPECT_EQ(icon, QImage(QResource(":/" + name).data(), size, size, icon.format())) << size;
        EXPECT_EQ(icon.pixelColor(icon.width() / 2, icon.width() / 8), QColor(255, 208, 48))
            << "no arrow";
    }
    EXPECT_LE((window.geometry().center() - window.screen()->geometry().center()).manhattanLength(),
              60);
    EXPECT_EQ(Find(model.StatusBar1)->geometry(), QRect(0, 309, 622, 17));
    EXPECT_EQ(Find(model.StatusBar2)->geometry(), QRect(0, 326, 622, 17));
    int checked = 0;
    for (const Control* control : model.Controls()) {
        const QWidget* widget = Find(*control);
        if (widget == nullptr || widget->parentWidget()->objectName().startsWith("Status"))
            continue;
        if (dynamic_cast<const StatusBar*>(control) != nullptr) continue;
        const QRectF pixels(control->Left / 15, control->Top / 15, control->Width / 15,
                            control->Height / 15);
        EXPECT_EQ(QRectF(widget->geometry()), pixels) << control->Name;
        const auto* button = qobject_cast<const QPushButton*>(widget);
        EXPECT_FALSE(button && button->text().isEmpty()) << control->Name;
        ++checked;
    }
    EXPECT_EQ(checked, 33);
}

TEST_F(QtWindow, FollowsTheModel) {
    model.Shape2.Left = 5160;
    model.Command1.Caption = "Fish & Chips";
    model.lblPrg[0].Bold = true;
    model.Frame2.Caption = "Update Complete";
    EXPECT_EQ(Find(model.Shape2)->pos(), QPoint(344, 264));
    EXPECT_EQ(Find<QPushButton>(model.Command1)->text(), "Fish && Chips");
    EXPECT_TRUE(Find(model.lblPrg[0])->font().bold());
    EXPECT_FALSE(Find(model.lblPrg[1])->font().bold());
    EXPECT_EQ(Find(model.Frame2)->accessibleName(), "Update Complete");
    EXPECT_FALSE(Find(model.PicSetup)->isVisible() || Find(model.Shape2)->isVisible());
    Show(model.PicSetup);
    EXPECT_TRUE(Find(model.cmdPortTest)->isVisible());
    model.cmdPortTest.Enabled = false;
    EXPECT_FALSE(Find(model.cmdPortTest)->isEnabled());
    desktop.YieldOnce();
    bool repainted = false;
    const WhenPainted painted(*Find(model.Frame1), [&] { repainted = true; });
    model.Frame1.Caption = "Setup";
    EXPECT_TRUE(Until([&] { return repainted; }));
    for (Control* control : std::initializer_list<Control*>{&model.Image1, &model.ProgressBar1}) {
        control->Visible = false;
        EXPECT_TRUE(Find(*control)->isHidden());
    }
    model.WindowState = Form::State::Minimised;
    EXPECT_TRUE(window.isMinimized());
    model.Visible = false;
    EXPECT_FALSE(window.isVisible());
    ISPMain unseen;
    EXPECT_FALSE(qt::MainWindow(unseen).isVisible());
}

TEST_F(QtWindow, ClicksAndKeysPressWhatCanBePressed) {
    int presses = 0;
    model.Next_1.OnClick = [&] { ++presses; };
    const auto pressInEachWay = [&](bool repeated) {
        for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
            Type(key, repeated);
        if (!repeated) Click(model.Next_1);
        return std::exchange(presses, 0);
    };
    EXPECT_EQ(pressInEachWay(false), 4);
    EXPECT_EQ(pressInEachWay(true), 0);
    window.showMinimized();
    window.showNormal();
    desktop.YieldOnce();
    EXPECT_EQ(pressInEachWay(false), 4);
    model.Next_1.Enabled = false;
    Find<QPushButton>(model.Next_1)->click();
    model.Next_1.Enabled = true;
    Find(model.Next_1)->setFocus();
    EXPECT_EQ(pressInEachWay(false), 0) << "it came just now";
}

TEST_F(QtWindow, TheFocusGoesFromButtonToButton) {
    model.Next_2.Enabled = false;
    Show(model.PicSetup);
    EXPECT_EQ(Focused(), "cmdPortTest");
    model.cmdPortTest.OnClick = [&] {
        model.cmdPortTest.Enabled = false;
        EXPECT_EQ(Focused(), "");
        Type(Qt::Key_Return);
        model.cmdPortTest.Enabled = true;
    };
    Type(Qt::Key_Return);
    model.Next_2.Enabled = true;
    for (const char* next : {"cmdPortTest", "cmdExit", "Next_2", "cmdPortTest"}) {
        EXPECT_EQ(Focused(), next);
        Type(Qt::Key_Tab);
    }
}

TEST_F(QtWindow, AskedToCloseItAsksTheModel) {
    int requests = 0;
    model.OnCloseRequest = [&] { ++requests; };
    EXPECT_FALSE(window.close());
    QEvent logout(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &logout);
    EXPECT_EQ(requests, 2);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(QtWindow, TheProgressBarIsRepaintedNowAndThenAndAtTheEnd) {
    Show(model.PicProgram);
    model.ProgressBar1.Max = 1000;
    auto* bar = Find<QProgressBar>(model.ProgressBar1);
    EXPECT_FALSE(bar->isTextVisible());
    Until([&] { return bar->value() == 0; });
    int paints = 0;
    const WhenPainted counter(*bar, [&] { ++paints; });
    const auto start = std::chrono::steady_clock::now();
    for (int i = 1; i <= 500; ++i) {
        model.ProgressBar1.Value = static_cast<float>(i);
        desktop.YieldOnce();
    }
    EXPECT_TRUE(Until([&] { return bar->value() == bar->maximum() / 2; }));
    const auto passed = std::chrono::steady_clock::now() - start;
    EXPECT_LE(paints, 2 + passed / std::chrono::milliseconds(33));
    EXPECT_GE(paints, 1);
    paints = 0;
    model.ProgressBar1.Value = 504;  // by less than what the style thinks worth painting
    EXPECT_TRUE(Until([&] { return paints == 1; }));
    // A new run after one that stopped: never the old value in the new range.
    std::this_thread::sleep_for(Throttle::kBar);
    const int shown = bar->value();
    model.ProgressBar1.Max = 100;
    EXPECT_EQ(bar->value(), shown);
    model.ProgressBar1.Max = 0;  // Qt would show an empty range as busy
    model.ProgressBar1.Value = 0;
    EXPECT_TRUE(Until([&] { return bar->value() == 0; }));
    EXPECT_GT(bar->maximum(), 0);
}

TEST_F(QtWindow, PanelsShareTheirBarAndShortenALongPath) {
    const auto* file = Find<QLabel>(model.StatusBar1.Panels(1));
    EXPECT_EQ(file->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    EXPECT_EQ(Find<QLabel>(model.StatusBar2.Panels(3))->alignment(), Qt::AlignCenter);
    EXPECT_EQ(Find(model.StatusBar1.Panels(2))->geometry().left(), 622 - 133);
    EXPECT_EQ(Find(model.StatusBar2.Panels(2))->geometry().left(), 207);
    std::string path = " /<b>" + std::string(200, 'x') + "/UPDATE.HEX";
    for (int longer = 0; longer < 6; ++longer) {
        path.insert(2, "m");
        model.StatusBar1.Panels(1).Text = path;
        EXPECT_EQ(TextsThatDoNotFit(window), std::vector<std::string>{}) << path;
    }
    EXPECT_TRUE(file->text().startsWith(" /mm") && file->text().endsWith("/UPDATE.HEX"));
    EXPECT_TRUE(file->toolTip().startsWith("<span> /mmmmmm&lt;b&gt;xxx"));
    model.StatusBar1.Panels(1).Text = " /home/me/UPDATE.HEX";
    EXPECT_EQ(file->text(), " /home/me/UPDATE.HEX");
    EXPECT_EQ(file->toolTip(), "");
}

TEST_F(QtWindow, AScreenReaderIsToldOfEveryControl) {
    for (const Control* control : model.Controls()) {
        const std::string name = AccessibleTextOf(*control).name;
        if (name.empty()) continue;
        EXPECT_EQ(Read(*control), name) << control->Name;
    }
    model.ProgressBar1.Value = 33;
    EXPECT_EQ(Read(model.ProgressBar1, QAccessible::Value), "33 %");
    QHelpEvent hover(QEvent::ToolTip, {}, {});
    QCoreApplication::sendEvent(Find(model.ProgressBar1), &hover);
    EXPECT_EQ(QToolTip::text(), "33 %");
    Find(model.ProgressBar1)->setAttribute(Qt::WA_UnderMouse);
    model.ProgressBar1.Value = 34;
    EXPECT_TRUE(Until([&] { return QToolTip::text() == "34 %"; }));
    auto* value = QAccessible::queryAccessibleInterface(Find(model.ProgressBar1));
    EXPECT_EQ(value->valueInterface()->currentValue(), 34);
    EXPECT_EQ(value->valueInterface()->maximumValue(), 100);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(Find(model.StatusBar1))->role(),
              QAccessible::StatusBar);
    model.ProgressBar1.Counts = ProgressBar::Unit::Lines;
    model.ProgressBar1.Max = 4000;
    EXPECT_EQ(Read(model.ProgressBar1, QAccessible::Description), "line 35 of 4,000");
    model.lblResults.Caption = "Query to Port 1";
    model.StatusBar2.Panels(3).Text = "Checksum: A";
    Find(model.cmdExit)->setAccessibleDescription("News");
    model.cmdExit.Caption = "Finish & Go";
    EXPECT_EQ(Read(model.lblResults), "Query to Port 1");
    EXPECT_EQ(Read(model.StatusBar2.Panels(3)), "Checksum: A");
    EXPECT_EQ(Read(model.StatusBar2.Panels(3), QAccessible::Description), "Checksum");
    EXPECT_EQ(Read(model.cmdExit), "Finish & Go");
    EXPECT_EQ(Read(model.cmdExit, QAccessible::Description), "News");
}

}  // namespace
}  // namespace keplin::test
