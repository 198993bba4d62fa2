#include "Orvello/Presentations/Slideshow/DeckOutline.h"

#include "Orvello/Library/Records/Script.h"

#include <QHash>

#include <algorithm>

namespace Orvello {

namespace {

constexpr QChar recordSeparator = u'\x1e';
constexpr QChar unitSeparator = u'\x1f';

/// How often each title occurs. Presenters break lines and pad titles in ways of their own.
QHash<QString, qsizetype> counted(const QStringList& titles)
{
    QHash<QString, qsizetype> counts;
    for (const QString& title : titles) {
        if (const QString text = title.simplified(); !text.isEmpty())
            ++counts[text];
    }
    return counts;
}

qsizetype total(const QHash<QString, qsizetype>& counts)
{
    qsizetype sum = 0;
    for (const qsizetype count : counts)
        sum += count;
    return sum;
}

QStringList titlesOf(const QList<SlideNote>& slides)
{
    QStringList titles;
    for (const SlideNote& slide : slides)
        titles.append(slide.title.value_or(QString()));
    return titles;
}

/// A leading dot starts a hidden file's name, not an extension.
QString withoutExtension(const QString& name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? name.first(dot) : name;
}

/// Whether the script has the deck's name: by its title, or by the file it was made from.
bool hasNameOf(const Script& script, const DeckOutline& deck)
{
    if (deck.name.isEmpty())
        return false;
    const auto isName = [&](const QString& name) {
        return name == deck.name || withoutExtension(name) == withoutExtension(deck.name);
    };
    return isName(script.title) || (script.deckSource && isName(*script.deckSource));
}

} // namespace

DeckOutline DeckOutline::parse(const QString& output)
{
    QStringList records = output.trimmed().split(recordSeparator);
    DeckOutline outline { records.takeFirst(), {} };
    outline.titles.reserve(records.size());
    for (const QString& record : records)
        outline.titles.append(record.section(unitSeparator, 0, 0).trimmed());
    return outline;
}

DeckLikeness DeckLikeness::of(const Script& script, const DeckOutline& deck)
{
    if (!script.slides)
        return {};
    const bool hasName = hasNameOf(script, deck);
    const auto ours = counted(titlesOf(*script.slides));
    const auto theirs = counted(deck.titles);
    if (ours.isEmpty() || theirs.isEmpty()) {
        if (hasName)
            return { Kind::Same, 0 };
        const bool mayBe = deck.titles.isEmpty() || deck.titles.size() == script.slides->size();
        return { mayBe ? Kind::Unknown : Kind::Other, 0 };
    }

    qsizetype shared = 0;
    for (auto title = ours.cbegin(); title != ours.cend(); ++title)
        shared += std::min(title.value(), theirs.value(title.key()));
    const double share
        = static_cast<double>(shared) / static_cast<double>(std::max(total(ours), total(theirs)));
    if (hasName && shared > 0)
        return { Kind::Same, share };
    return { share >= 0.5 ? Kind::Alike : Kind::Other, share };
}

} // namespace Orvello
