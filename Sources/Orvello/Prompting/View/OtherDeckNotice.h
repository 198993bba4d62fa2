#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

namespace Orvello {

class DeckController;
class LibraryStore;
class LiveDeckImport;
struct DeckImportError;

/// What the prompter says, and offers to do, while the slideshow shows another deck than the one
/// that the script was made from.
class OtherDeckNotice final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isShown READ isShown NOTIFY changed FINAL)
    Q_PROPERTY(QString text READ text NOTIFY changed FINAL)
    Q_PROPERTY(QString action READ action NOTIFY changed FINAL)

public:
    /// All of them must outlive it.
    OtherDeckNotice(DeckController& deck, LibraryStore& library, LiveDeckImport& openDecks,
        QObject* parent = nullptr);

    bool isShown() const;
    QString text() const;
    QString action() const; ///< A button; empty while it would do nothing.

    /// Switches to the script that goes with the deck, or else makes one of it.
    Q_INVOKABLE void act();

    /// Shows the script's notes all the same.
    Q_INVOKABLE void keepNotes();

Q_SIGNALS:
    void changed();

private:
    void importDeck();
    void showFailure(const DeckImportError& error);
    void followDeck();

    DeckController& m_deck;
    LibraryStore& m_library;
    LiveDeckImport& m_openDecks;
    QString m_failure; ///< Why the deck could not be imported.
};

} // namespace Orvello
