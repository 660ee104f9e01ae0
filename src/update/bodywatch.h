#pragma once

#include <QHash>
#include <QSet>
#include <QTimer>

#include <functional>

/// Watches a transfer for a server that sends on and on while nothing of it reaches the body: a status line,
/// a header or the size of a chunk without an end, which the network layer keeps in memory to the last byte.
/// A server that sends nothing costs nothing and is waited for.
class BodyWatch
{
public:
    /// \a giveUp is called when the server has sent too much. The connections that the program has by now
    /// are none of the transfer's.
    explicit BodyWatch(const std::function<void()>& giveUp);

    void start();
    void stop() { m_timer.stop(); }
    /// To be called when something has reached the body.
    void bodyGrew() { m_grew = true; }

private:
    /// What a connection has received so far, by its number.
    using Received = QHash<quint64, qint64>;

    static Received receivedByAll();
    void look();

    std::function<void()> m_giveUp;
    QTimer m_timer;
    QSet<quint64> m_foreign;
    Received m_before;
    bool m_grew = false;
    qint64 m_besideBody = 0;
};
