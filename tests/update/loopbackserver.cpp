#include "loopbackserver.h"

#include <QNetworkProxy>
#include <QProcess>
#include <QSslKey>

#include <memory>

LoopbackServer::LoopbackServer(const QString& address)
{
    QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
    const QString options = QStringLiteral("req -x509 -newkey rsa:2048 -nodes -days 2 -subj /CN=test "
                                           "-addext subjectAltName=IP:%1 -keyout %2 -out %3");
    QProcess openssl;
    openssl.start(QStringLiteral("openssl"), options.arg(address, keyFile(), certificateFile()).split(u' '));
    if (openssl.waitForFinished() && openssl.exitStatus() == QProcess::NormalExit && openssl.exitCode() == 0)
        listen(QHostAddress::LocalHost);
}

QString LoopbackServer::url(const QByteArray& path) const
{
    return QStringLiteral("https://127.0.0.1:%1%2").arg(serverPort()).arg(QString::fromLatin1(path));
}

LoopbackServer::Handler LoopbackServer::answer(const QByteArray& body, const QByteArray& status,
                                               const QByteArray& headerLines)
{
    const QByteArray header = "HTTP/1.1 " + status + "\r\n" + headerLines;
    const QByteArray length = "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n";
    return [all = header + length + body](QSslSocket& socket) { socket.write(all); };
}

LoopbackServer::Handler LoopbackServer::redirect(const QByteArray& location)
{
    return answer("This has moved.", "302 Found", "Location: " + location + "\r\n");
}

LoopbackServer::Handler LoopbackServer::cut(const QByteArray& bytes)
{
    return [bytes](QSslSocket& socket) {
        socket.write(bytes);
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
    socket->setPrivateKey(keyFile());
    socket->setLocalCertificate(certificateFile());
    socket->startServerEncryption();
}

void LoopbackServer::read(QSslSocket& socket, QByteArray& received)
{
    received += socket.readAll();
    const int end = received.indexOf("\r\n\r\n");
    if (end < 0)
        return;
    const QByteArray path = received.split(' ').value(1);
    received.remove(0, end + 4);
    ++m_requestCount;
    m_handlers.value(path, answer("There is no such page.", "404 Not Found"))(socket);
}
