#pragma once

#include "Orvello/Foundation/Date.h"

#include <QList>
#include <QString>
#include <QUuid>

#include <optional>

namespace Orvello {

/// One slide's speaker note. It has no identity of its own: its place in the deck and its `index`
/// identify it.
struct SlideNote {
    qint64 index = 0; ///< Slide number, 1-based, in deck order.
    std::optional<QString> title; ///< Trimmed; absent instead of empty.
    QString notes; ///< Trimmed; may be empty.

    friend bool operator==(const SlideNote&, const SlideNote&) = default;
};

/// One text that the prompter scrolls: typed by the user, or made from a slide deck, in which case
/// it keeps the deck's notes slide by slide and its body is their joined text.
struct Script {
    QUuid id;
    QString title;
    QString body;
    Date createdAt;
    Date updatedAt;
    /// Present only for a deck script; never changes after the import.
    std::optional<QList<SlideNote>> slides;
    std::optional<QString> deckSource; ///< The deck's file name or the open document's name.

    /// A script with a fresh id, made and last edited at `now`.
    [[nodiscard]] static Script create(const QString& title, const QString& body, Date now);

    friend bool operator==(const Script&, const Script&) = default;
};

/// The text of a whole deck: one block per slide, in the given order and a blank line apart, each
/// with the slide's number and title above its notes.
[[nodiscard]] QString joinedBody(const QList<SlideNote>& slides);

} // namespace Orvello
