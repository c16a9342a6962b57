#include "WriteFaults.h"

#include <QDir>
#include <QFile>
#include <csignal>
#include <sys/stat.h>
#include <unistd.h>

namespace TestSupport {

namespace {

constexpr uid_t Nobody = 65534;

class FileLimit : public WriteFault
{
public:
    explicit FileLimit(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN)) // an error, as a full disk is, in place of the end
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit = {bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileLimit() override
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_before = {};
    void (*m_handler)(int);
};

class ReadOnly : public WriteFault
{
public:
    explicit ReadOnly(const QString& folder)
        : m_folder(QFile::encodeName(folder))
        , m_user(geteuid())
    {
        chmod(m_folder.constData(), 0555);
        // The administrator may write everywhere.
        if (m_user == 0 && seteuid(Nobody) != 0)
            qFatal("the user cannot be changed");
    }
    ~ReadOnly() override
    {
        if (geteuid() != m_user && seteuid(m_user) != 0)
            qFatal("the user cannot be changed back");
        chmod(m_folder.constData(), 0755);
    }

private:
    const QByteArray m_folder;
    const uid_t m_user;
};

class Replaced : public WriteFault
{
public:
    explicit Replaced(const QString& folder)
        : m_folder(folder)
    {
        QDir().rename(folder, Away());
        QFile file(folder);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("the folder cannot be replaced");
    }
    ~Replaced() override
    {
        QFile::remove(m_folder);
        QDir().rename(Away(), m_folder);
    }

private:
    QString Away() const { return m_folder + QLatin1String(".away"); }

    const QString m_folder;
};

} // namespace

std::unique_ptr<WriteFault> FullDisk(rlim_t bytes) { return std::make_unique<FileLimit>(bytes); }

std::unique_ptr<WriteFault> ReadOnlyFolder(const QString& folder)
{
    return std::make_unique<ReadOnly>(folder);
}

std::unique_ptr<WriteFault> FileForFolder(const QString& folder)
{
    return std::make_unique<Replaced>(folder);
}

QMap<QString, QByteArray> FilesIn(const QString& folder)
{
    QMap<QString, QByteArray> files;
    const QStringList names = QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System);
    for (const QString& name : names) {
        QFile file(QDir(folder).filePath(name));
        files.insert(name, file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable"));
    }
    return files;
}

} // namespace TestSupport
