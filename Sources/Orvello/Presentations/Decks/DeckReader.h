#pragma once

#include "Orvello/Foundation/Result.h"
#include "Orvello/Library/Records/Script.h"
#include "Orvello/Presentations/Decks/PptxImporter.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <set>
#include <string_view>

namespace Orvello::PptxImporter {

class ZipArchive;
struct Rel;

/// Finds the slides of an opened package and their notes through its relationships.
class DeckReader {
public:
    /// `archive` must outlive the reader.
    explicit DeckReader(ZipArchive& archive);

    [[nodiscard]] Result<Deck, ImportError> read();

private:
    QStringList slidePaths(const QStringList& slideRelIds);
    QString notesOf(const QString& path, bool& isCut);
    std::optional<QString> notesPath(const QString& slideFileName);
    QList<Rel> relationships(const QString& path);
    QString placeholderText(
        const QString& path, const std::set<std::string_view>& types, bool& isCut);

    ZipArchive& m_archive;
    qsizetype m_textLeft = Limits::totalText;
};

} // namespace Orvello::PptxImporter
