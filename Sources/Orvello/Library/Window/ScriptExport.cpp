#include "Orvello/Library/Window/ScriptExport.h"

#include "Orvello/Library/Window/ScriptListModel.h"
#include "Orvello/Prompting/Text/PromptPiece.h"

#include <QStringList>

#include <algorithm>

namespace Orvello::ScriptExport {

using namespace Qt::StringLiterals;

namespace {

/// What file systems leave of the 255 bytes of a name when a character takes four.
constexpr qsizetype longestFileName = 60;

QStringList linesOf(QString text)
{
    text.replace(u"\r\n"_s, u"\n"_s);
    std::replace_if(text.begin(), text.end(), isParagraphEnd, u'\n');
    return text.split(u'\n');
}

/// Markdown joins lines that follow each other, unless the first one ends in two blanks.
QString inMarkdown(const QString& text)
{
    QStringList lines = linesOf(text);
    for (qsizetype i = 0; i + 1 < lines.size(); ++i) {
        if (!lines[i].trimmed().isEmpty() && !lines[i + 1].trimmed().isEmpty())
            lines[i] += u"  "_s;
    }
    return lines.join(u'\n');
}

QString heading(const QString& marks, const QString& text) { return marks + text.simplified(); }

QString headingOf(const SlideNote& slide)
{
    const QString number = u"Slide "_s + QString::number(slide.index);
    const QString title = slide.title.value_or(QString());
    return heading(u"## "_s, title.isEmpty() ? number : number + u" · "_s + title);
}

QString markdownOf(const Script& script)
{
    QStringList blocks { heading(u"# "_s, ScriptListModel::shownTitle(script.title)) };
    if (script.slides) {
        for (const SlideNote& slide : *script.slides)
            blocks << headingOf(slide)
                   << (slide.notes.isEmpty() ? u"(no notes)"_s : inMarkdown(slide.notes));
    } else {
        blocks << inMarkdown(script.body);
    }
    return blocks.join(u"\n\n"_s);
}

QString bodyOf(const Script& script) { return linesOf(script.body).join(u'\n'); }

QString asFile(QString content)
{
    if (!content.isEmpty() && !content.endsWith(u'\n'))
        content += u'\n';
    return content;
}

} // namespace

QString contentOf(const Script& script, Format format)
{
    return asFile(format == Format::Markdown ? markdownOf(script) : bodyOf(script));
}

QString contentOf(const QList<Script>& scripts, Format format)
{
    QStringList parts;
    for (const Script& script : scripts)
        parts.append(format == Format::Markdown
                ? markdownOf(script)
                : ScriptListModel::shownTitle(script.title).simplified() + u"\n\n"_s
                    + bodyOf(script));
    return asFile(parts.join(u"\n\n\n"_s));
}

QString fileNameOf(const QString& title)
{
    QString name = ScriptListModel::shownTitle(title).simplified();
    const auto isUnfit = [](QChar character) {
        return character.category() == QChar::Other_Control || u"/\\:*?\"<>|"_s.contains(character);
    };
    std::replace_if(name.begin(), name.end(), isUnfit, u'-');
    while (name.startsWith(u'.')) // It would be hidden.
        name.remove(0, 1);
    name.truncate(longestFileName);
    if (!name.isEmpty() && name.back().isHighSurrogate())
        name.chop(1);
    name = name.trimmed();
    return name.isEmpty() ? ScriptListModel::shownTitle({}) : name;
}

} // namespace Orvello::ScriptExport
