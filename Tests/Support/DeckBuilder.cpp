#include "Tests/Support/DeckBuilder.h"

namespace Orvello::Testing {

namespace {

const QByteArray declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
const QByteArray namespaces
    = " xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\""
      " xmlns:p=\"http://schemas.openxmlformats.org/presentationml/2006/main\""
      " xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\"";

QByteArray page(const QByteArray& root, const QByteArray& shapes)
{
    return declaration + "<p:" + root + namespaces + "><p:cSld><p:spTree>" + shapes
        + "</p:spTree></p:cSld></p:" + root + ">";
}

} // namespace

namespace Pptx {

QByteArray presentation(const QByteArrayList& slideRelIds)
{
    QByteArray ids;
    for (const QByteArray& id : slideRelIds)
        ids += "<p:sldId id=\"256\" r:id=\"" + id + "\"/>";
    return declaration + "<p:presentation" + namespaces + "><p:sldIdLst>" + ids
        + "</p:sldIdLst></p:presentation>";
}

QByteArray relationship(const QByteArray& id, const QByteArray& type, const QByteArray& target)
{
    return "<Relationship Id=\"" + id
        + "\" Type=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships/" + type
        + "\" Target=\"" + target + "\"/>";
}

QByteArray relationships(const QByteArray& content)
{
    return declaration
        + "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/"
          "relationships\">"
        + content + "</Relationships>";
}

QByteArray slide(const QByteArray& shapes) { return page("sld", shapes); }

QByteArray notes(const QByteArray& shapes) { return page("notes", shapes); }

QByteArray shape(const QByteArray& placeholderType, const QByteArray& paragraphs)
{
    const QByteArray placeholder = placeholderType.isEmpty()
        ? QByteArray()
        : "<p:nvSpPr><p:nvPr><p:ph type=\"" + placeholderType + "\"/></p:nvPr></p:nvSpPr>";
    return "<p:sp>" + placeholder + "<p:txBody>" + paragraphs + "</p:txBody></p:sp>";
}

QByteArray paragraph(const QByteArray& text)
{
    return "<a:p><a:r><a:t>" + text + "</a:t></a:r></a:p>";
}

} // namespace Pptx

DeckBuilder& DeckBuilder::slide(const QByteArray& title, const QByteArray& notes)
{
    const QByteArray number = QByteArray::number(addSlide(title));
    part("ppt/slides/_rels/slide" + number + ".xml.rels",
        Pptx::relationships(
            Pptx::relationship("rId1", "slideLayout", "../slideLayouts/slideLayout1.xml")
            + Pptx::relationship(
                "rId2", "notesSlide", "../notesSlides/notesSlide" + number + ".xml")));
    return part("ppt/notesSlides/notesSlide" + number + ".xml",
        Pptx::notes(Pptx::shape("sldImg", {}) + Pptx::shape("body", Pptx::paragraph(notes))));
}

DeckBuilder& DeckBuilder::slideWithoutNotes(const QByteArray& title)
{
    addSlide(title);
    return *this;
}

int DeckBuilder::addSlide(const QByteArray& title)
{
    const QByteArray number = QByteArray::number(m_slideRelIds.size() + 1);
    m_slideRelIds.append("rId" + number);
    m_slideRels += Pptx::relationship("rId" + number, "slide", "slides/slide" + number + ".xml");
    part("ppt/slides/slide" + number + ".xml",
        Pptx::slide(Pptx::shape("title", Pptx::paragraph(title))));
    return static_cast<int>(m_slideRelIds.size());
}

DeckBuilder& DeckBuilder::part(const QByteArray& path, const QByteArray& content)
{
    m_parts.insert(path, content);
    return *this;
}

DeckBuilder& DeckBuilder::without(const QByteArray& path)
{
    m_missing.insert(path);
    return *this;
}

ZipBuilder DeckBuilder::package() const
{
    QMap<QByteArray, QByteArray> parts {
        { "ppt/presentation.xml", Pptx::presentation(m_slideRelIds) },
        { "ppt/_rels/presentation.xml.rels", Pptx::relationships(m_slideRels) },
    };
    parts.insert(m_parts);
    ZipBuilder package;
    for (auto part = parts.constBegin(); part != parts.constEnd(); ++part) {
        if (!m_missing.contains(part.key()))
            package.add(part.key(), part.value());
    }
    return package;
}

} // namespace Orvello::Testing
