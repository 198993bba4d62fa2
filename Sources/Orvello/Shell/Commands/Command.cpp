#include "Orvello/Shell/Commands/Command.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace Orvello::Commands {

namespace {

using namespace Qt::StringLiterals;

constexpr std::uint32_t optionCommand = HotKey::optionKey | HotKey::commandKey;

QString translated(const char* text)
{
    return text ? QCoreApplication::translate("Orvello::Commands", text) : QString();
}

// The keys are registered in this order, which gives the system their numbers.
constexpr std::array table {
    Command {
        .name = "toggle",
        .title = QT_TRANSLATE_NOOP("Orvello::Commands", "Start Scrolling"),
        .titleWhileOn = QT_TRANSLATE_NOOP("Orvello::Commands", "Pause Scrolling"),
        //: What a key does, in a list of keys.
        .description = QT_TRANSLATE_NOOP("Orvello::Commands", "Start / pause scrolling"),
        //: What a key does, in a narrow list of keys: at most about 20 characters.
        .shortDescription = QT_TRANSLATE_NOOP("Orvello::Commands", "Start / pause"),
        .purpose = QT_TRANSLATE_NOOP("Orvello::Commands", "Start or pause scrolling"),
        .key = HotKey { HotKey::keyP, optionCommand },
        .titleHasKey = true,
        .run = &CommandTarget::toggleScroll,
        .isOn = &CommandTarget::isScrolling,
    },
    Command {
        .name = "faster",
        .title = QT_TRANSLATE_NOOP("Orvello::Commands", "Faster"),
        .purpose = QT_TRANSLATE_NOOP("Orvello::Commands", "Scroll faster"),
        .key = HotKey { HotKey::keyUp, optionCommand },
        .run = &CommandTarget::speedUp,
    },
    Command {
        .name = "slower",
        .title = QT_TRANSLATE_NOOP("Orvello::Commands", "Slower"),
        .purpose = QT_TRANSLATE_NOOP("Orvello::Commands", "Scroll more slowly"),
        .key = HotKey { HotKey::keyDown, optionCommand },
        .run = &CommandTarget::slowDown,
    },
    Command {
        .name = "restart",
        //: In a menu: scrolls back to the beginning of the script.
        .title = QT_TRANSLATE_NOOP("Orvello::Commands", "Back to Top"),
        //: What a key does: it scrolls back to the beginning of the script.
        .description = QT_TRANSLATE_NOOP("Orvello::Commands", "Back to top"),
        .purpose = QT_TRANSLATE_NOOP("Orvello::Commands", "Go back to the top of the script"),
        .key = HotKey { HotKey::keyR, optionCommand },
        .run = &CommandTarget::backToTop,
    },
    Command {
        .name = "hide",
        .title = QT_TRANSLATE_NOOP("Orvello::Commands", "Show Prompter"),
        .titleWhileOn = QT_TRANSLATE_NOOP("Orvello::Commands", "Hide Prompter"),
        //: What a key does, in a list of keys.
        .description = QT_TRANSLATE_NOOP("Orvello::Commands", "Show / hide prompter"),
        //: What a key does, in a narrow list of keys: at most about 20 characters.
        .shortDescription = QT_TRANSLATE_NOOP("Orvello::Commands", "Show / hide"),
        .purpose = QT_TRANSLATE_NOOP("Orvello::Commands", "Show or hide the prompter"),
        .key = HotKey { HotKey::keyH, optionCommand },
        .titleHasKey = true,
        .run = &CommandTarget::togglePanel,
        .isOn = &CommandTarget::isPanelVisible,
    },
    Command {
        .name = "camera",
        //: In a menu: moves the prompter to the top of the screen that the pointer is on.
        .title = QT_TRANSLATE_NOOP("Orvello::Commands", "Put Under the Camera"),
        .run = &CommandTarget::putUnderCamera,
    },
    Command {
        .name = "voice",
        //: A mode: the text scrolls while the user speaks.
        .title = QT_TRANSLATE_NOOP("Orvello::Commands", "Voice-Follow Scrolling"),
        .run = &CommandTarget::toggleVoice,
        .isOn = &CommandTarget::isVoiceOn,
    },
    Command {
        .name = "tracking",
        //: A mode: the notes follow the slides of a running slideshow.
        .title = QT_TRANSLATE_NOOP("Orvello::Commands", "Slide Tracking"),
        .run = &CommandTarget::toggleSlideTracking,
        .isOn = &CommandTarget::isSlideTrackingOn,
    },
    Command {
        .name = "stealth",
        //: A mode: the prompter is hidden from screen sharing and recordings.
        .title = QT_TRANSLATE_NOOP("Orvello::Commands", "Stealth Mode"),
        .run = &CommandTarget::toggleStealth,
        .isOn = &CommandTarget::isStealthOn,
    },
    Command {
        .name = "scripts",
        .title = QT_TRANSLATE_NOOP("Orvello::Commands", "Scripts…"),
        .run = &CommandTarget::openLibrary,
    },
    Command {
        .name = "settings",
        .title = QT_TRANSLATE_NOOP("Orvello::Commands", "Settings…"),
        .run = &CommandTarget::openSettings,
    },
    Command {
        .name = "tour",
        .title = QT_TRANSLATE_NOOP("Orvello::Commands", "Welcome Tour…"),
        .run = &CommandTarget::openTour,
    },
    Command {
        .name = "check-updates",
        .title = QT_TRANSLATE_NOOP("Orvello::Commands", "Check for Updates…"),
        .run = &CommandTarget::checkForUpdates,
    },
    Command {
        .name = "support",
        .title = QT_TRANSLATE_NOOP("Orvello::Commands", "Contact Support…"),
        .run = &CommandTarget::contactSupport,
        .isPossible = &CommandTarget::hasSupportAddress,
    },
    Command {
        .name = "logs",
        .title = QT_TRANSLATE_NOOP("Orvello::Commands", "Reveal Log Files"),
        .run = &CommandTarget::revealLogs,
    },
    Command {
        .name = "quit",
        .title = QT_TRANSLATE_NOOP("Orvello::Commands", "Quit Orvello"),
        .menuKey = u'q',
        .run = &CommandTarget::terminate,
    },
};

} // namespace

std::span<const Command> all() { return table; }

const Command& named(std::string_view name)
{
    const auto* const command = std::ranges::find(table, name, &Command::name);
    Q_ASSERT(command != table.end());
    return *command;
}

QString title(const Command& command, const CommandTarget& target, const HotKeys& keys)
{
    const bool isOn = command.titleWhileOn && (target.*command.isOn)();
    const QString title = translated(isOn ? command.titleWhileOn : command.title);
    if (!command.titleHasKey)
        return title;
    //: A line of a menu with two blanks in it. %1: its text; %2: its key, such as "⌥⌘P".
    return QCoreApplication::translate("Orvello::Commands", "%1  (%2)")
        .arg(title, keyLabel(command, keys));
}

QString description(const Command& command)
{
    return translated(command.description ? command.description : command.title);
}

QString shortDescription(const Command& command)
{
    return command.shortDescription ? translated(command.shortDescription) : description(command);
}

HotKeyPurpose purpose(const Command& command)
{
    return { QString::fromUtf8(command.name.data(), static_cast<qsizetype>(command.name.size())),
        translated(command.purpose) };
}

QString keyLabel(const Command& command, const HotKeys& keys)
{
    if (!command.key)
        return {};
    const QVariant assigned = keys.assignedKeys().triggers().value(purpose(command).name);
    return assigned.isValid() ? assigned.toString() : keys.label(*command.key);
}

} // namespace Orvello::Commands
