#include <QSettings>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

/// The place and the words are Qt's: on a system with a native style it would take that one.
TEST(ControlsStyleTest, isTheOneThatTheViewsAreDrawnFor)
{
    const QSettings configuration(u":/qtquickcontrols2.conf"_s, QSettings::IniFormat);

    EXPECT_EQ(configuration.value(u"Controls/Style"_s).toString(), u"Fusion");
}

} // namespace
} // namespace Orvello
