#include "Tests/Support/ZipBuilder.h"

#include <QtEndian>

#include <zip.h>

#include <stdexcept>
#include <string>

namespace Orvello::Testing {

namespace {

void require(bool succeeded, const char* what)
{
    if (!succeeded)
        throw std::runtime_error(std::string("libzip could not ") + what);
}

} // namespace

ZipBuilder& ZipBuilder::add(QByteArray name, QByteArray content, Compression compression)
{
    m_entries.push_back({ std::move(name), std::move(content), compression, false });
    return *this;
}

ZipBuilder& ZipBuilder::addEncrypted(QByteArray name, QByteArray content)
{
    m_entries.push_back({ std::move(name), std::move(content), Compression::Deflated, true });
    return *this;
}

QByteArray ZipBuilder::build() const
{
    zip_source_t* const target = zip_source_buffer_create(nullptr, 0, 0, nullptr);
    require(target, "make a buffer");
    zip_source_keep(target);
    zip_t* const archive = zip_open_from_source(target, ZIP_TRUNCATE, nullptr);
    require(archive, "make an archive");
    for (const Entry& entry : m_entries) {
        zip_source_t* const content = zip_source_buffer(
            archive, entry.content.constData(), static_cast<zip_uint64_t>(entry.content.size()), 0);
        const zip_int64_t index = zip_file_add(archive, entry.name.constData(), content, 0);
        require(index >= 0, "add an entry");
        const auto at = static_cast<zip_uint64_t>(index);
        zip_set_file_compression(archive, at,
            entry.compression == Compression::Stored ? ZIP_CM_STORE : ZIP_CM_DEFLATE, 1);
        if (entry.isEncrypted)
            require(zip_file_set_encryption(archive, at, ZIP_EM_AES_256, "secret") == 0, "encrypt");
    }
    require(zip_close(archive) == 0, "write an archive");

    zip_stat_t stat;
    require(zip_source_stat(target, &stat) == 0 && zip_source_open(target) == 0, "read it back");
    QByteArray bytes(static_cast<qsizetype>(stat.size), Qt::Uninitialized);
    require(zip_source_read(target, bytes.data(), stat.size) == bytes.size(), "read it back");
    zip_source_close(target);
    zip_source_free(target);
    return bytes;
}

void overwrite(QByteArray& archive, QByteArrayView name, DirectoryField field, quint32 value)
{
    constexpr qsizetype nameOffset = 46;
    qsizetype record = -1;
    do {
        record = archive.indexOf("PK\1\2", record + 1);
        require(record >= 0, "find the entry");
    } while (!QByteArrayView(archive).sliced(record + nameOffset).startsWith(name));
    char* const bytes = archive.data() + record + static_cast<int>(field);
    if (field == DirectoryField::Flags || field == DirectoryField::Method)
        qToLittleEndian(static_cast<quint16>(value), bytes);
    else
        qToLittleEndian(value, bytes);
}

} // namespace Orvello::Testing
