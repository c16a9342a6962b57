#pragma once

#include <Platform/Automation/WebEngine/Allowances.h>

#include <QSet>
#include <QWebEnginePage>

namespace WebEngine {

/// A page that can show itself and nothing more: no dialogs, no windows, files or devices, no way to other
/// programs. What it tries is refused at once, and logged once a page and kind.
class RestrictedPage : public QWebEnginePage
{
    Q_OBJECT

public:
    explicit RestrictedPage(const Allowances& allowances);

    const Allowances& Allowed() const { return m_allowances; }

protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
    QWebEnginePage* createWindow(WebWindowType type) override;
    QStringList
    chooseFiles(FileSelectionMode mode, const QStringList& old, const QStringList& types) override;
    void javaScriptAlert(const QUrl& origin, const QString& text) override;
    bool javaScriptConfirm(const QUrl& origin, const QString& text) override;
    bool javaScriptPrompt(
        const QUrl& origin, const QString& text, const QString& preset, QString* result) override;
    void javaScriptConsoleMessage(
        JavaScriptConsoleMessageLevel level, const QString& text, int line, const QString& source) override;

    /// Logs the refusal of @p what, which names @p detail, unless it was logged before.
    void Refuse(const QString& what, const QString& detail = QString());

private:
    void ApplySettings();

    const Allowances m_allowances;
    QSet<QString> m_refused;
};

} // namespace WebEngine
