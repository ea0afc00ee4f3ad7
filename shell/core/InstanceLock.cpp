#include "shell/core/InstanceLock.h"

#include <QDir>
#include <QFile>
#include <QSet>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#else
#include <QLockFile>
#endif

namespace instance {

QString lockPath(const QString& key) { return QDir::temp().filePath("quarzel-" + key + ".lock"); }

bool acquire(const QString& key) {
#ifdef Q_OS_UNIX
  // This process holds it already.
  static QSet<QString> held;
  if (held.contains(key)) return true;
  // Not inherited by programs started from here (the system calculator),
  // which would otherwise keep the lock after Quarzel has ended.
  const QByteArray path = QFile::encodeName(lockPath(key));
  const int fd = ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  if (fd < 0) return true;
  int r;
  do {
    r = ::flock(fd, LOCK_EX | LOCK_NB);
  } while (r != 0 && errno == EINTR);
  if (r != 0) {
    const bool taken = errno == EWOULDBLOCK;
    ::close(fd);
    return !taken;
  }
  // The descriptor stays open until the process ends; that holds the lock.
  held.insert(key);
  return true;
#else
  static QLockFile lock(lockPath(key));
  lock.setStaleLockTime(0);
  return lock.tryLock(0);
#endif
}

}  // namespace instance
