#pragma once
// The lock that keeps a second Quarzel of the same user from starting. It is
// a lock the operating system holds for the running process and drops when
// the process ends in any way (also when it is killed), so a dead instance
// never blocks the next start, whatever its lock file holds.
#include <QString>

namespace instance {

// Takes the lock named by key for the rest of the process's life. False when
// another running process holds it. When the lock file cannot be made at all
// (no writable temporary folder), the program may start: a refused start
// would help nobody.
bool acquire(const QString& key);

// Where the lock of key lives.
QString lockPath(const QString& key);

}  // namespace instance
