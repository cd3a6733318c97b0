// Runs tests of views and windows on a display, with preferences of their own and a silent output.

#include "desktop/widgets/graphics.h"
#include "desktop/widgets/languages.h"
#include "support/TestHome.h"

#include <QApplication>
#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    const velmora::TestHome home;
    qputenv("ALSOFT_DRIVERS", "null");
    // Tests must not reach the user's session.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    velmora::requestOpenGL();
    const QApplication application(argc, argv);
    velmora::installTranslators();
    return RUN_ALL_TESTS();
}
