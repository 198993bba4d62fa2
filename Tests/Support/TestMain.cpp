#include <QApplication>

#include <gtest/gtest.h>

/// The main of every unit-test program. Tests need no display, so the platform is chosen here and
/// not by who runs them.
int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
