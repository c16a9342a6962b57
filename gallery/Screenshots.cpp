#include <gallery/Screenshots.h>

#include <Platform/BasicUIComponents/KvSkin.h>
#include <gallery/MainWindow.h>
#include <gallery/Pictures/SourcePool.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QPixmap>
#include <QStatusBar>
#include <QThread>
#include <cstdio>

namespace OperatorClient {

namespace {

constexpr int LongestWaitForVideos = 5000; // milliseconds
constexpr int TimeToSettle = 250; // for debounced layouts, milliseconds

void RunEvents(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    do {
        QCoreApplication::processEvents();
        QThread::msleep(5);
    } while (timer.elapsed() < milliseconds);
}

void WaitForVideos(const SourcePool& pool)
{
    QElapsedTimer timer;
    timer.start();
    while (!pool.AllReady() && timer.elapsed() < LongestWaitForVideos)
        RunEvents(20);
}

bool SavePicture(MainWindow& window, const QString& path)
{
    if (window.grab().save(path))
        return true;
    std::fprintf(stderr, "%s\n", qPrintable(QStringLiteral("The picture %1 cannot be saved.").arg(path)));
    return false;
}

bool SavePage(MainWindow& window, Page& page, const SourcePool& pool, const QDir& folder)
{
    bool saved = true;
    const QVector<Page::Picture> pictures = page.Pictures();
    for (const Page::Picture& picture : pictures) {
        picture.enter();
        window.statusBar()->clearMessage();
        RunEvents(TimeToSettle);
        WaitForVideos(pool);
        QString name = page.Name() + QLatin1Char('-') + KvGUI::GetSkinVersion().toLower();
        if (!picture.suffix.isEmpty())
            name += QLatin1Char('-') + picture.suffix;
        saved = SavePicture(window, folder.filePath(name + QLatin1String(".png"))) && saved;
    }
    return saved;
}

} // namespace

bool SaveScreenshots(MainWindow& window, const SourcePool& pool, const QString& folder)
{
    // Shown nowhere, but laid out and painted as if it were.
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    const QDir target(folder);
    bool saved = target.mkpath(QStringLiteral("."));
    const QVector<Page*> pages = window.Pages();
    for (const QString& skin : {QStringLiteral("Black"), QStringLiteral("White")}) {
        KvGUI::SetSkinVersion(skin);
        for (int i = 0; i < pages.size(); ++i) {
            window.ShowPage(i);
            saved = SavePage(window, *pages.at(i), pool, target) && saved;
        }
    }
    return saved;
}

} // namespace OperatorClient
