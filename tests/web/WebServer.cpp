#include "WebServer.h"

#include <QTcpSocket>

WebServer::WebServer()
{
    connect(this, &QTcpServer::newConnection, this, &WebServer::OnConnection);
    if (!listen(QHostAddress::LocalHost))
        qCritical("The test's web server cannot listen");
}

void WebServer::Answer(const QString& path, const QByteArray& body, const QByteArray& headers)
{
    m_answers.insert(
        path,
        "HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n"
            + headers + "\r\n" + body);
}

QString WebServer::Url(const QString& path) const
{
    return QStringLiteral("http://127.0.0.1:%1%2").arg(serverPort()).arg(path);
}

void WebServer::OnConnection()
{
    while (QTcpSocket* socket = nextPendingConnection())
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { OnRequest(*socket); });
}

void WebServer::OnRequest(QTcpSocket& socket)
{
    if (!socket.canReadLine())
        return;
    const QList<QByteArray> request = socket.readLine().split(' '); // "GET /path HTTP/1.1"
    const QString path = QString::fromUtf8(request.value(1));
    socket.readAll();
    m_asked.append(path);
    if (!m_answers.contains(path))
        return;
    socket.write(m_answers.value(path));
    socket.disconnectFromHost();
}
