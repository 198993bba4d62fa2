#pragma once

#include <QObject>
#include <QString>

namespace Orvello {

class LibraryStore;

/// What the scripts window has to say about the files behind it, each as one text that is empty
/// while there is nothing to say.
class LibraryNotices final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString saveText READ saveText NOTIFY saveTextChanged FINAL)
    Q_PROPERTY(QString rescueText READ rescueText NOTIFY rescueTextChanged FINAL)
    Q_PROPERTY(QString offerText READ offerText NOTIFY rescueTextChanged FINAL)

public:
    explicit LibraryNotices(LibraryStore& library); ///< `library` must outlive the notices.

    /// Why the scripts are not saved.
    QString saveText() const;

    /// What became of a damaged library, and the words of the button that brings its copy back.
    QString rescueText() const;
    QString offerText() const;

    Q_INVOKABLE void takeCopy();
    Q_INVOKABLE void closeRescue();

Q_SIGNALS:
    void saveTextChanged();
    void rescueTextChanged();

private:
    LibraryStore& m_library;
};

} // namespace Orvello
