#include "Control/InstanceLock.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace fendrel::control {

using namespace Qt::StringLiterals;

InstanceLock::InstanceLock(const QString& dataFolder) {
    QDir().mkpath(dataFolder);
    ::chmod(QFile::encodeName(dataFolder).constData(), S_IRWXU);
    m_file = ::open(QFile::encodeName(dataFolder + u"/instance.lock"_s).constData(), O_RDWR | O_CREAT | O_CLOEXEC,
                    S_IRUSR | S_IWUSR);
    if (m_file < 0)
        return;
    if (::flock(m_file, LOCK_EX | LOCK_NB) == 0)
        m_state = State::held;
    else if (errno == EWOULDBLOCK)
        m_state = State::heldByAnother;
}

InstanceLock::~InstanceLock() {
    if (m_file >= 0)
        ::close(m_file);
}

} // namespace fendrel::control
