#pragma once

#include "Orvello/Presentations/Decks/DeviceZipSource.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <zip.h>

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

QT_FORWARD_DECLARE_CLASS(QIODevice)

namespace Orvello::PptxImporter {

/// The entries of a package, read one at a time within the importer's limits. Nothing is ever
/// written.
class ZipArchive {
public:
    /// Null when the device does not hold a ZIP archive. `device` is open for reading, can seek,
    /// and must outlive the archive. Nothing is extracted any more once another thread sets
    /// `isCancelled`.
    [[nodiscard]] static std::unique_ptr<ZipArchive> open(
        QIODevice& device, const std::atomic<bool>* isCancelled = nullptr);

    /// The whole content of the entry whose name is exactly this path in UTF-8 (of several, the
    /// first), or none when there is no such entry or it cannot be extracted whole and with the
    /// right checksum. Valid until the next call.
    [[nodiscard]] std::optional<QByteArrayView> data(const QString& path);

    /// Whether that call gave nothing because of one of the importer's limits.
    bool hasHitLimit() const { return m_hasHitLimit; }

private:
    struct Discard {
        void operator()(zip_t* archive) const { zip_discard(archive); }
    };

    explicit ZipArchive(QIODevice& device);
    bool open();
    void sortEntries(quint32 count);
    std::optional<quint32> entryAt(const QByteArray& name) const;
    const char* nameOf(quint32 index) const;
    bool extract(quint32 index);

    DeviceZipSource m_source;
    std::unique_ptr<zip_t, Discard> m_archive;
    std::vector<quint32> m_entries; ///< In the order of their names, then of the directory.
    QByteArray m_content; ///< The entry that was extracted last.
    qint64 m_totalSize = 0; ///< Bytes extracted so far.
    bool m_hasHitLimit = false;
    const std::atomic<bool>* m_isCancelled = nullptr;
};

} // namespace Orvello::PptxImporter
