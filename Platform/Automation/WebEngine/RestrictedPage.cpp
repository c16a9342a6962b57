#include <Platform/Automation/WebEngine/RestrictedPage.h>

#include <Platform/Automation/WebEngine/EngineLog.h>
#include <Platform/Automation/WebEngine/EngineProfile.h>

#include <QWebEngineSettings>
#include <QWebEngineView>

namespace WebEngine {

RestrictedPage::RestrictedPage(const Allowances& allowances)
    : QWebEnginePage(Profile())
    , m_allowances(allowances)
{
    ApplySettings();
    connect(
        this, &QWebEnginePage::featurePermissionRequested, this, [this](const QUrl& origin, Feature feature) {
            setFeaturePermission(origin, feature, PermissionDeniedByUser);
            // not translated: a line of the log
            Refuse(QStringLiteral("The use of a device"), origin.toDisplayString());
        });
}

void RestrictedPage::ApplySettings()
{
    QWebEngineSettings& wanted = *settings();
    wanted.setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, m_allowances.fileAccess);
    wanted.setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, false);
    wanted.setAttribute(QWebEngineSettings::JavascriptCanOpenWindows, true); // createWindow() decides
    wanted.setAttribute(QWebEngineSettings::JavascriptCanAccessClipboard, false);
    wanted.setAttribute(QWebEngineSettings::JavascriptCanPaste, false);
    wanted.setAttribute(QWebEngineSettings::AllowWindowActivationFromJavaScript, false);
    wanted.setAttribute(QWebEngineSettings::ScreenCaptureEnabled, false);
    wanted.setAttribute(QWebEngineSettings::FullScreenSupportEnabled, false);
    wanted.setAttribute(QWebEngineSettings::PluginsEnabled, false);
    // A page that loads takes no keyboard focus from the client's own inputs.
    wanted.setAttribute(QWebEngineSettings::FocusOnNavigationEnabled, false);
    // "mailto:" and the like would start other programs: acceptNavigationRequest() is asked about them, too.
    wanted.setUnknownUrlSchemePolicy(QWebEngineSettings::AllowAllUnknownUrlSchemes);
}

void RestrictedPage::Refuse(const QString& what, const QString& detail)
{
    if (m_refused.contains(what))
        return;
    m_refused.insert(what);
    qCWarning(EngineLog).noquote() << what << "was refused to a page:" << detail.left(LongestLogged);
}

bool RestrictedPage::acceptNavigationRequest(const QUrl& url, NavigationType, bool)
{
    if (m_allowances.MayGoTo(url))
        return true;
    // not translated: a line of the log
    Refuse(QStringLiteral("The way to another scheme"), url.toDisplayString());
    return false;
}

QWebEnginePage* RestrictedPage::createWindow(WebWindowType)
{
    if (!m_allowances.newWindows) {
        Refuse(QStringLiteral("A new window"), url().toDisplayString());
        return nullptr;
    }
    // Goes with the client's window at the latest.
    auto* window = new QWebEngineView(view() ? view()->window() : nullptr);
    window->setWindowFlag(Qt::Window);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->resize(800, 600);
    auto* page = new RestrictedPage(m_allowances);
    page->setParent(window);
    window->setPage(page);
    connect(page, &QWebEnginePage::windowCloseRequested, window, &QWidget::close);
    window->show();
    return page;
}

QStringList RestrictedPage::chooseFiles(FileSelectionMode, const QStringList&, const QStringList&)
{
    // not translated: a line of the log
    Refuse(QStringLiteral("The choice of a file"), url().toDisplayString());
    return {};
}

void RestrictedPage::javaScriptAlert(const QUrl&, const QString& text)
{
    qCDebug(EngineLog) << "A page alerts:" << text.left(LongestLogged);
}

bool RestrictedPage::javaScriptConfirm(const QUrl&, const QString& text)
{
    qCDebug(EngineLog) << "A page asks:" << text.left(LongestLogged);
    return false;
}

bool RestrictedPage::javaScriptPrompt(const QUrl&, const QString& text, const QString&, QString*)
{
    qCDebug(EngineLog) << "A page asks:" << text.left(LongestLogged);
    return false;
}

void RestrictedPage::javaScriptConsoleMessage(
    JavaScriptConsoleMessageLevel, const QString& text, int line, const QString& source)
{
    qCDebug(EngineLog).noquote() << source.left(LongestLogged) << line << text.left(LongestLogged);
}

} // namespace WebEngine
