#pragma once

#include <QTimer>

#include <functional>

/// Watches a transfer for a server that sends on and on while nothing of it reaches the body: a status line,
/// a header or the size of a chunk without an end, which the network layer keeps in memory to the last byte.
/// A server that sends nothing costs nothing and is waited for.
class BodyWatch
{
public:
    /// \a giveUp is called when the server has sent too much.
    explicit BodyWatch(const std::function<void()>& giveUp);

    void start();
    void stop() { m_timer.stop(); }
    /// To be called when something has reached the body.
    void bodyGrew() { m_grew = true; }

private:
    void look();

    std::function<void()> m_giveUp;
    QTimer m_timer;
    bool m_grew = false;
    qint64 m_readBefore = 0;
};
