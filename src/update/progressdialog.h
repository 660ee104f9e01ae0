#pragma once

#include <QProgressDialog>
#include <QUrl>

/// Shows how far the transfer of one file has come. The dialog does not close itself: its owner does.
class ProgressDialog : public QProgressDialog
{
    Q_OBJECT

public:
    /// \a url is shown as what is being downloaded.
    ProgressDialog(const QUrl& url, QWidget* parent);

    /// Shows another address: the transfer was sent there.
    void setUrl(const QUrl& url);
    /// Size in bytes known beforehand, for servers that report none; 0 if unknown, which shows a busy bar.
    void setTotalBytes(qint64 totalBytes);

    /// Bounded by the screen, however long the address is.
    QSize sizeHint() const override;

public slots:
    /// \a totalBytes is -1 when the server did not say it.
    void networkReplyProgress(qint64 bytesRead, qint64 totalBytes);

private:
    QProgressBar* m_bar;
    qint64 m_totalBytes = 0;
};
