#pragma once

#include <QHash>
#include <QSslSocket>
#include <QTcpServer>

#include <functional>

/// Key and certificate of a test server, made anew by openssl for each run.
struct ServerIdentity
{
    QString keyFile;
    QString certificateFile;

    /// Makes both in \a folder, for the server at \a address. The file names are empty when openssl failed.
    static ServerIdentity make(const QString& folder, const QString& address);
};

/// A web server over TLS on the loopback address, in the event loop of the test. It does to a request
/// whatever the handler of its path does to the socket: a fault is a handler.
class LoopbackServer : public QTcpServer
{
public:
    using Handler = std::function<void(QSslSocket&)>;

    explicit LoopbackServer(const ServerIdentity& identity);

    void on(const QString& path, Handler handler) { m_handlers.insert(path, std::move(handler)); }
    QString url(const QString& path) const;
    int requestCount() const { return m_requestCount; }
    /// The header of the last request.
    QByteArray lastRequest() const { return m_lastRequest; }

    /// Answers with \a status, such as "200 OK", the header lines, and the body with its length.
    static Handler answer(const QByteArray& status, const QByteArray& headerLines, const QByteArray& body);
    static Handler redirect(const QByteArray& location);
    /// Sends \a bytes as they are; then closes the connection or leaves the client waiting.
    static Handler send(const QByteArray& bytes, bool close);

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    void read(QSslSocket& socket, QByteArray& received);

    ServerIdentity m_identity;
    QHash<QString, Handler> m_handlers;
    int m_requestCount = 0;
    QByteArray m_lastRequest;
};
