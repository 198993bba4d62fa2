#include "Orvello/Library/Records/WelcomeScript.h"

#include "Orvello/Platform/Early/Facts.h"

#include <QCoreApplication>
#include <QStringList>

namespace Orvello::WelcomeScript {

using namespace Qt::StringLiterals;

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("Orvello::WelcomeScript", text);
}

} // namespace

QString title()
{
    return translated(QT_TRANSLATE_NOOP("Orvello::WelcomeScript", "Welcome to Orvello"));
}

QString body(const Facts& facts)
{
    QStringList paragraphs {
        translated(QT_TRANSLATE_NOOP(
            "Orvello::WelcomeScript", "Welcome to Orvello. This is your private teleprompter.")),
        translated(QT_TRANSLATE_NOOP("Orvello::WelcomeScript",
            "Drag this panel anywhere — put it right under your camera for natural eye contact. "
            "Resize it from any edge.")),
        //: %1: the keys to hold, as in "Option-Command-P" or "Alt+Super+P". Up and Down are the
        //: arrow keys.
        translated(QT_TRANSLATE_NOOP("Orvello::WelcomeScript",
                       "Press %1P to start or pause scrolling. Use %1Up or Down to change the "
                       "speed on the "
                       "fly. Hover the mouse over this panel any time to pause instantly; move "
                       "away and it "
                       "resumes."))
            .arg(facts.keyPrefix),
        facts.hasMenuBar
            ? translated(QT_TRANSLATE_NOOP("Orvello::WelcomeScript",
                "Turn on voice-follow in the menu bar and the script scrolls while you speak, then "
                "waits when you pause."))
            : translated(QT_TRANSLATE_NOOP("Orvello::WelcomeScript",
                "Turn on voice-follow in the menu and the script scrolls while you speak, then "
                "waits when you pause. The menu opens from the tray, or with a right click on this "
                "panel.")),
    };
    if (facts.canHideWindows)
        paragraphs += {
            facts.capturesMayShowHidden
                ? translated(QT_TRANSLATE_NOOP("Orvello::WelcomeScript",
                    "With Stealth Mode on, this window stays out of screen sharing, recordings, "
                    "and screenshots as far as this system allows. Newer recorders may show it all "
                    "the same: share only the window of your slides, and your audience never sees "
                    "your notes."))
                : translated(QT_TRANSLATE_NOOP("Orvello::WelcomeScript",
                    "With Stealth Mode on, this window is invisible to screen sharing, recordings, "
                    "and screenshots. Your audience only sees your slides — never your notes.")),
            translated(QT_TRANSLATE_NOOP("Orvello::WelcomeScript",
                "Sharing your screen? Leave Stealth Mode alone while you share — toggling it "
                "mid-share can make your meeting app show a gray box where the prompter sits. "
                "Close and open Orvello again to clear it.")),
        };
    else
        paragraphs += translated(QT_TRANSLATE_NOOP("Orvello::WelcomeScript",
            "Sharing your screen? This desktop cannot hide a window, so whoever sees your whole "
            "screen sees this panel too. Share only the window of your slides, and keep this panel "
            "beside it: your audience then sees your slides, not your notes."));
    return paragraphs.join(u"\n\n"_s);
}

} // namespace Orvello::WelcomeScript
