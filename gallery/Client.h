#pragma once

#include <gallery/ClientOptions.h>
#include <gallery/ClientState.h>
#include <gallery/Language.h>
#include <gallery/MainWindow.h>
#include <gallery/Pictures/FrameClock.h>
#include <gallery/Pictures/SourcePool.h>
#include <gallery/StoredText.h>

#include <QObject>
#include <QTemporaryDir>
#include <QTimer>
#include <memory>

namespace OperatorClient {

/// The names of all pages, in the order of the side bar.
QStringList PageNames();

/// The whole client: its settings, and its window with all pages.
///
/// The window comes back as it was left: its place, its page, the skin, the language. What the command line
/// asks for instead holds for this run, and is remembered only when the operator chooses it once more. For
/// screenshots nothing is read or written of what the user has.
class Client : public QObject
{
    Q_OBJECT

public:
    explicit Client(const ClientOptions& options);
    ~Client() override;

    MainWindow& Window() { return *m_pWindow; }
    void Show(); ///< where the window was, or where it fits on the screens that are there
    bool SaveScreenshots(); ///< as the command line asks; false, with a message, when one cannot be saved

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString SettingsFile() const;
    QString FirstLanguage() const;
    void AddPages();
    void Remember();
    void NotePlace();
    void Save();

    const ClientOptions m_options;
    const QTemporaryDir m_pictureFolder; ///< what screenshots use in place of the user's folders
    const StoredText m_stored;
    ClientState m_state; ///< what is remembered
    Language m_language; ///< goes after the window, which shows its texts
    SourcePool m_pool;
    FrameClock m_clock;
    std::unique_ptr<MainWindow> m_pWindow;
    QTimer m_saveSoon;
};

} // namespace OperatorClient
