#include "Orvello/Library/Records/WelcomeScript.h"

namespace Orvello::WelcomeScript {

using namespace Qt::StringLiterals;

QString title() { return u"Welcome to Orvello"_s; }

QString body()
{
    return QStringLiteral(
        u"Welcome to Orvello. This is your private teleprompter.\n\n"
        u"Drag this panel anywhere — put it right under your camera for natural eye contact. "
        u"Resize it from any edge.\n\n"
        u"Press Option-Command-P to start or pause scrolling. Use Option-Command-Up or Down "
        u"to change the speed on the fly. Hover the mouse over this panel any time to pause "
        u"instantly; move away and it resumes.\n\n"
        u"Turn on voice-follow in the menu bar and the script scrolls while you speak, then "
        u"waits when you pause.\n\n"
        u"With Stealth Mode on, this window is invisible to screen sharing, recordings, and "
        u"screenshots. Your audience only sees your slides — never your notes.\n\n"
        u"Sharing your screen? Leave Stealth Mode alone while you share — toggling it "
        u"mid-share can make your meeting app show a gray box where the prompter sits. Close "
        u"and open Orvello again to clear it.");
}

} // namespace Orvello::WelcomeScript
