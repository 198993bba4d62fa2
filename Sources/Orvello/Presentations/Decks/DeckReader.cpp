#include "Orvello/Presentations/Decks/DeckReader.h"

#include "Orvello/Presentations/Decks/PackagePath.h"
#include "Orvello/Presentations/Decks/PlaceholderTextParser.h"
#include "Orvello/Presentations/Decks/RelsParser.h"
#include "Orvello/Presentations/Decks/SlideOrderParser.h"
#include "Orvello/Presentations/Decks/ZipArchive.h"

#include <QHash>

#include <algorithm>
#include <optional>
#include <utility>

namespace Orvello::PptxImporter {

using namespace Qt::StringLiterals;

namespace {

std::string_view view(QByteArrayView bytes)
{
    return { bytes.data(), static_cast<std::size_t>(bytes.size()) };
}

} // namespace

DeckReader::DeckReader(ZipArchive& archive)
    : m_archive(archive)
{
}

Result<Deck, ImportError> DeckReader::read()
{
    const std::optional<QByteArrayView> presentation = m_archive.data(u"ppt/presentation.xml"_s);
    if (!presentation)
        return Failure { ImportError::NotAPresentation };
    SlideOrderParser order;
    order.parse(view(*presentation));
    const QStringList paths = slidePaths(order.slideRelIds);
    if (paths.isEmpty())
        return Failure { ImportError::NotAPresentation };

    static const std::set<std::string_view> titleTypes { "title", "ctrTitle" };
    Deck deck;
    deck.slides.reserve(paths.size());
    for (const QString& path : paths) {
        bool isCut = false;
        deck.slides.append({ deck.slides.size() + 1, std::nullopt, notesOf(path, isCut) });
        if (isCut)
            deck.unread.append(deck.slides.size());
    }
    // After all notes, so that what a slide holds besides its title takes nothing away from them.
    for (qsizetype index = 0; index < paths.size(); ++index) {
        bool isCut = false;
        QString title = placeholderText(paths[index], titleTypes, isCut);
        if (!title.isEmpty())
            deck.slides[index].title = std::move(title);
    }
    return deck;
}

QStringList DeckReader::slidePaths(const QStringList& slideRelIds)
{
    QHash<QString, QString> pathById;
    for (const Rel& rel : relationships(u"ppt/_rels/presentation.xml.rels"_s)) {
        if (!pathById.contains(rel.id))
            pathById.insert(rel.id, resolve(rel.target, u"ppt"));
    }

    QStringList paths;
    for (const QString& id : slideRelIds) {
        const auto path = pathById.constFind(id);
        if (path != pathById.constEnd() && paths.size() < Limits::slides)
            paths.append(*path);
    }
    return paths;
}

QString DeckReader::notesOf(const QString& path, bool& isCut)
{
    static const std::set<std::string_view> notesTypes { "body" };
    const std::optional<QString> notes = notesPath(fileName(path));
    isCut = m_archive.hasHitLimit();
    return notes ? placeholderText(*notes, notesTypes, isCut) : QString();
}

std::optional<QString> DeckReader::notesPath(const QString& slideFileName)
{
    const QList<Rel> rels = relationships(u"ppt/slides/_rels/"_s + slideFileName + u".rels"_s);
    const auto notes = std::find_if(rels.begin(), rels.end(),
        [](const Rel& rel) { return rel.type.endsWith(u"notesSlide"_s); });
    if (notes == rels.end())
        return std::nullopt;
    return resolve(notes->target, u"ppt/slides");
}

/// None when the part is missing.
QList<Rel> DeckReader::relationships(const QString& path)
{
    RelsParser parser;
    if (const auto part = m_archive.data(path))
        parser.parse(view(*part));
    return std::move(parser.rels);
}

/// Empty when the part is missing.
QString DeckReader::placeholderText(
    const QString& path, const std::set<std::string_view>& types, bool& isCut)
{
    const auto part = m_archive.data(path);
    isCut = isCut || m_archive.hasHitLimit();
    if (!part)
        return {};
    PlaceholderTextParser parser(types, std::min(Limits::partText, m_textLeft));
    parser.parse(view(*part));
    isCut = isCut || parser.isCut;
    QString text = parser.collected.join(u'\n').trimmed();
    m_textLeft -= text.size();
    return text;
}

} // namespace Orvello::PptxImporter
