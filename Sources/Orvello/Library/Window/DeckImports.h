#pragma once

#include "Orvello/Platform/Early/Facts.h"

#include <QObject>
#include <QStringList>
#include <QUrl>
#include <QUuid>

#include <optional>
#include <vector>

namespace Orvello {

class DeckFileImport;
class DeckFileUpdates;
class LibraryStore;
class LiveDeckImport;
class OpenPanel;
class PresenterTable;
struct DeckImportError;
struct PresenterApp;

/// Lets the user choose a file in one of the formats that people have here.
[[nodiscard]] std::optional<QString> chooseDeckFile(
    OpenPanel& panel, const Facts& facts, const QString& message);

/// The ways to import a deck that the scripts window offers, and what it has to say about them.
class DeckImports final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QStringList titles READ titles CONSTANT FINAL)
    Q_PROPERTY(QString readingText READ readingText NOTIFY readingTextChanged FINAL)
    Q_PROPERTY(QString question READ question NOTIFY questionChanged FINAL)
    Q_PROPERTY(bool isShowingAlert READ isShowingAlert NOTIFY alertChanged FINAL)
    Q_PROPERTY(QString alertTitle READ alertTitle NOTIFY alertChanged FINAL)
    Q_PROPERTY(QString alertText READ alertText NOTIFY alertChanged FINAL)

public:
    /// All of them must outlive the imports.
    struct Services {
        LibraryStore& library;
        LiveDeckImport& openDecks;
        DeckFileImport& files;
        DeckFileUpdates& updates;
        const PresenterTable& presenters;
        OpenPanel& openPanel;
        Facts facts {};
    };

    explicit DeckImports(const Services& services);
    ~DeckImports() override;

    /// The titles of the menu's items: a file first, then what is open in each presenter.
    QStringList titles() const;

    /// Runs the item at that place in the menu.
    Q_INVOKABLE void run(int item);

    /// Whether a file is still to be read.
    bool isReadingFiles() const;

    /// What the window says while an open deck is being read, which can take a while; else empty.
    /// No other open deck is read meanwhile.
    QString readingText() const;
    Q_INVOKABLE void cancelReading();

    Q_INVOKABLE void chooseFile();

    /// Whether there are files of this machine among these.
    Q_INVOKABLE bool canTake(const QList<QUrl>& files) const;

    /// Imports every deck among these files, in order, and says which of them are none.
    Q_INVOKABLE void importFiles(const QList<QUrl>& files);

    /// What is asked about a file whose notes are in the library already: whether they are to be
    /// updated, or added once more. Empty while nothing is.
    QString question() const;
    Q_INVOKABLE void updateKnown();
    Q_INVOKABLE void addOnceMore();
    Q_INVOKABLE void dismissQuestion();

    /// Without a message, says that the error is unknown. An alert that arrives while another one
    /// is showing waits its turn.
    void showAlert(const QString& title, const std::optional<QString>& message);
    Q_INVOKABLE void dismissAlert();
    static QString failureTitle() { return tr("Import failed"); }

    bool isShowingAlert() const { return !m_alerts.isEmpty(); }
    QString alertTitle() const;
    QString alertText() const;

Q_SIGNALS:
    void readingTextChanged();
    void questionChanged();
    void alertChanged();

private:
    struct Alert {
        QString title;
        QString text;
    };

    void importFile(const QString& path);
    void addFile(const QString& path);
    QString takeQuestion();
    void finishFile(const QUuid& imported);
    void importOpenDeck(const PresenterApp& app);
    void importOpenPowerPointDeck(const PresenterApp& powerPoint);
    void showFailure(const DeckImportError& error);

    Services m_services;
    std::vector<const PresenterApp*> m_apps; ///< In the menu's order.
    QStringList m_questions; ///< Files. The first one is being asked about.
    QList<Alert> m_alerts; ///< The first one is showing.
};

} // namespace Orvello
