// Runs the tests of views and windows, on a display, with preferences of their own and
// a sound output that nobody hears.

#include "desktop/widgets/graphics.h"

#include <QApplication>
#include <QTemporaryDir>
#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    const QTemporaryDir home;
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
        qputenv(variable, home.path().toUtf8());
    qputenv("ALSOFT_DRIVERS", "null");
    // Nothing that a test does is to reach the user's session.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    velmora::requestOpenGL();
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
