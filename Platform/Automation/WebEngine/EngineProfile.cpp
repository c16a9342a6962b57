#include <Platform/Automation/WebEngine/EngineProfile.h>

#include <Platform/Automation/WebEngine/EngineLog.h>
#include <Platform/Automation/WebEngine/EngineStart.h>
#include <Platform/Automation/WebEngine/RestrictedPage.h>

#include <QCoreApplication>
#include <QPointer>
#include <QUrl>
#include <QWebEngineDownloadItem>
#include <QWebEngineProfile>

namespace WebEngine {

namespace {

void OnDownload(QWebEngineDownloadItem* download)
{
    const auto* page = qobject_cast<RestrictedPage*>(download->page());
    if (page && page->Allowed().downloads) {
        download->accept();
        return;
    }
    download->cancel();
    qCWarning(EngineLog) << "A download was refused:"
                         << download->url().toDisplayString().left(LongestLogged);
}

// Not deleted with the statics but by a plain function.
QPointer<QWebEngineProfile> profile; // NOLINT clazy:exclude=non-pod-global-static

} // namespace

QWebEngineProfile* Profile()
{
    if (profile)
        return profile;
    PrepareEngine();
    profile = new QWebEngineProfile;
    QObject::connect(profile, &QWebEngineProfile::downloadRequested, profile, &OnDownload);
    // Runs before the engine's own routine, which was added first.
    qAddPostRoutine([] { delete profile; });
    return profile;
}

} // namespace WebEngine
