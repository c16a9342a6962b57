#include <gallery/Screenshots.h>

#include <Platform/BasicUIComponents/KvDialog.h>
#include <Platform/BasicUIComponents/KvSkin.h>
#include <gallery/MainWindow.h>
#include <gallery/Pictures/SourcePool.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QPainter>
#include <QPixmap>
#include <QSaveFile>
#include <QStatusBar>
#include <QThread>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <iterator>

namespace OperatorClient {

namespace {

constexpr int LongestWaitForVideos = 5000; // milliseconds
/// Milliseconds, for debounced layouts and panels that slide.
constexpr int TimeToSettle = 800;
constexpr int LookInterval = 20; // milliseconds

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
        RunEvents(LookInterval);
}

/// Whatever is open over the main window, from the dialogs up to the menus and messages.
QWidgetList OpenOver(const MainWindow& window)
{
    QWidgetList open;
    const QWidgetList all = QApplication::topLevelWidgets();
    std::copy_if(all.begin(), all.end(), std::back_inserter(open), [&](const QWidget* widget) {
        return widget != &window && widget->isVisible() && widget->graphicsProxyWidget() == nullptr;
    });
    const auto layer = [](const QWidget* widget) {
        const Qt::WindowType type = widget->windowType();
        return type == Qt::ToolTip ? 2 : type == Qt::Popup ? 1 : 0;
    };
    std::stable_sort(
        open.begin(), open.end(), [&](const auto* a, const auto* b) { return layer(a) < layer(b); });
    return open;
}

/// What is added to the place of an open widget: dialogs stand in the middle of the window, also where the
/// display is too small for that, and what is open over a dialog goes with it.
QPoint Shift(const MainWindow& window, const QWidget* widget)
{
    const auto* dialog = qobject_cast<const KvGUI::KvDialog*>(widget);
    while (dialog == nullptr && widget->parentWidget() != nullptr) {
        widget = widget->parentWidget()->window();
        dialog = qobject_cast<const KvGUI::KvDialog*>(widget);
    }
    return dialog == nullptr ? QPoint() : window.geometry().center() - dialog->geometry().center();
}

QPixmap PictureOf(MainWindow& window)
{
    QPixmap picture = window.grab();
    QPainter painter(&picture);
    const QWidgetList open = OpenOver(window);
    for (QWidget* widget : open)
        painter.drawPixmap(
            widget->geometry().topLeft() + Shift(window, widget) - window.geometry().topLeft(),
            widget->grab());
    return picture;
}

bool SavePicture(MainWindow& window, const QString& path)
{
    // As a whole or not at all, also on a full disk.
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && PictureOf(window).save(&file, "PNG") && file.flush()
        && file.commit())
        return true;
    std::fprintf(stderr, "%s\n", qPrintable(QStringLiteral("The picture %1 cannot be saved.").arg(path)));
    return false;
}

QString FileName(const QString& page, const Page::Picture& picture)
{
    const QString name = page + QLatin1Char('-') + KvGUI::GetSkinVersion().toLower();
    const QString suffix = picture.suffix.isEmpty() ? QString() : QLatin1Char('-') + picture.suffix;
    return name + suffix + QLatin1String(".png");
}

bool SaveCurrentPage(MainWindow& window, const SourcePool& pool, const QDir& folder)
{
    bool saved = true;
    const QVector<Page::Picture> pictures = window.CurrentPage()->Pictures();
    for (const Page::Picture& picture : pictures) {
        bool done = false;
        QElapsedTimer there;
        QTimer look;
        // By a timer: a state with a modal dialog is inside the dialog's own loop.
        QObject::connect(&look, &QTimer::timeout, &window, [&] {
            if (!there.isValid() && picture.isThere())
                there.start();
            if (!there.isValid() || there.elapsed() < TimeToSettle)
                return;
            look.stop();
            WaitForVideos(pool);
            window.statusBar()->clearMessage();
            saved
                = SavePicture(window, folder.filePath(FileName(window.CurrentPageName(), picture))) && saved;
            picture.leave();
            done = true;
        });
        look.start(LookInterval);
        picture.enter();
        while (!done)
            RunEvents(LookInterval);
    }
    return saved;
}

} // namespace

bool SaveScreenshots(MainWindow& window, const SourcePool& pool, const QString& folder, const QString& page)
{
    // Shown nowhere, but laid out and painted as if it were.
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    const QDir target(folder);
    bool saved = target.mkpath(QStringLiteral("."));
    const QStringList pages = page.isEmpty() ? window.PageNames() : QStringList{page};
    for (const QString& skin : {QStringLiteral("Black"), QStringLiteral("White")}) {
        KvGUI::SetSkinVersion(skin);
        for (const QString& name : pages)
            saved = window.ShowPage(name) && SaveCurrentPage(window, pool, target) && saved;
    }
    return saved;
}

} // namespace OperatorClient
