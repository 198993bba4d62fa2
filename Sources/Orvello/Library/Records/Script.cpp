#include "Orvello/Library/Records/Script.h"

#include <QStringList>

namespace Orvello {

using namespace Qt::StringLiterals;

Script Script::create(const QString& title, const QString& body, Date now)
{
    return { .id = QUuid::createUuid(),
        .title = title,
        .body = body,
        .createdAt = now,
        .updatedAt = now,
        .slides = {},
        .deckSource = {} };
}

QString joinedBody(const QList<SlideNote>& slides)
{
    QStringList blocks;
    blocks.reserve(slides.size());
    for (const SlideNote& slide : slides) {
        QString block = u"— Slide "_s + QString::number(slide.index);
        if (slide.title && !slide.title->isEmpty())
            block += u" · "_s + *slide.title;
        block += u" —\n"_s + (slide.notes.isEmpty() ? u"(no notes)"_s : slide.notes);
        blocks += block;
    }
    return blocks.join(u"\n\n"_s);
}

} // namespace Orvello
