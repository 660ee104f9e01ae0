#pragma once

#include <QHash>
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
    explicit LoopbackServer(const QString& address = QStringLiteral("127.0.0.1"));

    void on(const QByteArray& path, const Handler& handler) { m_handlers.insert(path, handler); }
    QString url(const QByteArray& path) const;
    int requestCount() const { return m_requestCount; }
    QString keyFile() const { return m_keys.filePath(QStringLiteral("key")); }
    QString certificateFile() const { return m_keys.filePath(QStringLiteral("certificate")); }

    /// Answers with the body and its length; \a headerLines come with their line ends.
    static Handler answer(const QByteArray& body, const QByteArray& status = "200 OK",
                          const QByteArray& headerLines = QByteArray());
    static Handler redirect(const QByteArray& location);
    /// Sends \a bytes as they are and closes the connection.
    static Handler cut(const QByteArray& bytes);

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    void read(QSslSocket& socket, QByteArray& received);

    QTemporaryDir m_keys;
    QHash<QByteArray, Handler> m_handlers;
    int m_requestCount = 0;
};
