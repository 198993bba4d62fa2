#pragma once

#include "Orvello/Library/Records/Script.h"
#include "Orvello/Presentations/Decks/XmlParser.h"

#include <QList>
#include <QString>

#include <optional>

namespace Orvello::PptxImporter {

/// Collects the slides of an OpenDocument presentation's content: of each page the text of its
/// title and of its notes' placeholders, as the importer of the other format gives them. Elements
/// have the names that every program writes.
///
/// A text ends where it would grow past `maximumPartText` UTF-16 code units, and all of them
/// together past `maximumText`; pages after the `maximumSlides`th are left out.
class OdpNotesParser final : public XmlParser {
public:
    struct Limits {
        qsizetype slides;
        qsizetype partText;
        qsizetype totalText;
    };

    explicit OdpNotesParser(const Limits& limits);

    /// What has been read; a page that the document breaks off in is the last one. Once.
    QList<SlideNote> takeSlides();
    bool isPresentation() const { return m_isPresentation; }
    /// The slides of which not all text was taken.
    const QList<qint64>& cutSlides() const { return m_cutSlides; }

private:
    void startElement(std::string_view name, const XmlAttributes& attributes) override;
    void endElement(std::string_view name) override;
    void characters(std::string_view text) override;

    void startPage();
    void startShape(const XmlAttributes& attributes);
    void startText(std::string_view name, const XmlAttributes& attributes);
    void append(QStringView text);
    void collect();

    const Limits m_limits;
    QList<SlideNote> m_slides;
    QList<qint64> m_cutSlides;
    bool m_isPresentation = false;
    bool m_insidePage = false;
    bool m_insideNotes = false;
    int m_shapeDepth = 0; ///< Of the elements inside the placeholder that is being read; 0 outside.
    int m_foreignDepth
        = 0; ///< The same inside what is no text of the placeholder, such as a comment.
    int m_paragraphs = 0; ///< How many the parser is in.
    bool m_endsWithBlank = false; ///< White space that follows counts for nothing.
    QString m_text; ///< Of the placeholder that is being read.
    qsizetype m_textLeft;
};

} // namespace Orvello::PptxImporter
