#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <memory>
#include <sys/resource.h>

namespace TestSupport {

/// What goes wrong with a folder that is written to, for as long as the object lives.
class WriteFault
{
public:
    virtual ~WriteFault() = default;
};

/// No file gets longer than @p bytes: writing fails as it does on a full disk, for every user.
std::unique_ptr<WriteFault> FullDisk(rlim_t bytes);

/// The folder and its files can be read only, also by a test that the administrator runs.
std::unique_ptr<WriteFault> ReadOnlyFolder(const QString& folder);

/// A file stands where the folder was.
std::unique_ptr<WriteFault> FileForFolder(const QString& folder);

/// The bytes of all files in the folder, the hidden ones included.
QMap<QString, QByteArray> FilesIn(const QString& folder);

} // namespace TestSupport
