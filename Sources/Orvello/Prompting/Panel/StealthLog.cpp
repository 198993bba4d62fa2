#include "Orvello/Prompting/Panel/StealthLog.h"

#include "Orvello/Foundation/PrivateFolder.h"
#include "Orvello/Platform/Early/Folders.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

namespace Orvello {

using namespace Qt::StringLiterals;

StealthLog::StealthLog(const Folders& folders)
    : m_folders(folders)
{
}

void StealthLog::write(const QString& message)
{
    const QString stamp = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs);
    const QByteArray line = (stamp + u' ' + message + u'\n').toUtf8();
    if (QFileInfo(filePath()).size() > largestSize)
        QFile::remove(filePath());
    constexpr auto owners = QFile::ReadOwner | QFile::WriteOwner;
    QFile file(filePath());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append, owners))
        return;
    file.setPermissions(owners); // An earlier version let others read it.
    file.write(line);
}

const QString& StealthLog::filePath()
{
    if (m_filePath.isEmpty()) {
        const QString folder = m_folders.applicationSupport() + u"/Orvello"_s;
        makePrivateFolder(folder);
        m_filePath = folder + u"/stealth.log"_s;
    }
    return m_filePath;
}

} // namespace Orvello
