#pragma once

#include "testdata.h"

#include <QNetworkProxy>
#include <QProcess>
#include <QSslKey>
#include <QSslSocket>
#include <QTcpServer>
#include <QTemporaryDir>

#include <functional>

/// A web server over TLS on the loopback address, in the event loop of the test. It does to a request
/// whatever the handler of its path does to the socket: a fault is a handler.
class LoopbackServer : public QTcpServer
{
public:
    using Handler = std::function<void(QSslSocket&)>;

    /// Has openssl make a certificate for the server at \a address; does not listen if that fails.
    explicit LoopbackServer(const QString& address = "127.0.0.1"_s)
    {
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
        const QString options = "req -x509 -newkey rsa:2048 -nodes -days 2 -subj /CN=test -addext "
                                "subjectAltName=IP:%1 -keyout %2 -out %3"_s;
        QProcess openssl;
        openssl.start("openssl"_s, options.arg(address, keyFile(), certificateFile()).split(u' '));
        if (openssl.waitForFinished() && openssl.exitStatus() == QProcess::NormalExit &&
            openssl.exitCode() == 0)
            listen(QHostAddress::LocalHost);
    }

    void on(const QByteArray& path, const Handler& handler) { m_handlers.insert(path, handler); }
    QString url(const QByteArray& path) const
    {
        return "https://127.0.0.1:%1%2"_s.arg(serverPort()).arg(QString::fromLatin1(path));
    }
    int requestCount() const { return m_requestCount; }
    QString keyFile() const { return m_keys.filePath("key"_s); }
    QString certificateFile() const { return m_keys.filePath("certificate"_s); }

    /// Answers with the body and its length; \a headerLines come with their line ends.
    static Handler answer(const QByteArray& body, const QByteArray& status = "200 OK",
                          const QByteArray& headerLines = QByteArray())
    {
        const QByteArray header = "HTTP/1.1 " + status + "\r\n" + headerLines;
        const QByteArray length = "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n";
        return [all = header + length + body](QSslSocket& socket) { socket.write(all); };
    }
    static Handler redirect(const QByteArray& location)
    {
        return answer("This has moved.", "302 Found", "Location: " + location + "\r\n");
    }
    /// Sends \a bytes as they are and closes the connection.
    static Handler cut(const QByteArray& bytes)
    {
        return [bytes](QSslSocket& socket) {
            socket.write(bytes);
            socket.disconnectFromHost();
        };
    }

protected:
    void incomingConnection(qintptr descriptor) override
    {
        auto* socket = new QSslSocket(this);
        socket->setSocketDescriptor(descriptor);
        connect(socket, &QSslSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QSslSocket::readyRead, this, [this, socket, received = QByteArray()]() mutable {
            received += socket->readAll();
            const int end = received.indexOf("\r\n\r\n");
            if (end < 0)
                return;
            const QByteArray path = received.split(' ').value(1);
            received.remove(0, end + 4);
            ++m_requestCount;
            m_handlers.value(path, answer("There is no such page.", "404 Not Found"))(*socket);
        });
        socket->setPrivateKey(keyFile());
        socket->setLocalCertificate(certificateFile());
        socket->startServerEncryption();
    }

private:
    QTemporaryDir m_keys;
    QHash<QByteArray, Handler> m_handlers;
    int m_requestCount = 0;
};
