#pragma once

#include "update/bodywatch.h"

#include <QDialog>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <QSslError>
#include <QTimer>
#include <QUrl>

class ProgressDialog;
class QAuthenticator;
class QFile;

/// Fetches one file from the net and returns when the transfer has ended, while the event loop keeps running.
///
/// Never shown: a QDialog only for its place among the windows of the program. One object runs any number of
/// transfers, one after the other. There is no timeout: a silent server keeps the caller waiting, until the
/// user cancels in the progress dialog or the caller's cancelDownload ends it. A server that sends on and on
/// beside the body is left.
class HttpsDownload : public QDialog
{
    Q_OBJECT

public:
    /// \a parent becomes the parent of the progress dialog only.
    explicit HttpsDownload(QWidget* parent);
    ~HttpsDownload() override;

    /// On: failures are told, overwriting is asked for, and a progress dialog is shown. Off at construction;
    /// then only TLS errors are asked about.
    void SetErrorInfoFlag(bool on);
    /// Transfers from now on fail when more than \a bytes come; 0, as at construction, is without a limit.
    void SetSizeLimit(qint64 bytes) { m_sizeLimit = bytes; }

    /// Downloads \a address, of http or https, into \a folder under the name that it holds, with \a version
    /// put into it unless that is empty. \a totalBytes is the size to show if the server gives none. Once the
    /// transfer starts, \a folder is overwritten with the full path of the file. Returns whether the file is
    /// complete. A failed transfer leaves no file, not even an older one of that name; a cancelled one leaves
    /// what had come.
    bool downloadFile(const QString& address, QString& folder, const QString& version, qint64 totalBytes);

    /// The same with the full \a path of the target given.
    bool downloadFileWithSaveTarget(const QString& address, const QString& path, qint64 totalBytes);

    /// Requests \a source; what comes goes to the open file. The caller runs the loop.
    void startRequest(const QUrl& source, qint64 totalBytes);

    /// Opens \a path for writing, emptied. Returns null, having told so if failures are told, when that
    /// cannot be.
    QFile* openFileForWrite(const QString& path);

public slots:
    void httpFinished();
    void httpReadyRead();
    void cancelDownload();
    void ProgressDlgHide();
    void sslErrors(QNetworkReply* failing, const QList<QSslError>& errors);
    void slotAuthenticationRequired(QNetworkReply* asking, QAuthenticator* authenticator);

private:
    bool openTarget(const QString& path);
    bool mayReplace(const QString& path);
    bool runTransfer(const QUrl& source, qint64 totalBytes);
    void showProgress(qint64 totalBytes);
    QString closeFile();
    void followRedirection(const QUrl& target, const QString& path);
    /// What is wrong with an answer that the network layer takes for a good one; null if nothing is.
    QString faultOfAnswer(const QString& path) const;
    /// Ends in httpFinished before it returns.
    void abortTransfer(const QString& reason);
    void failTransfer(const QString& path, const QString& reason);
    void leaveLoop(bool success);
    void abandonTransfer();
    void showError(const QString& text);

    QEventLoop loop;
    bool m_showErrorInfoFlag = false;
    QPointer<QWidget> m_parent;
    QPointer<ProgressDialog> progressDialog;
    QUrl url;
    QNetworkAccessManager qnam;
    QNetworkReply* reply = nullptr;
    QNetworkRequest request;
    QFile* file = nullptr;
    bool httpRequestAborted = false;
    bool m_downloadSucessFlag = false;
    /// Why the program itself has ended the transfer; null if it has not.
    QString m_abortReason;
    qint64 m_sizeLimit = 0;
    int m_redirections = 0;
    /// Runs between two requests of a redirected transfer, when there is no reply.
    QTimer m_pause;
    BodyWatch m_watch;
};
