#include "Orvello/Diagnostics/SessionMarker.h"

#include "Orvello/Foundation/AtomicFile.h"

#include <QFile>
#include <QFileInfo>
#include <QString>

#include <unistd.h>
#include <utility>

namespace Orvello {

namespace {

/// Far above any marker of ours. No more is read, so that no foreign file can exhaust the memory.
constexpr qint64 largestMarker = 1'000'000;

} // namespace

SessionMarker::SessionMarker(std::string path)
    : m_path(std::move(path))
{
}

std::optional<std::string> SessionMarker::text() const
{
    const QString path = QString::fromStdString(m_path);
    QFile file(path);
    // Opening a pipe would wait for its writer.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.read(largestMarker + 1);
    if (file.error() != QFileDevice::NoError || bytes.size() > largestMarker
        || !bytes.isValidUtf8())
        return std::nullopt;
    return QString::fromUtf8(bytes).trimmed().toStdString();
}

void SessionMarker::write(const std::string& text) const
{
    // Without a marker an unclean end goes unnoticed, which is no reason to disturb the user.
    (void)AtomicFile::replace(QString::fromStdString(m_path), text);
}

void SessionMarker::remove() const { ::unlink(m_path.c_str()); }

} // namespace Orvello
