// What typing costs in the scripts window, in the middle of a script of 1 MB in a library of 10 MB,
// with the prompter showing the same script: from the key press to the library file and to the
// screen, and for how long the program answers to nothing else meanwhile.
//
// Limit: no stall of more than 16 ms at a key press, one frame of a screen with 60 of them a
// second.

#include "Orvello/Adapters/Portable/QtTimeSource.h"
#include "Orvello/Presentations/Slideshow/DeckController.h"
#include "Orvello/Prompting/Text/PromptLines.h"
#include "Orvello/Settings/Store/SettingsStore.h"
#include "Orvello/Shell/Windows/LibraryWindow.h"
#include "Tests/Support/LibraryServices.h"
#include "Tests/Support/SlideshowStage.h"

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdio>
#include <ctime>
#include <functional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using Testing::LibraryServices;

constexpr qsizetype megabyte = 1'000'000;

QString prose(qsizetype length)
{
    const QString paragraph
        = u"Thank you all for coming. I want to talk about what we learned this year, and what we "
          "are going to do with it. We started with a simple question: what does a speaker need? "
          "Not more slides. Not a bigger screen.\n\n"_s;
    return paragraph.repeated(length / paragraph.size() + 1).first(length);
}

QList<Script> bigLibrary()
{
    QList<Script> scripts;
    for (int i = 0; i < 10; ++i)
        scripts.append(LibraryServices::script(u"Script %1"_s.arg(i), prose(megabyte)));
    return scripts;
}

/// Runs the main loop, which QTest::qWait does not: it sleeps for ten milliseconds at a time.
void runMainLoop(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Knocks at the main loop from another thread, over and over, and notes the longest time that it
/// took to answer.
class StallMeter final : public QObject {
public:
    StallMeter()
        : m_thread([this] { knock(); })
    {
    }
    ~StallMeter() override
    {
        m_isDone = true;
        m_thread.join();
    }

    double takeWorst() { return std::exchange(m_worst, 0); }

private:
    void knock()
    {
        while (!m_isDone) {
            QElapsedTimer sinceKnock;
            sinceKnock.start();
            m_isAnswered = false;
            QMetaObject::invokeMethod(
                this, [this, sinceKnock] { answer(sinceKnock); }, Qt::QueuedConnection);
            while (!m_isAnswered && !m_isDone)
                std::this_thread::sleep_for(std::chrono::microseconds(100));
        }
    }
    void answer(const QElapsedTimer& sinceKnock)
    {
        m_worst = std::max(m_worst, static_cast<double>(sinceKnock.nsecsElapsed()) / 1e6);
        m_isAnswered = true;
    }

    double m_worst = 0; ///< Milliseconds. Of the main thread.
    std::atomic<bool> m_isAnswered = false;
    std::atomic<bool> m_isDone = false;
    std::thread m_thread;
};

/// The scripts window, and behind it what lays the text out for the prompter.
class Program {
public:
    explicit Program(const QList<Script>& scripts)
        : services(scripts)
    {
        lines.setTextWidth(664);
        lines.setVisibleHeight(200);
        QObject::connect(&deck, &DeckController::promptTextChanged, &lines,
            [this](const TextEdit& edit) { lines.edit(deck.promptText(), edit); });
        library.bringToFront();
        if (!QTest::qWaitForWindowExposed(&window()))
            static_cast<void>(std::fputs("The window is not to be seen.\n", stderr));
        runMainLoop(2000);
    }

    QQuickWindow& window() { return library.view(); }

    /// Milliseconds from the action to the next frame of the scripts window.
    double untilSeen(const std::function<void()>& action)
    {
        bool isSeen = false;
        const auto seen = QObject::connect(
            &window(), &QQuickWindow::frameSwapped, &window(), [&] { isSeen = true; });
        QElapsedTimer timer;
        timer.start();
        action();
        while (!isSeen && !timer.hasExpired(5000))
            QCoreApplication::processEvents();
        QObject::disconnect(seen);
        return static_cast<double>(timer.nsecsElapsed()) / 1e6;
    }

    Testing::SlideshowStage desktop;
    LibraryServices services;
    QtTimeSource time;
    SettingsStore settings { services.defaults };
    SlideSyncService sync { desktop.monitor, desktop.presenters, time };
    DeckController deck { services.library, settings, sync };
    PromptLines lines { time };
    LibraryWindow library { services.ofWindow() };
    StallMeter stalls;
};

/// Milliseconds of the processor that this thread has had: what other programs do is not in it.
double processorTime()
{
    timespec time {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// "12.3 (45.6)": the median and the worst.
std::string summary(std::vector<double> values)
{
    std::ranges::sort(values);
    std::array<char, 64> text {};
    static_cast<void>(std::snprintf(
        text.data(), text.size(), "%6.1f (%6.1f)", values[values.size() / 2], values.back()));
    return text.data();
}

/// Does something over and over, with time to come to rest in between.
void measure(const char* what, Program& program, int times, const std::function<void()>& action)
{
    std::vector<double> seen;
    std::vector<double> busy;
    std::vector<double> stalls;
    for (int i = 0; i < times; ++i) {
        program.stalls.takeWorst();
        const double before = processorTime();
        seen.push_back(program.untilSeen(action));
        busy.push_back(processorTime() - before);
        runMainLoop(60);
        stalls.push_back(program.stalls.takeWorst());
    }
    std::printf("%-46s %s %s %s\n", what, summary(seen).c_str(), summary(busy).c_str(),
        summary(stalls).c_str());
}

void goToMiddle(Program& program)
{
    QTest::mouseClick(&program.window(), Qt::LeftButton, {}, QPoint(500, 250));
    for (int i = 0; i < 400; ++i)
        QTest::keyClick(&program.window(), Qt::Key_PageDown);
    runMainLoop(500);
}

void typeIntoALongScript()
{
    Program program(bigLibrary());
    QQuickWindow& window = program.window();
    LibraryStore& store = program.services.library;
    goToMiddle(program);

    measure("a key press", program, 60, [&] { QTest::keyClick(&window, Qt::Key_A); });
    measure("Return", program, 20, [&] { QTest::keyClick(&window, Qt::Key_Return); });
    measure("Backspace", program, 20, [&] { QTest::keyClick(&window, Qt::Key_Backspace); });
    measure("undo", program, 3, [&] { QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier); });
    QGuiApplication::clipboard()->setText(prose(megabyte));
    measure("1 MB pasted", program, 2,
        [&] { QTest::keyClick(&window, Qt::Key_V, Qt::ControlModifier); });
    int next = 1;
    measure("a script of 1 MB selected for the first time", program, 3,
        [&] { store.setActiveScriptID(store.scripts()[next++].id); });
    next = 1;
    measure("a script of 1 MB selected again", program, 2,
        [&] { store.setActiveScriptID(store.scripts()[next++].id); });
}

/// Qt lays out a paragraph whole at each key press, so that the one that is edited is what counts.
void typeIntoALongParagraph(const char* what, qsizetype length)
{
    const QString paragraph = prose(length).simplified() + u'\n';
    Program program({ LibraryServices::script(u"Long"_s, paragraph.repeated(megabyte / length)) });
    goToMiddle(program);
    measure(what, program, 10, [&] { QTest::keyClick(&program.window(), Qt::Key_A); });
}

void scrollThroughManyScripts()
{
    QList<Script> scripts;
    for (int i = 0; i < 10'000; ++i)
        scripts.append(i % 3 == 0
                ? LibraryServices::deck(u"Deck %1"_s.arg(i), u"Keynote"_s, { { 1, {}, u"Hi"_s } })
                : LibraryServices::script(u"Script %1"_s.arg(i), u"Hello all"_s));
    Program program(scripts);
    const auto wheel = [&] {
        QWheelEvent event(QPointF(100, 200), program.window().mapToGlobal(QPointF(100, 200)), {},
            QPoint(0, -240), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        static quint64 now = 0;
        event.setTimestamp(now += 100);
        QCoreApplication::sendEvent(&program.window(), &event);
    };

    measure("a turn of the wheel over 10,000 scripts", program, 60, wheel);
    measure("the next of 10,000 scripts selected", program, 30,
        [&] { QTest::keyClick(&program.window(), Qt::Key_Down); });
    measure("a script added to 10,000", program, 5,
        [&] { QTest::keyClick(&program.window(), Qt::Key_N, Qt::ControlModifier); });
    measure("a key press in one of 10,000 titles", program, 20,
        [&] { QTest::keyClick(&program.window(), Qt::Key_A); });
}

/// Two minutes of talk each. The limit is 50 ms from the key to the list.
void searchManyScripts()
{
    QList<Script> scripts;
    for (int i = 0; i < 10'000; ++i)
        scripts.append(LibraryServices::script(u"Script %1"_s.arg(i), prose(1'500)));
    Program program(scripts);
    QQuickWindow& window = program.window();
    const auto alternate = [&window](Qt::Key key) {
        return [&window, key, isTyping = false]() mutable {
            isTyping = !isTyping;
            QTest::keyClick(&window, isTyping ? key : Qt::Key_Backspace);
        };
    };

    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    measure("the first letter of a search in 10,000 texts", program, 20, alternate(Qt::Key_T));
    QTest::keyClick(&window, Qt::Key_T);
    measure("a second letter, which no text has", program, 20, alternate(Qt::Key_Z));
    for (const char letter : std::string_view("hank you al"))
        QTest::keyClick(&window, letter);
    measure("another letter of what every text has", program, 20, alternate(Qt::Key_L));
}

} // namespace
} // namespace Orvello

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    static_cast<void>(std::setvbuf(stdout, nullptr, _IOLBF, 0));
    const QApplication application(argc, argv);
    std::printf("%-46s %s %s %s\n", "Milliseconds: median (worst)", "until it is seen",
        "of processor", "longest stall");
    Orvello::typeIntoALongScript();
    Orvello::typeIntoALongParagraph("a key press in a paragraph of 10 kB", 10'000);
    Orvello::typeIntoALongParagraph("a key press in a paragraph of 100 kB", 100'000);
    Orvello::scrollThroughManyScripts();
    Orvello::searchManyScripts();
    return 0;
}
