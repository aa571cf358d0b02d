#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

// No settings but its own, and the screen of that name among those of the tests.
int main(int argc, char** argv) {
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(settings.path()));
    const QString screen = qEnvironmentVariable("SCREEN", "2600x1800");
    qputenv("QT_QPA_PLATFORM",
            "offscreen:configfile=" KEPLIN_SCREENS "/" + screen.toUtf8() + ".json");
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
