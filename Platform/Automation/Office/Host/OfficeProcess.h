#pragma once

#include <QString>
#include <sys/types.h>

namespace Office {

/// The private office of this host: a headless process with a profile and a pipe of its own. It is killed
/// when the thread that started it ends, however that happens.
class OfficeProcess
{
public:
    OfficeProcess(QString programFolder, QString profileFolder);

    /// Starts the office. To be called by the main thread, which ends with the host.
    bool Start();

    pid_t Id() const { return m_id; }
    QString PipeName() const;

    /// True when the office does not run any more.
    bool HasEnded();
    /// Whether the office has ended only to be started again, as it does after it has set up a profile.
    bool WantsRestart() const;

    /// Grows while the office does anything; -1 while it waits for a disk or a net.
    long long Activity() const;

    void Kill(); ///< and waits for its end

private:
    const QString m_program;
    const QString m_profile;
    pid_t m_id = -1;
    int m_status = 0;
    bool m_ended = true;
};

} // namespace Office
