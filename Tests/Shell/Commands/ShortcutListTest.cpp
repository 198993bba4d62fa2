#include "Orvello/Shell/Commands/ShortcutList.h"

#include "Tests/Support/FakeHotKeys.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

QStringList lines(const ShortcutList& list)
{
    QStringList lines;
    for (int row = 0; row < list.rowCount(); ++row)
        lines.append(list.data(list.index(row), ShortcutList::LabelRole).toString() + u" = "_s
            + list.data(list.index(row), ShortcutList::KeysRole).toString());
    return lines;
}

TEST(ShortcutListTest, spellsEverythingOutInTheSettings)
{
    Testing::FakeHotKeys keys;

    EXPECT_EQ(lines(ShortcutList(keys, ShortcutList::Width::Full)),
        QStringList({ u"Start / pause scrolling = ⌥⌘P"_s, u"Speed up / down = ⌥⌘↑  /  ⌥⌘↓"_s,
            u"Back to top = ⌥⌘R"_s, u"Show / hide prompter = ⌥⌘H"_s }));
}

TEST(ShortcutListTest, saysTheModifiersOnceInTheTour)
{
    Testing::FakeHotKeys keys;
    EXPECT_EQ(lines(ShortcutList(keys, ShortcutList::Width::Narrow)),
        QStringList({ u"Start / pause = ⌥⌘P"_s, u"Speed = ⌥⌘↑ ↓"_s, u"Back to top = ⌥⌘R"_s,
            u"Show / hide = ⌥⌘H"_s }));

    keys.modifiersLabel = u"Alt+Super+"_s;
    EXPECT_EQ(
        lines(ShortcutList(keys, ShortcutList::Width::Narrow))[1], u"Speed = Alt+Super+↑ ↓"_s);
}

TEST(ShortcutListTest, doesNotCutAKeyInTwo)
{
    Testing::FakeHotKeys keys;
    keys.modifiersLabel = u"Ctrl+F"_s; // As if the keys were F↑ and F↓.

    EXPECT_EQ(lines(ShortcutList(keys, ShortcutList::Width::Narrow))[1], u"Speed = Ctrl+F↑ F↓"_s);
}

TEST(ShortcutListTest, saysWhatTheUserHasAssigned)
{
    Testing::FakeHotKeys keys;
    ShortcutList list(keys, ShortcutList::Width::Full);
    const QSignalSpy rows(&list, &ShortcutList::dataChanged);
    const QSignalSpy toggleKey(&list, &ShortcutList::keysChanged);

    keys.assignedKeys().setTriggers({ { u"toggle"_s, u"Press <Ctrl>space"_s } });

    EXPECT_EQ(rows.count(), 1);
    EXPECT_EQ(toggleKey.count(), 1);
    EXPECT_EQ(list.toggleKey(), u"Press <Ctrl>space"_s);
    EXPECT_EQ(lines(list)[0], u"Start / pause scrolling = Press <Ctrl>space"_s);
    EXPECT_EQ(lines(list)[3], u"Show / hide prompter = ⌥⌘H"_s);
}

} // namespace
} // namespace Orvello
