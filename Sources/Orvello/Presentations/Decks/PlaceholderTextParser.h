#pragma once

#include "Orvello/Presentations/Decks/XmlParser.h"

#include <QString>
#include <QStringList>

#include <set>

namespace Orvello::PptxImporter {

/// Collects the plain text of a slide's or notes page's placeholder shapes of certain types: one
/// string per shape, paragraphs and line breaks as newlines, trimmed. Elements are recognised by
/// the end of their names, so any namespace prefix will do.
///
/// Reading ends where the text would grow past `maximumLength` UTF-16 code units, with the shapes
/// collected before.
class PlaceholderTextParser final : public XmlParser {
public:
    PlaceholderTextParser(std::set<std::string_view> acceptedTypes, qsizetype maximumLength);

    QStringList collected;
    bool isCut = false; ///< Reading ended for the length of the text.

private:
    void startElement(std::string_view name, const XmlAttributes& attributes) override;
    void endElement(std::string_view name) override;
    void characters(std::string_view text) override;

    void append(const QString& text);
    void collect();
    void cut();

    std::set<std::string_view> m_acceptedTypes;
    bool m_insideShape = false;
    bool m_shapeAccepted = false;
    bool m_insideTextRun = false;
    QString m_shapeText; ///< The text so far of the shape being read.

    const qsizetype m_maximumLength;
    qsizetype m_collectedLength = 0;
};

} // namespace Orvello::PptxImporter
