#pragma once

#include <QString>

/// Removes the lock of the INI file @p path when its writer was killed in the moment between making the lock
/// and signing it. QSettings recognises a dead writer by the signature, and would wait half a minute until it
/// takes an unsigned lock for abandoned. Takes a tenth of a second when there is such a lock, no time else;
/// the lock of a writer that lives is left alone.
void RemoveOrphanedLock(const QString& path);
