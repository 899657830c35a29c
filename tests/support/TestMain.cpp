#include "TestEnvironment.h"

#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    const kestrel::test::TestEnvironment environment;
    QApplication application(argc, argv);
    application.setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
