#include "Orvello/Diagnostics/LogFormat.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <tuple>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

/// Runs under a locale of its own making, whatever the machine offers.
class LogFormatLocaleTest : public ::testing::TestWithParam<const char*> {
protected:
    LogFormatLocaleTest()
    {
        const QString name = QString::fromLatin1(GetParam());
        // Not by QProcess, whose way to fork makes ThreadSanitizer fail.
        std::ignore
            = std::system(u"localedef -c -i %1 -f UTF-8 %2/%1.UTF-8"_s.arg(name, folder.path())
                              .toLocal8Bit()
                              .constData());
        qputenv("LOCPATH", folder.path().toUtf8());
        isUnderLocale = std::setlocale(LC_ALL, (name + u".UTF-8"_s).toLatin1().constData());
    }
    ~LogFormatLocaleTest() override
    {
        std::setlocale(LC_ALL, "C");
        qunsetenv("LOCPATH");
    }

    static std::string formatted(std::string_view format, double number)
    {
        std::string line;
        LogFormat::append(line, format, std::array { LogArgument(number) });
        return line;
    }

    QTemporaryDir folder;
    bool isUnderLocale = false;
};

TEST_P(LogFormatLocaleTest, writesNumbersAsInEveryOther)
{
    ASSERT_TRUE(isUnderLocale);
    std::array<char, 16> byTheCLibrary {};
    std::snprintf(byTheCLibrary.data(), byTheCLibrary.size(), "%.1f", 0.5);
    ASSERT_STRNE(byTheCLibrary.data(), "0.5");

    EXPECT_EQ(formatted("%.4f", -0.5), "-0.5000");
    EXPECT_EQ(formatted("%.2f", 1234567.891), "1234567.89");
    EXPECT_EQ(formatted("%.0f", 3.7), "4");
    EXPECT_EQ(formatted("%@", 1.25), "1.25");
    EXPECT_EQ(formatted("%.4f", -std::numeric_limits<double>::infinity()), "-inf");
    EXPECT_EQ(formatted("%.4f", std::numeric_limits<double>::quiet_NaN()), "nan");
}

// A comma, and a separator of two bytes.
INSTANTIATE_TEST_SUITE_P(Locales, LogFormatLocaleTest, ::testing::Values("de_DE", "ps_AF"));

} // namespace
} // namespace Orvello
