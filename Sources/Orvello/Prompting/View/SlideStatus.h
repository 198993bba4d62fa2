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
    Q_PROPERTY(QString position READ position NOTIFY changed FINAL)
    Q_PROPERTY(QString widestPosition READ widestPosition NOTIFY changed FINAL)
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(bool canGoBack READ canGoBack NOTIFY changed FINAL)
    Q_PROPERTY(bool canGoOn READ canGoOn NOTIFY changed FINAL)
    Q_PROPERTY(QString stateLabel READ stateLabel NOTIFY changed FINAL)
    Q_PROPERTY(QColor stateColor READ stateColor NOTIFY changed FINAL)
    Q_PROPERTY(QStringList stateLabels READ stateLabels CONSTANT FINAL)

public:
    explicit SlideStatus(
        DeckController& deck, QObject* parent = nullptr); ///< `deck` must outlive it.

    bool isShown() const; ///< While one slide's notes are shown.
    QString position() const; ///< "2 / 14": counted from 1, as people count slides.
    QString widestPosition() const; ///< The widest of this deck: the chip has room for it.
    QString title() const; ///< The slide's title; empty if it has none.
    bool canGoBack() const;
    bool canGoOn() const;
    QString stateLabel() const; ///< Who turns the slides.
    QColor stateColor() const;
    static QStringList stateLabels(); ///< Every label there is.

    /// One slide back or forward; does nothing at either end.
    Q_INVOKABLE void goBack();
    Q_INVOKABLE void goOn();

Q_SIGNALS:
    void changed();

private:
    DeckController& m_deck;
};

} // namespace Orvello
