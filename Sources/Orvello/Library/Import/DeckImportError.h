#pragma once

#include <QCoreApplication>
#include <QString>

namespace Orvello {

struct PresenterApp;
struct ScriptResult;

/// Why a deck could not be imported from a running presentation application.
struct DeckImportError {
    Q_DECLARE_TR_FUNCTIONS(Orvello::DeckImportError)

public:
    enum class Reason {
        NotRunning,
        NoDocument,
        NoNotes,
        ScriptFailed, ///< For the reason in `message`.
    };

    Reason reason;
    const PresenterApp* app; ///< A row of the presenter table; never null.
    QString message;

    /// What the failed script says about its reason.
    [[nodiscard]] static DeckImportError of(const PresenterApp& app, const ScriptResult& result);

    /// In words for the user.
    [[nodiscard]] QString description() const;

    friend bool operator==(const DeckImportError&, const DeckImportError&) = default;
};

} // namespace Orvello
