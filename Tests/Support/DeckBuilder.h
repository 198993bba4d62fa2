#pragma once

#include "Tests/Support/ZipBuilder.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QMap>
#include <QSet>

namespace Orvello::Testing {

/// Makes the packages of small presentations by hand. Slide n has the relationship id "rIdn", the
/// part "ppt/slides/sliden.xml" and the notes page "ppt/notesSlides/notesSliden.xml".
class DeckBuilder {
public:
    /// Adds a slide with these texts in its title and in the body of its notes page.
    DeckBuilder& slide(const QByteArray& title, const QByteArray& notes);
    DeckBuilder& slideWithoutNotes(const QByteArray& title);

    /// Replaces a part, or adds one.
    DeckBuilder& part(const QByteArray& path, const QByteArray& content);
    DeckBuilder& without(const QByteArray& path);

    ZipBuilder package() const;
    QByteArray build() const { return package().build(); }

private:
    int addSlide(const QByteArray& title);

    QMap<QByteArray, QByteArray> m_parts;
    QSet<QByteArray> m_missing;
    QByteArrayList m_slideRelIds;
    QByteArray m_slideRels;
};

/// XML of the kinds of part that the importer reads.
namespace Pptx {

QByteArray presentation(const QByteArrayList& slideRelIds);
/// `type` is the last word of the relationship's type.
QByteArray relationship(const QByteArray& id, const QByteArray& type, const QByteArray& target);
QByteArray relationships(const QByteArray& content);
QByteArray slide(const QByteArray& shapes);
QByteArray notes(const QByteArray& shapes);
/// A shape with a placeholder of this type, which is left out when empty.
QByteArray shape(const QByteArray& placeholderType, const QByteArray& paragraphs);
QByteArray paragraph(const QByteArray& text);

} // namespace Pptx

} // namespace Orvello::Testing
