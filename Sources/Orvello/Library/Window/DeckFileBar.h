#pragma once

#include "Orvello/Library/Window/DeckImports.h"

namespace Orvello {

/// What the scripts window says about the file that the active deck script was made from, and its
/// button.
class DeckFileBar final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString text READ text NOTIFY changed FINAL)
    Q_PROPERTY(QString action READ action NOTIFY changed FINAL)
    Q_PROPERTY(QString path READ path NOTIFY changed FINAL)

public:
    /// `imports` says what goes wrong with a file that was chosen; it must outlive the bar.
    DeckFileBar(const DeckImports::Services& services, DeckImports& imports);

    QString text() const; ///< Empty while there is nothing to say.
    QString action() const; ///< The button's; empty without a deck.
    QString path() const; ///< Of the file; empty when nobody knows.

    /// Takes over what the file holds now. Asks for the file when there is none.
    Q_INVOKABLE void update();

Q_SIGNALS:
    void changed();

private:
    bool needsFile() const;
    void chooseFile();

    DeckImports::Services m_services;
    DeckImports& m_imports;
};

} // namespace Orvello
