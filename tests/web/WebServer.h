#pragma once

#include <QHash>
#include <QTcpServer>

/// A web server on this machine for pages that a file cannot be: of an origin of their own, downloads, and
/// pages that never come.
class WebServer : public QTcpServer
{
    Q_OBJECT

public:
    WebServer();

    /// Answers requests for @p path ("/a.html") with @p body. Paths without an answer get none, ever.
    /// @param headers more header lines, each with its line end
    void Answer(const QString& path, const QByteArray& body, const QByteArray& headers = {});
    QString Url(const QString& path) const;
    QStringList Asked() const { return m_asked; } ///< the paths, in order

private:
    void OnConnection();
    void OnRequest(class QTcpSocket& socket);

    QHash<QString, QByteArray> m_answers;
    QStringList m_asked;
};
