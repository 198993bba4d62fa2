#include "Orvello/Shell/Commands/MainMenu.h"
#include "Orvello/Shell/Commands/Menu.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

/// A text field of the kind that the program's windows have, with the keyboard.
class EditingKeysTest : public ::testing::Test {
protected:
    EditingKeysTest()
    {
        QQmlComponent component(view.engine());
        component.setData("import QtQuick\nTextEdit { focus: true; selectByMouse: true }", {});
        field = qobject_cast<QQuickItem*>(component.create());
        view.setContent({}, &component, field);
        view.show();
        view.requestActivate();
        EXPECT_TRUE(QTest::qWaitFor([this] { return QGuiApplication::focusObject() == field; }));
        type(u"one"_s);
    }

    void type(const QString& text)
    {
        for (const QChar letter : text)
            QTest::keyClick(&view, letter.toLatin1());
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
    {
        QTest::keyClick(&view, key, modifiers);
    }
    QString text() const { return field->property("text").toString(); }
    QString selection() const { return field->property("selectedText").toString(); }

    QQuickView view;
    QQuickItem* field = nullptr;
};

TEST_F(EditingKeysTest, workInATextField)
{
    press(Qt::Key_A);
    EXPECT_EQ(selection(), u"one");

    press(Qt::Key_C);
    press(Qt::Key_V);
    press(Qt::Key_V);
    EXPECT_EQ(text(), u"oneone");

    press(Qt::Key_A);
    press(Qt::Key_X);
    EXPECT_EQ(text(), u"");

    press(Qt::Key_Z);
    EXPECT_EQ(text(), u"oneone");
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(text(), u"");
}

TEST_F(EditingKeysTest, haveCommandsOfTheSameEffectInTheMainMenu)
{
    const std::unique_ptr<Menu> mainMenu = makeMainMenu(&sendToFocusObject);
    const auto choose = [&](const QString& title) {
        for (const auto& item : mainMenu->items()[0]->submenu->items()) {
            if (item->title == title)
                item->action();
        }
    };

    choose(u"Select All"_s);
    EXPECT_EQ(selection(), u"one");
    choose(u"Copy"_s);
    choose(u"Paste"_s);
    choose(u"Paste"_s);
    EXPECT_EQ(text(), u"oneone");
    choose(u"Select All"_s);
    choose(u"Cut"_s);
    EXPECT_EQ(text(), u"");
    choose(u"Undo"_s);
    EXPECT_EQ(text(), u"oneone");
    choose(u"Redo"_s);
    EXPECT_EQ(text(), u"");
}

} // namespace
} // namespace Orvello
