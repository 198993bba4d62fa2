#include "Orvello/Presentations/Decks/PlaceholderTextParser.h"

#include <utility>

namespace Orvello::PptxImporter {

using namespace Qt::StringLiterals;

PlaceholderTextParser::PlaceholderTextParser(
    std::set<std::string_view> acceptedTypes, qsizetype maximumLength)
    : m_acceptedTypes(std::move(acceptedTypes))
    , m_maximumLength(maximumLength)
{
}

void PlaceholderTextParser::startElement(std::string_view name, const XmlAttributes& attributes)
{
    if (name.ends_with(":sp")) {
        m_insideShape = true;
        m_shapeAccepted = false;
        m_shapeText.truncate(0);
    } else if (m_insideShape && name.ends_with(":ph")) {
        const auto type = attributes.value("type");
        if (type && m_acceptedTypes.contains(*type))
            m_shapeAccepted = true;
    } else if (m_insideShape && name.ends_with(":t")) {
        m_insideTextRun = true;
    } else if (m_insideShape && name.ends_with(":br")) {
        append(u"\n"_s);
    }
}

void PlaceholderTextParser::characters(std::string_view text)
{
    if (m_insideTextRun)
        append(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

void PlaceholderTextParser::endElement(std::string_view name)
{
    if (name.ends_with(":t")) {
        m_insideTextRun = false;
    } else if (name.ends_with(":sp")) {
        if (m_shapeAccepted)
            collect();
        m_insideShape = false;
    } else if (m_insideShape && name.ends_with(":p")) {
        append(u"\n"_s);
    }
}

void PlaceholderTextParser::append(const QString& text)
{
    if (m_collectedLength + m_shapeText.size() + text.size() > m_maximumLength)
        cut();
    else
        m_shapeText += text;
}

void PlaceholderTextParser::collect()
{
    // A shape within a shape is collected again at the end of the outer one, so the text of a shape
    // that has been read counts each time. The newline between two shapes counts too.
    const QString text = m_shapeText.trimmed();
    m_collectedLength += text.size() + 1;
    if (m_collectedLength > m_maximumLength)
        cut();
    else
        collected.append(text);
}

void PlaceholderTextParser::cut()
{
    isCut = true;
    stop();
}

} // namespace Orvello::PptxImporter
