#pragma once

#include "Orvello/Foundation/Date.h"
#include "Orvello/Library/Records/Script.h"

#include <QString>

#include <optional>

namespace Orvello {

/// What is left when the library file is damaged: its bytes, which are kept under a dated name, and
/// the newest copy that is whole, which is on offer until the user takes it or leaves it. Nothing
/// of either is ever deleted.
class LibraryRescue final {
public:
    /// A copy that the user can have.
    struct Offer {
        QString damaged; ///< The name of the file with the damaged bytes; empty for none.
        Date savedAt; ///< When the copy was the library.
        qsizetype scriptCount = 0;
        friend bool operator==(const Offer&, const Offer&) = default;
    };

    explicit LibraryRescue(QString libraryPath);

    /// The library file holds no library. Keeps its bytes and puts the newest of the copies on
    /// offer.
    void keepDamaged(const QStringList& copies, Date now);

    /// No library file is there, but a copy may be.
    void findMissing(const QStringList& copies, Date now);

    /// Bytes were damaged, or a copy is on offer.
    bool hasNews() const { return m_offer || !m_damaged.isEmpty(); }
    const QString& damaged() const { return m_damaged; }
    const std::optional<Offer>& offer() const { return m_offer; }

    /// The scripts of the copy on offer. The offer stays until it is closed.
    QList<Script> scripts() const;

    /// The user has had enough of it. The copy stays, under a dated name.
    void close(Date now);

private:
    void offerNewest(const QStringList& copies, Date now);
    void readOffer();
    QString offeredPath() const;

    QString m_libraryPath;
    QString m_damaged;
    std::optional<Offer> m_offer;
};

} // namespace Orvello
