#include "Orvello/Library/Import/DeckRecord.h"

#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <array>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

constexpr QChar recordSeparator = u'\x1e';
constexpr QChar unitSeparator = u'\x1f';

bool isLineBreak(QChar character)
{
    return (character >= u'\n' && character <= u'\r') || character == u'\x85'
        || character == u'\x2028' || character == u'\x2029';
}

/// Without line breaks at either end; other white space stays.
QStringView withoutOuterLineBreaks(QStringView text)
{
    while (!text.isEmpty() && isLineBreak(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isLineBreak(text.back()))
        text.chop(1);
    return text;
}

SlideNote parsedSlide(QStringView part, qint64 index)
{
    const QList<QStringView> fields = part.split(unitSeparator);
    SlideNote slide;
    slide.index = index;
    if (const QStringView title = fields.value(0).trimmed(); !title.isEmpty())
        slide.title = title.toString();
    slide.notes = fields.value(1).trimmed().toString();
    return slide;
}

/// The extension without its dot, in lower case; empty for a name that only starts with a dot.
QString extensionOf(const QString& path)
{
    const QString name = path.section(u'/', -1);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? name.sliced(dot + 1).toLower() : QString();
}

} // namespace

std::optional<DeckRecord> DeckRecord::parse(const QString& output, const QString& fallbackName)
{
    const QList<QStringView> parts = withoutOuterLineBreaks(output).split(recordSeparator);
    if (parts.size() < 2)
        return std::nullopt;

    DeckRecord record;
    record.name = parts.first().isEmpty() ? fallbackName : parts.first().toString();
    record.slides.reserve(parts.size() - 1);
    for (qsizetype index = 1; index < parts.size(); ++index)
        record.slides.append(parsedSlide(parts[index], index));

    const bool hasNotes = std::any_of(record.slides.cbegin(), record.slides.cend(),
        [](const SlideNote& slide) { return !slide.notes.isEmpty(); });
    return hasNotes ? std::optional(record) : std::nullopt;
}

DeckLocation DeckLocation::parse(const QString& output)
{
    const QList<QStringView> fields = withoutOuterLineBreaks(output).split(unitSeparator);
    DeckLocation location;
    location.name = fields.first().isEmpty() ? u"PowerPoint"_s : fields.first().toString();
    location.isSaved = fields.value(1).toString().toLower() == "true"_L1;
    location.path = fields.value(2).trimmed().toString();
    return location;
}

std::optional<QString> DeckLocation::localDeck() const
{
    static const std::array extensions { u"pptx"_s, u"pptm"_s, u"ppsx"_s, u"ppsm"_s, u"potx"_s };
    const bool isDeck = path.startsWith(u'/')
        && std::find(extensions.begin(), extensions.end(), extensionOf(path)) != extensions.end();
    return isDeck && QFileInfo(path).isReadable() ? std::optional(path) : std::nullopt;
}

} // namespace Orvello
