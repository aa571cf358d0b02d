// What leaves the window on the accessibility bus. Needs a session with that bus, a screen and a
// window manager: tests/in_private_session makes one.
#include <QAccessible>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVariant>
#include <QThread>
#include <mutex>

#include "tests/support/qt_window.h"

namespace keplin::test {

constexpr auto Call = &QDBusMessage::createMethodCall;

// A screen reader of a kind, on a connection and a thread of its own: the program's thread may be
// in a pause.
class Listener : public QObject {
    Q_OBJECT

  public:
    Listener() {
        const QDBusReply<QString> address = QDBusConnection::sessionBus().call(
            Call("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress"));
        bus_ = QDBusConnection::connectToBus(address, "listener");
        moveToThread(&thread_);
        bus_.connect("", "", "org.a11y.atspi.Event.Object", "", this, SLOT(Hear(QDBusMessage)));
        bus_.call(Call("org.a11y.atspi.Registry", "/org/a11y/atspi/registry",
                       "org.a11y.atspi.Registry", "RegisterEvent")
                  << "object:");
        thread_.start();
    }
    ~Listener() override {
        thread_.quit();
        thread_.wait();
    }

    // Asks for the role of the widget, and waits at most half a second for the answer.
    void AskForRole(QWidget& widget) {
        const QDBusMessage question = Call(QDBusConnection("a11y").baseService(), PathOf(widget),
                                           "org.a11y.atspi.Accessible", "GetRoleName");
        const auto ask = [this, question] {
            const QDBusReply<QString> answer = bus_.call(question, QDBus::Block, 500);
            const std::lock_guard lock(mutex_);
            role_ = answer.value();
        };
        QMetaObject::invokeMethod(this, ask, Qt::QueuedConnection);
    }

    QString Role() const {
        const std::lock_guard lock(mutex_);
        return role_;
    }
    // Whatever was to be spoken since the last call, each on a line.
    std::string Heard() {
        const std::lock_guard lock(mutex_);
        return std::exchange(heard_, "");
    }
    // Of the progress bar.
    int Steps() const {
        const std::lock_guard lock(mutex_);
        return steps_;
    }
    bool HearsEvents() const {
        const std::lock_guard lock(mutex_);
        return names_ > 0;
    }
    bool HeardOfFocusOn(QWidget& widget) const {
        const std::lock_guard lock(mutex_);
        return focused_.contains(PathOf(widget));
    }

  private:
    Q_SLOT void Hear(const QDBusMessage& signal) {
        const QString what = signal.arguments().at(0).toString();
        const QVariant text = signal.arguments().at(3).value<QDBusVariant>().variant();
        const bool speaks = signal.member() == "Announcement" || what == "accessible-description";
        const std::lock_guard lock(mutex_);
        if (speaks && text.typeId() == QMetaType::QString)
            heard_ += text.toString().toStdString() + "\n";
        if (what == "accessible-name") ++names_;
        if (what == "accessible-value") ++steps_;
        if (what == "focused") focused_ << signal.path();
    }

    static QString PathOf(QWidget& widget) {
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&widget);
        return "/org/a11y/atspi/accessible/" + QString::number(QAccessible::uniqueId(accessible));
    }

    QDBusConnection bus_{""};
    QThread thread_;
    mutable std::mutex mutex_;
    QString role_;
    std::string heard_;
    int names_ = 0;
    int steps_ = 0;
    QStringList focused_;
};

class AccessibilityBus : public QtWindow {
  protected:
    // Qt sends events only from some time after it was asked for them.
    void SetUp() override {
        ASSERT_TRUE(Until([&] {
            QAccessibleEvent event(&window, QAccessible::NameChanged);
            QAccessible::updateAccessibility(&event);
            return window.isActiveWindow() && listener.HearsEvents();
        }));
    }

    std::string NextHeard() {
        std::string heard;
        Until([&] { return !(heard += listener.Heard()).empty(); });
        return heard;
    }

    std::string DescriptionOf(const Control& control) {
        const auto* accessible = QAccessible::queryAccessibleInterface(Find(control));
        return accessible->text(QAccessible::Description).toStdString();
    }

    Listener listener;
};

namespace {

using namespace std::chrono_literals;

TEST_F(AccessibilityBus, AResultIsAnnouncedAndQuestionsAreAnsweredDuringThePauseAfterIt) {
    Show(model.PicSetup);
    model.Next_2.Enabled = false;
    model.cmdPortTest.OnClick = [&] {
        model.cmdPortTest.Enabled = false;
        model.lblResults.Caption = "Query to Port 1";
        desktop.Yield();
        listener.AskForRole(window);
        desktop.Sleep(1000ms);
        EXPECT_EQ(listener.Heard(), "Query to Port 1\n");
        EXPECT_EQ(listener.Role(), "frame");
        model.lblResults.Caption = " Communications Fail on All Ports";
        model.cmdPortTest.Enabled = true;
    };
    Click(model.cmdPortTest);
    EXPECT_EQ(NextHeard(), "Communications Fail on All Ports\n");
    EXPECT_EQ(DescriptionOf(model.cmdPortTest), "Communications Fail on All Ports");
    EXPECT_TRUE(listener.HeardOfFocusOn(*Find(model.cmdPortTest)));
    EXPECT_FALSE(listener.HeardOfFocusOn(window));
}

TEST_F(AccessibilityBus, ARunIsHeardAsItsStagesAndItsEndAndNotStepByStep) {
    Show(model.PicProgram);
    EXPECT_TRUE(NextHeard().starts_with("Note:  System damage may occur"));
    model.cmdExit.Enabled = false;
    model.ProgressBar1.Counts = ProgressBar::Unit::Lines;
    model.ProgressBar1.Max = 4000;
    model.lblPrgm.Caption = "Programming Device";
    model.lblPrgm.Visible = true;
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 512; ++i) {
        model.ProgressBar1.Value = static_cast<float>(i);
        model.Shape2.Left = model.Shape2.Left + 1;
        desktop.Yield();
        desktop.Sleep(1ms);
    }
    EXPECT_EQ(NextHeard(), "Programming Device\n");
    EXPECT_EQ(DescriptionOf(model.ProgressBar1), "line 512 of 4,000");
    model.lblPrgm.Caption = "Programming Failed at Line 513";
    model.cmdExit.Enabled = true;
    EXPECT_EQ(NextHeard(), "Programming Failed at Line 513. The update has stopped.\n");
    EXPECT_LE(listener.Steps(), 2 + (std::chrono::steady_clock::now() - start) / 1s);
    model.Command1.OnClick = [&] {
        model.Command1.Visible = false;
        model.lblPrg[0].Caption = "Congratulations programming is now complete.";
        desktop.Yield();
    };
    Click(model.Command1);
    EXPECT_EQ(Focused(), "cmdExit");
    EXPECT_EQ(DescriptionOf(model.cmdExit), "Congratulations programming is now complete.");
}

}  // namespace
}  // namespace keplin::test

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "xcb");
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}

#include "accessibility_bus_test.moc"
