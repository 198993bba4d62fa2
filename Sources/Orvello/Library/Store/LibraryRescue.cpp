#include "Orvello/Library/Store/LibraryRescue.h"

#include "Orvello/Library/Store/LibraryFile.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>
#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// "<path>.<word>-2026-11-22-031500", with a number behind it where there is one already.
QString datedName(const QString& path, QLatin1StringView word, Date date)
{
    const auto seconds = static_cast<qint64>(date.unixSeconds());
    const QString name = path + u'.' + word + u'-'
        + QDateTime::fromSecsSinceEpoch(seconds).toString(u"yyyy-MM-dd-HHmmss"_s);
    QString unused = name;
    for (int number = 2; QFileInfo::exists(unused); ++number)
        unused = name + u'-' + QString::number(number);
    return unused;
}

/// The file itself under one more name where the file system can do that, else a copy of it.
bool giveName(const QString& file, const QString& name)
{
    return ::link(QFile::encodeName(file).constData(), QFile::encodeName(name).constData()) == 0
        || QFile::copy(file, name);
}

} // namespace

LibraryRescue::LibraryRescue(QString libraryPath)
    : m_libraryPath(std::move(libraryPath))
{
    readOffer(); // One that an earlier run made and the user has not answered yet.
}

QString LibraryRescue::offeredPath() const { return m_libraryPath + u".offered"_s; }

void LibraryRescue::keepDamaged(const QStringList& copies, Date now)
{
    // The bytes are no use where they are: the next save puts another file there.
    const QString name = datedName(m_libraryPath, "damaged"_L1, now);
    if (QFileInfo(m_libraryPath).size() > 0 && giveName(m_libraryPath, name))
        m_damaged = QFileInfo(name).fileName();
    offerNewest(copies, now);
}

void LibraryRescue::findMissing(const QStringList& copies, Date now) { offerNewest(copies, now); }

void LibraryRescue::offerNewest(const QStringList& copies, Date now)
{
    QString newest;
    for (const QString& copy : copies) {
        const auto scripts = LibraryFile::read(copy);
        const bool isNewer
            = newest.isEmpty() || QFileInfo(copy).lastModified() > QFileInfo(newest).lastModified();
        if (scripts && !scripts->isEmpty() && isNewer)
            newest = copy;
    }
    // What is on offer already comes from an earlier damage, which nobody has repaired yet.
    if (!newest.isEmpty())
        giveName(newest, m_offer ? datedName(m_libraryPath, "copy"_L1, now) : offeredPath());
    readOffer();
}

void LibraryRescue::readOffer()
{
    m_offer.reset();
    if (const auto scripts = LibraryFile::read(offeredPath()))
        m_offer = Offer { m_damaged,
            Date::fromUnixSeconds(
                static_cast<double>(QFileInfo(offeredPath()).lastModified().toSecsSinceEpoch())),
            scripts->size() };
}

QList<Script> LibraryRescue::scripts() const
{
    return LibraryFile::read(offeredPath()).value_or(QList<Script> {});
}

void LibraryRescue::close(Date now)
{
    m_damaged.clear();
    if (m_offer)
        QFile::rename(offeredPath(), datedName(m_libraryPath, "copy"_L1, now));
    m_offer.reset();
}

} // namespace Orvello
