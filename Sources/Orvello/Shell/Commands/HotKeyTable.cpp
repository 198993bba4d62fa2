#include "Orvello/Shell/Commands/HotKeyTable.h"

#include <QCoreApplication>

namespace Orvello::HotKeyTable {

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(Orvello::HotKeyTable)
};

} // namespace

std::vector<Entry> entries()
{
    return {
        { Command::Toggle, HotKey::keyP, { u"toggle"_s, Words::tr("Start or pause scrolling") } },
        { Command::Faster, HotKey::keyUp, { u"faster"_s, Words::tr("Scroll faster") } },
        { Command::Slower, HotKey::keyDown, { u"slower"_s, Words::tr("Scroll slower") } },
        { Command::Restart, HotKey::keyR,
            { u"restart"_s, Words::tr("Go back to the top of the script") } },
        { Command::Hide, HotKey::keyH, { u"hide"_s, Words::tr("Show or hide the prompter") } },
    };
}

} // namespace Orvello::HotKeyTable
