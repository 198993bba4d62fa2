// Shows the prompter's view over plain objects, for design work: a translucent window with a text
// that scrolls. Arguments are settings, name=value, and states: debug, start, hover.

#include "Orvello/Platform/QtTimeSource.h"
#include "Orvello/Prompting/PromptFont.h"
#include "Orvello/Prompting/PromptLines.h"
#include "Orvello/Prompting/PrompterStatus.h"
#include "Orvello/Prompting/ScrollEngine.h"
#include "Orvello/Settings/SettingsStore.h"
#include "Tests/Support/FakeUserDefaults.h"

#include <QFile>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickView>

namespace {

using namespace Orvello;
using namespace Qt::StringLiterals;

QString sampleText()
{
    return u"Thank you all for coming. I want to talk about what we learned this year, and what we "
           "are going to do with it.\n\nWe started with a simple question: what does a speaker "
           "need? Not more slides. Not a bigger screen. A way to look at the audience and still "
           "know the next sentence.\n\nSo we put the words right under the camera.\n\n"_s.repeated(
               8);
}

QString textFrom(const QVariantMap& options)
{
    QFile file(options.value(u"file"_s, u"-"_s).toString());
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : sampleText();
}

QVariantMap optionsIn(const QStringList& arguments)
{
    QVariantMap options;
    for (const QString& argument : arguments.sliced(1)) {
        const QString name = argument.section(u'=', 0, 0);
        bool isNumber = false;
        const double number = argument.section(u'=', 1).toDouble(&isNumber);
        options.insert(name, isNumber ? QVariant(number) : QVariant(argument.section(u'=', 1)));
    }
    return options;
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    const QVariantMap options = optionsIn(QGuiApplication::arguments());
    Testing::FakeUserDefaults defaults;
    defaults.stored = options;

    QtTimeSource time;
    SettingsStore settings(defaults);
    ScrollEngine engine(settings, time);
    PromptLines lines(time);
    PrompterStatus status(engine);

    QQuickView view;
    view.engine()->addImportPath(u"qrc:/qt/qml"_s);
    view.setFlags(Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    view.setColor(Qt::transparent);
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.setInitialProperties({
        { u"engine"_s, QVariant::fromValue(&engine) },
        { u"settings"_s, QVariant::fromValue(&settings) },
        { u"lines"_s, QVariant::fromValue(&lines) },
        { u"status"_s, QVariant::fromValue(&status) },
        { u"promptText"_s, textFrom(options) },
        { u"fontFamily"_s, PromptFont::family() },
        { u"forceCapturable"_s, options.contains(u"debug"_s) },
    });
    view.setSource(QUrl(u"qrc:/qt/qml/Orvello/PrompterView.qml"_s));
    if (view.status() != QQuickView::Ready)
        return 1;
    view.setGeometry(options.value(u"x"_s, 360).toInt(), options.value(u"y"_s, 6).toInt(),
        options.value(u"w"_s, 720).toInt(), options.value(u"h"_s, 200).toInt());
    view.show();

    if (options.contains(u"offset"_s))
        engine.setOffset(options.value(u"offset"_s).toDouble());
    if (options.contains(u"start"_s))
        engine.start();
    return QGuiApplication::exec();
}
