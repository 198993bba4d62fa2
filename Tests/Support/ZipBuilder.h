#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QtGlobal>

#include <utility>
#include <vector>

namespace Orvello::Testing {

enum class Compression { Stored, Deflated };

/// Makes ZIP archives in memory, well-formed ones by libzip, and then spoils them.
class ZipBuilder {
public:
    /// `name` is UTF-8, or else is taken to be in the old code page of ZIP and written as it is.
    ZipBuilder& add(QByteArray name, QByteArray content, Compression = Compression::Deflated);
    /// Encrypted with AES-256 and some password.
    ZipBuilder& addEncrypted(QByteArray name, QByteArray content);

    QByteArray build() const;

private:
    struct Entry {
        QByteArray name;
        QByteArray content;
        Compression compression = Compression::Deflated;
        bool isEncrypted = false;
    };
    std::vector<Entry> m_entries;
};

/// Fields of an entry in the archive's directory, by their offsets, with their sizes in bytes.
enum class DirectoryField {
    Flags = 8,
    Method = 10,
    Checksum = 16,
    CompressedSize = 20,
    Size = 24,
};

/// Overwrites one field of the entry of this name, which must exist, in the archive's directory.
void overwrite(QByteArray& archive, QByteArrayView name, DirectoryField field, quint32 value);

} // namespace Orvello::Testing
