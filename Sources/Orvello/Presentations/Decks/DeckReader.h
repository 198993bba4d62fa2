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

    [[nodiscard]] Result<QList<SlideNote>, ImportError> read();

private:
    QStringList slidePaths(const QStringList& slideRelIds);
    SlideNote readSlide(qint64 number, const QString& path);
    std::optional<QString> notesPath(const QString& slideFileName);
    QList<Rel> relationships(const QString& path);
    QString placeholderText(const QString& path, const std::set<std::string_view>& types);

    ZipArchive& m_archive;
    qsizetype m_textLeft = Limits::totalText;
};

} // namespace Orvello::PptxImporter
