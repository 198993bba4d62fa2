#include "Orvello/Presentations/Decks/OdpNotesParser.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace Orvello::PptxImporter {

namespace {

bool isParagraph(std::string_view name) { return name == "text:p" || name == "text:h"; }

/// White space that the document may fold: OpenDocument 1.3, part 3, 6.1.2.
bool isBlank(QChar character)
{
    return character == u' ' || character == u'\t' || character == u'\n' || character == u'\r';
}

/// How many blanks the element stands for.
qsizetype blankCount(const XmlAttributes& attributes, qsizetype most)
{
    const std::string_view digits = attributes.value("text:c").value_or("1");
    qsizetype count = 1;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), count);
    if (error == std::errc::result_out_of_range)
        return most;
    return error == std::errc() && count > 0 ? std::min(count, most) : 1;
}

/// Adds a placeholder's text to that of those before it.
void addLine(QString& text, const QString& line, bool isFirst)
{
    if (!isFirst)
        text += u'\n';
    text += line;
}

} // namespace

OdpNotesParser::OdpNotesParser(const Limits& limits)
    : m_limits(limits)
    , m_textLeft(limits.totalText)
{
}

QList<SlideNote> OdpNotesParser::takeSlides()
{
    for (SlideNote& slide : m_slides) {
        if (slide.title) {
            slide.title = slide.title->trimmed();
            if (slide.title->isEmpty())
                slide.title.reset();
        }
        slide.notes = slide.notes.trimmed();
    }
    return std::move(m_slides);
}

void OdpNotesParser::startElement(std::string_view name, const XmlAttributes& attributes)
{
    if (m_foreignDepth > 0) {
        ++m_foreignDepth;
    } else if (m_shapeDepth > 0) {
        ++m_shapeDepth;
        startText(name, attributes);
    } else if (name == "office:presentation") {
        m_isPresentation = true;
    } else if (name == "draw:page" && m_isPresentation) {
        startPage();
    } else if (m_insidePage && name == "presentation:notes") {
        m_insideNotes = true;
    } else if (m_insidePage) {
        startShape(attributes);
    }
}

void OdpNotesParser::startPage()
{
    if (m_slides.size() >= m_limits.slides) {
        stop();
        return;
    }
    m_slides.append({ .index = m_slides.size() + 1, .title = std::nullopt, .notes = {} });
    m_insidePage = true;
    m_insideNotes = false;
}

void OdpNotesParser::startShape(const XmlAttributes& attributes)
{
    const auto kind = attributes.value("presentation:class");
    if (!kind || *kind != (m_insideNotes ? "notes" : "title"))
        return;
    m_shapeDepth = 1;
    m_text.truncate(0);
    m_paragraphs = 0;
}

void OdpNotesParser::startText(std::string_view name, const XmlAttributes& attributes)
{
    if (name == "office:annotation" || name == "svg:title" || name == "svg:desc") {
        m_foreignDepth = 1;
    } else if (isParagraph(name)) {
        ++m_paragraphs;
        m_endsWithBlank = true;
    } else if (m_paragraphs == 0) {
        return;
    } else if (name == "text:line-break") {
        append(u"\n");
        m_endsWithBlank = true;
    } else if (name == "text:tab") {
        append(u"\t");
        m_endsWithBlank = false;
    } else if (name == "text:s") {
        append(QString(blankCount(attributes, m_limits.partText + 1), u' '));
        m_endsWithBlank = false;
    }
}

void OdpNotesParser::characters(std::string_view text)
{
    if (m_shapeDepth == 0 || m_foreignDepth > 0 || m_paragraphs == 0)
        return;
    QString folded;
    for (const QChar character :
        QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))) {
        const bool isFolded = isBlank(character);
        if (!isFolded)
            folded += character;
        else if (!m_endsWithBlank)
            folded += u' ';
        m_endsWithBlank = isFolded;
    }
    append(folded);
}

void OdpNotesParser::append(QStringView text)
{
    if (m_text.size() + text.size() <= std::min(m_limits.partText, m_textLeft)) {
        m_text += text;
        return;
    }
    const qint64 slide = m_slides.size();
    if (m_cutSlides.isEmpty() || m_cutSlides.last() != slide)
        m_cutSlides.append(slide);
}

void OdpNotesParser::endElement(std::string_view name)
{
    if (m_foreignDepth > 0) {
        if (--m_foreignDepth > 0)
            return;
    }
    if (m_shapeDepth > 0) {
        if (isParagraph(name) && m_paragraphs > 0) {
            --m_paragraphs;
            append(u"\n");
        }
        if (--m_shapeDepth == 0)
            collect();
    } else if (name == "presentation:notes") {
        m_insideNotes = false;
    } else if (name == "draw:page") {
        m_insidePage = false;
    }
}

void OdpNotesParser::collect()
{
    const QString text = m_text.trimmed();
    m_textLeft -= text.size() + 1;
    SlideNote& slide = m_slides.last();
    if (m_insideNotes)
        addLine(slide.notes, text, slide.notes.isEmpty());
    else if (slide.title)
        addLine(*slide.title, text, false);
    else
        slide.title = text;
}

} // namespace Orvello::PptxImporter
