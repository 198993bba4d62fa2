#include "Orvello/Shell/Windows/ViewWindow.h"

#include <gtest/gtest.h>

#include <QQmlEngine>
#include <QQuickView>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ExitedWithCode;

TEST(ViewWindowTest, saysWhichViewLacksWhichModuleAndExits)
{
    // In a process of its own: the threads that load views do not survive a fork.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    QQuickView window;
    window.engine()->setImportPathList({});

    EXPECT_EXIT(ViewWindow::load(window, u"LibraryView"_s, {}), ExitedWithCode(1),
        "LibraryView could not be loaded: .*module \"QtQuick.*\" is not installed");
}

} // namespace
} // namespace Orvello
