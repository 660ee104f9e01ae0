#include "loopbackserver.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSslKey>

#include <memory>

ServerIdentity ServerIdentity::make(const QString& folder, const QString& address)
{
    const ServerIdentity made{QDir(folder).filePath(address + QLatin1String(".key")),
                              QDir(folder).filePath(address + QLatin1String(".pem"))};
    const QString options =
        QStringLiteral("req -x509 -newkey rsa:2048 -nodes -days 2 -subj /CN=test -addext subjectAltName=IP:");
    QStringList arguments = QString(options + address).split(QLatin1Char(' '));
    arguments << QStringLiteral("-keyout") << made.keyFile << QStringLiteral("-out") << made.certificateFile;
    QProcess openssl;
    openssl.start(QStringLiteral("openssl"), arguments);
    const bool done = openssl.waitForFinished() && openssl.exitStatus() == QProcess::NormalExit;
    return done && openssl.exitCode() == 0 ? made : ServerIdentity();
}

LoopbackServer::LoopbackServer(const ServerIdentity& identity) : m_identity(identity)
{
    listen(QHostAddress::LocalHost);
}

QString LoopbackServer::url(const QString& path) const
{
    return QStringLiteral("https://127.0.0.1:%1%2").arg(serverPort()).arg(path);
}

LoopbackServer::Handler LoopbackServer::answer(const QByteArray& status, const QByteArray& headerLines,
                                               const QByteArray& body)
{
    return send("HTTP/1.1 " + status + "\r\n" + headerLines +
                    "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body,
                false);
}

LoopbackServer::Handler LoopbackServer::redirect(const QByteArray& location)
{
    return answer("302 Found", "Location: " + location + "\r\n", "This has moved.");
}

LoopbackServer::Handler LoopbackServer::send(const QByteArray& bytes, bool close)
{
    return [bytes, close](QSslSocket& socket) {
        socket.write(bytes);
        if (close)
            socket.disconnectFromHost();
    };
}

void LoopbackServer::incomingConnection(qintptr descriptor)
{
    auto* socket = new QSslSocket(this);
    socket->setSocketDescriptor(descriptor);
    connect(socket, &QSslSocket::disconnected, socket, &QObject::deleteLater);
    const auto received = std::make_shared<QByteArray>();
    connect(socket, &QSslSocket::readyRead, this, [this, socket, received] { read(*socket, *received); });
    socket->setPrivateKey(m_identity.keyFile);
    socket->setLocalCertificate(m_identity.certificateFile);
    socket->startServerEncryption();
}

void LoopbackServer::read(QSslSocket& socket, QByteArray& received)
{
    received += socket.readAll();
    const int end = received.indexOf("\r\n\r\n");
    if (end < 0)
        return;
    m_lastRequest = received.left(end);
    received.remove(0, end + 4);
    ++m_requestCount;
    const QString path = QString::fromLatin1(m_lastRequest.split(' ').value(1));
    m_handlers.value(path, answer("404 Not Found", "", "There is no such page."))(socket);
}
