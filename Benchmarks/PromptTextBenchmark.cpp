// How long the main loop is kept, and how much memory it takes, to show a script of a thousand, a
// hundred thousand and a million words, and to type into it.
//
// Limit: the main loop is never kept longer than 50 ms.

#include "Orvello/Adapters/Portable/QtTimeSource.h"
#include "Orvello/Prompting/Text/PromptLines.h"

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>

#include <algorithm>
#include <cstdio>
#include <random>

namespace {

using namespace Orvello;
using namespace Qt::StringLiterals;

constexpr double stallLimit = 50;

double milliseconds(const QElapsedTimer& timer)
{
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// The real main loop, with a note of the longest call.
class StallMeter final : public TimeSource {
public:
    double now() const override { return m_time.now(); }
    Date date() const override { return m_time.date(); }
    std::unique_ptr<Ticket> callAfter(double seconds, Action action) override
    {
        return m_time.callAfter(seconds, timed(std::move(action)));
    }
    std::unique_ptr<Ticket> callEvery(double seconds, Action action) override
    {
        return m_time.callEvery(seconds, timed(std::move(action)));
    }

    void run(const Action& action)
    {
        QElapsedTimer timer;
        timer.start();
        action();
        m_longest = std::max(m_longest, milliseconds(timer));
    }

    double takeLongest() { return std::exchange(m_longest, 0.0); }

private:
    Action timed(Action action)
    {
        return [this, action = std::move(action)] { run(action); };
    }

    QtTimeSource m_time;
    double m_longest = 0;
};

QString prose(int wordCount)
{
    static const QStringList vocabulary { u"the"_s, u"of"_s, u"a"_s, u"and"_s, u"to"_s,
        u"speaker"_s, u"audience"_s, u"reads"_s, u"slowly"_s, u"growth,"_s, u"quarter"_s,
        u"together"_s, u"we"_s, u"learned"_s, u"something."_s, u"incomprehensible"_s, u"Über"_s };
    std::mt19937 random(1);
    QString text;
    for (int i = 1; i <= wordCount; ++i) {
        text += vocabulary[static_cast<qsizetype>(random()) % vocabulary.size()];
        text += i % 80 == 0 ? u"\n\n"_s : u" "_s;
    }
    return text;
}

/// Resident memory in megabytes; 0 where the system does not tell in this way.
double residentMegabytes()
{
    QFile file(u"/proc/self/statm"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    constexpr double pageBytes = 4096;
    return file.readAll().split(' ').value(1).toDouble() * pageBytes / 1e6;
}

PromptLines& prepare(PromptLines& lines)
{
    lines.setFontSize(30);
    lines.setTextWidth(664);
    lines.setVisibleTop(-36);
    lines.setVisibleHeight(200);
    return lines;
}

void finish(const PromptLines& lines)
{
    while (!lines.isLaidOut())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

const char* verdict(double stall) { return stall < stallLimit ? "" : "  OVER THE LIMIT"; }

void measure(int wordCount)
{
    const QString text = prose(wordCount);
    const double memoryBefore = residentMegabytes();
    StallMeter time;
    PromptLines lines(time);
    prepare(lines);

    QElapsedTimer total;
    total.start();
    time.run([&] { lines.setText(text); });
    const double first = milliseconds(total);
    finish(lines);
    const double whole = milliseconds(total);
    const double openStall = time.takeLongest();
    std::printf("%8d words (%.1f MB): first lines %.1f ms, whole %.0f ms, longest stall %.1f ms "
                "(limit %.0f)%s\n",
        wordCount, static_cast<double>(text.size()) * 2 / 1e6, first, whole, openStall, stallLimit,
        verdict(openStall));
    std::printf("%17s memory %.1f MB, of which %.1f MB are positions of %lld lines\n", "",
        residentMegabytes() - memoryBefore, static_cast<double>(lines.positionBytes()) / 1e6,
        static_cast<long long>(lines.positionBytes() / PromptLayout::bytesPerLine));

    for (const double part : { 0.0, 0.5, 1.0 }) {
        QString edited = text;
        const auto place = static_cast<qsizetype>(part * static_cast<double>(text.size()));
        edited.insert(place, u'x');
        time.takeLongest();
        QElapsedTimer typing;
        typing.start();
        time.run([&] { lines.edit(edited, { place, 0, 1 }); });
        finish(lines);
        const double stall = time.takeLongest();
        std::printf("%17s a letter at %3.0f %%: shown after %.1f ms%s\n", "", part * 100,
            milliseconds(typing), verdict(stall));
        lines.edit(text, { place, 1, 0 });
        finish(lines);
    }

    total.restart();
    lines.setVisibleTop(lines.contentHeight() / 2);
    time.run([&] { lines.setTextWidth(500); });
    finish(lines);
    const double resizeStall = time.takeLongest();
    std::printf("%17s another width in the middle: whole %.0f ms, longest stall %.1f ms%s\n", "",
        milliseconds(total), resizeStall, verdict(resizeStall));
}

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    QtTimeSource time;
    PromptLines warmUp(time);
    prepare(warmUp).setText(prose(100)); // Loads the font.
    for (const int wordCount : { 1000, 100000, 1000000 })
        measure(wordCount);
}
