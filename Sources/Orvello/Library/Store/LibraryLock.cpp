#include "Orvello/Library/Store/LibraryLock.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace Orvello {

LibraryLock::LibraryLock(const QString& path)
    : m_descriptor(::open(
        QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK, 0600))
    , m_isTaken(m_descriptor >= 0 && ::flock(m_descriptor, LOCK_EX | LOCK_NB) != 0
          && errno == EWOULDBLOCK)
{
}

LibraryLock::~LibraryLock()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

} // namespace Orvello
