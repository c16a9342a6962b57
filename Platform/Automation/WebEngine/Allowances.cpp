#include <Platform/Automation/WebEngine/Allowances.h>

#include <QCoreApplication>
#include <QUrl>
#include <QVariant>

namespace WebEngine {

Allowances Allowances::FromWords(const QStringList& words)
{
    const QString scheme = QStringLiteral("scheme:");
    Allowances allowances;
    allowances.fileAccess = words.contains(QLatin1String("file-access"));
    allowances.newWindows = words.contains(QLatin1String("new-windows"));
    allowances.downloads = words.contains(QLatin1String("downloads"));
    for (const QString& word : words) {
        if (word.startsWith(scheme))
            allowances.schemes.append(word.mid(scheme.size()).toLower());
    }
    return allowances;
}

Allowances Allowances::OfApplication()
{
    return FromWords(QCoreApplication::instance()->property("linkWebAllowed").toStringList());
}

bool Allowances::MayGoTo(const QUrl& url) const
{
    static const QStringList usual{
        QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("file"), QStringLiteral("data"),
        QStringLiteral("qrc")};
    // Frames begin with about:blank or about:srcdoc; neither leads anywhere.
    const bool empty = url.scheme() == QLatin1String("about")
        && (url.path() == QLatin1String("blank") || url.path() == QLatin1String("srcdoc"));
    return empty || usual.contains(url.scheme()) || schemes.contains(url.scheme());
}

} // namespace WebEngine
