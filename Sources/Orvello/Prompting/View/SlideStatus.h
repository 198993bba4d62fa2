#pragma once

#include <QColor>
#include <QObject>
#include <QString>
#include <QStringList>

namespace Orvello {

class DeckController;

/// What the prompter's slide chip says about the deck, and its two buttons.
class SlideStatus final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isShown READ isShown NOTIFY changed FINAL)
    Q_PROPERTY(bool isOtherDeck READ isOtherDeck NOTIFY changed FINAL)
    Q_PROPERTY(QString position READ position NOTIFY changed FINAL)
    Q_PROPERTY(QString widestPosition READ widestPosition NOTIFY changed FINAL)
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(bool hasPrevious READ hasPrevious NOTIFY changed FINAL)
    Q_PROPERTY(bool hasNext READ hasNext NOTIFY changed FINAL)
    Q_PROPERTY(QString stateLabel READ stateLabel NOTIFY changed FINAL)
    Q_PROPERTY(QColor stateColor READ stateColor NOTIFY changed FINAL)
    Q_PROPERTY(QStringList stateLabels READ stateLabels CONSTANT FINAL)

public:
    /// `deck` must outlive it.
    explicit SlideStatus(DeckController& deck, QObject* parent = nullptr);

    bool isShown() const; ///< True while one slide's notes are shown.
    bool isOtherDeck() const; ///< They are hidden, being another deck's than the slideshow's.
    QString position() const; ///< "2 / 14": counted from 1, as people count slides.
    QString widestPosition() const; ///< This deck's widest position, for which the chip has room.
    QString title() const; ///< The slide's title; empty if it has none.
    bool hasPrevious() const;
    bool hasNext() const;
    QString stateLabel() const; ///< Who turns the slides.
    QColor stateColor() const;
    static QStringList stateLabels(); ///< Every possible label.

    /// One slide back or forward; does nothing at either end.
    Q_INVOKABLE void previous();
    Q_INVOKABLE void next();

Q_SIGNALS:
    void changed();

private:
    DeckController& m_deck;
};

} // namespace Orvello
