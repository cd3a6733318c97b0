// Runs tests that need an event loop, with preferences of their own.

#include "support/TestHome.h"

#include <QCoreApplication>
#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    const velmora::TestHome home;
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
