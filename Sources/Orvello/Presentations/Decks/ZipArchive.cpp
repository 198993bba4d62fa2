#include "Orvello/Presentations/Decks/ZipArchive.h"

#include "Orvello/Presentations/Decks/PptxImporter.h"
#include "Orvello/Presentations/Decks/Zip64Directory.h"

#include <QIODevice>

#include <algorithm>
#include <cstring>
#include <limits>
#include <numeric>

namespace Orvello::PptxImporter {

namespace {

constexpr qint64 chunkSize = 16'384;

/// How much of the buffer is kept from one entry to the next. The part that lists the slides may
/// need far more.
constexpr qsizetype keptCapacity = 1'048'576;

/// libzip takes two reads for each entry of the directory, which makes this a limit on their number
/// even before it has read them. It matters because the hash table for their names, as of libzip
/// 1.7, can be made to degenerate, so that many entries take hours.
constexpr DeviceZipSource::Allowance forOpening { .bytes = Limits::directorySize,
    .reads = 2 * Limits::entries + 1'000 };

constexpr DeviceZipSource::Allowance forEntries { .bytes = Limits::totalRead,
    .reads = std::numeric_limits<qint64>::max() };

struct CloseFile {
    void operator()(zip_file_t* file) const { zip_fclose(file); }
};

/// Packages use only these two methods. Others that libzip may support need as much memory as the
/// archive demands.
bool isSupported(const zip_stat_t& entry)
{
    return (entry.comp_method == ZIP_CM_STORE || entry.comp_method == ZIP_CM_DEFLATE)
        && entry.encryption_method == ZIP_EM_NONE;
}

} // namespace

std::unique_ptr<ZipArchive> ZipArchive::open(
    QIODevice& device, const std::atomic<bool>* isCancelled)
{
    // libzip takes an empty file as an empty archive.
    if (device.size() == 0 || zip64EntryCount(device) > static_cast<quint64>(Limits::entries))
        return nullptr;
    std::unique_ptr<ZipArchive> archive(new ZipArchive(device));
    archive->m_isCancelled = isCancelled;
    return archive->open() ? std::move(archive) : nullptr;
}

ZipArchive::ZipArchive(QIODevice& device)
    : m_source(device, forOpening)
{
}

bool ZipArchive::open()
{
    zip_source_keep(m_source.get());
    m_archive.reset(zip_open_from_source(m_source.get(), ZIP_RDONLY, nullptr));
    if (!m_archive) {
        zip_source_free(m_source.get()); // The reference that the archive would have taken.
        return false;
    }
    m_source.setAllowance(forEntries);
    const zip_int64_t count = zip_get_num_entries(m_archive.get(), 0);
    if (count < 0 || count > Limits::entries)
        return false;
    sortEntries(static_cast<quint32>(count));
    return true;
}

// libzip's own look-up compares names that it has converted to UTF-8, and relies on that hash
// table.
void ZipArchive::sortEntries(quint32 count)
{
    m_entries.resize(count);
    std::iota(m_entries.begin(), m_entries.end(), 0U);
    std::erase_if(m_entries, [this](quint32 index) { return nameOf(index) == nullptr; });
    std::stable_sort(m_entries.begin(), m_entries.end(), [this](quint32 left, quint32 right) {
        return std::strcmp(nameOf(left), nameOf(right)) < 0;
    });
}

const char* ZipArchive::nameOf(quint32 index) const
{
    return zip_get_name(m_archive.get(), index, ZIP_FL_ENC_RAW);
}

std::optional<quint32> ZipArchive::entryAt(const QByteArray& name) const
{
    const auto entry = std::lower_bound(
        m_entries.begin(), m_entries.end(), name, [this](quint32 index, const QByteArray& wanted) {
            return std::strcmp(nameOf(index), wanted.constData()) < 0;
        });
    if (entry == m_entries.end() || nameOf(*entry) != name)
        return std::nullopt;
    return *entry;
}

std::optional<QByteArrayView> ZipArchive::data(const QString& path)
{
    m_hasHitLimit = false;
    const std::optional<quint32> entry = entryAt(path.toUtf8());
    if (!entry || !extract(*entry))
        return std::nullopt;
    return QByteArrayView(m_content);
}

bool ZipArchive::extract(quint32 index)
{
    zip_stat_t entry;
    if (zip_stat_index(m_archive.get(), index, 0, &entry) != 0 || !isSupported(entry))
        return false;
    m_hasHitLimit = entry.size > static_cast<zip_uint64_t>(Limits::entrySize)
        || m_totalSize > Limits::totalSize || m_source.isSpent();
    if (m_hasHitLimit)
        return false;
    const std::unique_ptr<zip_file_t, CloseFile> file(zip_fopen_index(m_archive.get(), index, 0));
    if (!file)
        return false;

    if (m_content.capacity() > keptCapacity)
        m_content = QByteArray();
    qint64 size = 0;
    zip_int64_t count = 0;
    do {
        m_content.resize(size + chunkSize);
        m_hasHitLimit = m_totalSize > Limits::totalSize || size > Limits::entrySize;
        count = m_hasHitLimit || (m_isCancelled && *m_isCancelled)
            ? -1
            : zip_fread(file.get(), m_content.data() + size, chunkSize);
        if (count < 0) {
            m_hasHitLimit = m_hasHitLimit || m_source.isSpent();
            return false;
        }
        size += count;
        m_totalSize += count;
    } while (count > 0); // libzip compares the checksum once it has reached the end.
    m_content.truncate(size);
    return static_cast<zip_uint64_t>(size) == entry.size;
}

} // namespace Orvello::PptxImporter
