#include "Orvello/Shell/Launch/CommandLineTable.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>
#include <vector>

namespace Orvello::CommandLineTable {

using namespace Qt::StringLiterals;

namespace {

using enum Section;

constexpr std::array table {
    Entry { Files, "FILE", "", "a deck (.pptx or .odp): its notes become the active script" },

    Entry { Options, "--autostart", "", "start scrolling after the countdown" },
    Entry { Options, "--check-updates", "", "look for a newer version" },
    Entry { Options, "--no-stealth", "", "never hide the prompter from screen sharing" },
    Entry { Options, "--onboarding", "", "show the welcome tour" },
    Entry { Options, "--scripts", "", "open the scripts window" },
    Entry { Options, "--settings", "", "open the settings window" },
    Entry { Options, "--toggle", "", "start or pause scrolling" },
    Entry { Options, "--voice", "", "follow the voice: the text moves while you speak" },
    Entry { Options, "--help", "", "show this text and exit" },
    Entry { Options, "--version", "", "show the version and exit" },
    Entry { Options, "-Key", "value", "use this text for a preference, for this run only" },
    Entry { Options, "--", "", "take what follows for files" },

    Entry {
        Environment, "ORVELLO_IMPORT_PPTX", "", "import the .pptx file at this path at launch" },
    Entry {
        Environment, "ORVELLO_ONBOARDING_PAGE", "", "open the welcome tour on this page, 0 to 2" },
    Entry { Environment, "ORVELLO_RENDERER", "", "draw with \"software\" or with \"opengl\"" },
    Entry { Environment, "ORVELLO_STEALTH", "",
        "hide by \"flag\" or by \"shape\" alone, for experiments" },

    Entry { Signals, "SIGUSR1", "", "turn Stealth Mode on or off" },
    Entry { Signals, "SIGUSR2", "", "show or hide the prompter" },
    Entry { Signals, "SIGTERM, SIGINT, SIGHUP", "", "quit" },

    Entry { ExitStatus, "0", "", "the session has ended, or the Orvello that runs did it all" },
    Entry { ExitStatus, "1", "", "no display, or the Orvello that runs does not answer" },
    Entry { ExitStatus, "2", "", "an unknown option, or a file that is no deck; nothing was done" },
    Entry { ExitStatus, "3", "", "the Orvello that runs could not do all of it; it says what" },
};

QString text(std::string_view view)
{
    return QString::fromUtf8(view.data(), static_cast<qsizetype>(view.size()));
}

QString synopsis(const Entry& entry)
{
    return text(entry.name) + (entry.argument.empty() ? QString() : u' ' + text(entry.argument));
}

QString sectionText(Section section)
{
    qsizetype width = 0;
    for (const Entry& entry : table)
        if (entry.section == section)
            width = std::max(width, synopsis(entry).size());
    QString lines = u'\n' + text(heading(section)) + u":\n"_s;
    for (const Entry& entry : table)
        if (entry.section == section)
            lines += u"  "_s + synopsis(entry).leftJustified(width) + u"  "_s + text(entry.help)
                + u'\n';
    return lines;
}

/// How many letters must be inserted, removed or replaced to turn one text into the other.
qsizetype distance(QStringView from, QStringView to)
{
    std::vector<qsizetype> row(static_cast<std::size_t>(to.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < from.size(); ++i) {
        qsizetype diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 1; j < row.size(); ++j) {
            const bool isSame = from[i] == to[static_cast<qsizetype>(j) - 1];
            const qsizetype above = row[j];
            row[j] = std::min({ above + 1, row[j - 1] + 1, diagonal + (isSame ? 0 : 1) });
            diagonal = above;
        }
    }
    return row.back();
}

QStringView withoutDashes(QStringView option)
{
    while (option.startsWith(u'-'))
        option = option.sliced(1);
    return option;
}

} // namespace

std::span<const Entry> entries() { return table; }

std::string_view heading(Section section)
{
    switch (section) {
    case Files:
        return "Files";
    case Options:
        return "Options";
    case Environment:
        return "Environment";
    case Signals:
        return "Signals";
    case ExitStatus:
        break;
    }
    return "Exit status";
}

std::string_view usage() { return "orvello [option ...] [-Key value ...] [FILE ...]"; }

std::string_view summary()
{
    return "A private teleprompter: your script in a small panel under the camera. When it\n"
           "runs already, it does what a second start asks for, or opens its menu.\n";
}

QString helpText()
{
    QString help = u"Usage: "_s + text(usage()) + u"\n\n"_s + text(summary());
    for (const Section section : { Files, Options, Environment, Signals, ExitStatus })
        help += sectionText(section);
    return help;
}

QString nearestOption(const QString& mistyped)
{
    constexpr qsizetype lettersForOneMistake = 3;
    const QString typed = withoutDashes(mistyped).toString().section(u'=', 0, 0).toLower();
    QString nearest;
    qsizetype mistakes = typed.size() / lettersForOneMistake + 1;
    for (const Entry& entry : table) {
        const QString option = text(entry.name);
        const QStringView name = withoutDashes(option);
        if (entry.section != Options || !entry.argument.empty() || name.isEmpty())
            continue;
        const bool isBeginning = typed.size() > 1 && name.startsWith(typed);
        const qsizetype found = isBeginning ? 0 : distance(typed, name);
        if (found < mistakes) {
            mistakes = found;
            nearest = option;
        }
    }
    return nearest;
}

} // namespace Orvello::CommandLineTable
