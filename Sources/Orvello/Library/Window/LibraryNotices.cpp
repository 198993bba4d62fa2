#include "Orvello/Library/Window/LibraryNotices.h"

#include "Orvello/Library/Store/LibraryStore.h"

#include <QDateTime>
#include <QLocale>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

QString spelled(Date date)
{
    const auto seconds = static_cast<qint64>(date.unixSeconds());
    return QLocale().toString(QDateTime::fromSecsSinceEpoch(seconds), QLocale::ShortFormat);
}

bool isDiskFull(std::error_code problem)
{
    return problem == std::errc::no_space_on_device
        || problem == std::error_code(EDQUOT, std::generic_category())
        || problem == std::errc::file_too_large;
}

bool isWriteProtected(std::error_code problem)
{
    return problem == std::errc::permission_denied || problem == std::errc::operation_not_permitted
        || problem == std::errc::read_only_file_system;
}

} // namespace

LibraryNotices::LibraryNotices(LibraryStore& library)
    : m_library(library)
{
    connect(&library, &LibraryStore::saveStateChanged, this, &LibraryNotices::saveTextChanged);
    connect(&library, &LibraryStore::rescueChanged, this, &LibraryNotices::rescueTextChanged);
}

QString LibraryNotices::saveText() const
{
    const std::error_code problem = m_library.saveProblem();
    switch (m_library.saveState()) {
    case LibraryStore::SaveState::Saved:
        return {};
    case LibraryStore::SaveState::Foreign:
        return tr("Another Orvello is using your scripts, so nothing that you change here is "
                  "saved. Quit this one and go on in the other.");
    case LibraryStore::SaveState::Failing:
        break;
    }
    if (isDiskFull(problem))
        return tr("Your scripts cannot be saved because the disk is full. Orvello keeps trying.");
    if (isWriteProtected(problem))
        return tr("Your scripts cannot be saved because their folder is write-protected. Orvello "
                  "keeps trying.");
    //: %1: what the system says about it.
    return tr("Your scripts cannot be saved (%1). Orvello keeps trying.")
        .arg(QString::fromLocal8Bit(problem.message().c_str()));
}

QString LibraryNotices::rescueText() const
{
    const LibraryRescue& rescue = m_library.rescue();
    const QString& damaged = rescue.damaged();
    if (rescue.offer() && damaged.isEmpty())
        //: %1: a date and a time.
        return tr("Your scripts file was lost or empty. There is a copy from %1.")
            .arg(spelled(rescue.offer()->savedAt));
    if (rescue.offer())
        //: %1: a date and a time; %2: the name of a file.
        return tr("Your scripts file was damaged. There is a copy from %1; what was in the file "
                  "is kept as “%2”.")
            .arg(spelled(rescue.offer()->savedAt), damaged);
    if (!damaged.isEmpty())
        //: %1: the name of a file.
        return tr("Your scripts file was damaged. What was in it is kept as “%1”.").arg(damaged);
    return {};
}

QString LibraryNotices::offerText() const
{
    const auto& offer = m_library.rescue().offer();
    //: A button.
    return offer ? tr("Bring back %n scripts", nullptr, static_cast<int>(offer->scriptCount))
                 : QString();
}

void LibraryNotices::takeCopy() { m_library.takeOfferedCopy(); }

void LibraryNotices::closeRescue() { m_library.closeRescue(); }

} // namespace Orvello
