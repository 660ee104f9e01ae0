#include "update/httpsdownload.h"

#include "update/boxtext.h"
#include "update/progressdialog.h"
#include "update/targetpath.h"
#include "widgets/messages.h"

#include <QAuthenticator>
#include <QFile>
#include <QFileInfo>
#include <QSslConfiguration>

#include <cerrno>
#include <memory>

namespace {

// Bytes that wait in memory at most when the net is faster than the disk.
constexpr qint64 ReadBufferSize = 1024 * 1024;
// Of one connection, as many as a box has room for: a chain of certificates can hold hundreds.
constexpr int MaxTlsErrors = 20;

QUrl urlFromText(const QString& text)
{
    return QUrl::fromUserInput(text.trimmed());
}

// Tries again after a short write: only the write that takes nothing sets the file's error string.
bool writeAll(QFile& file, const QByteArray& data)
{
    qint64 written = 0;
    while (written < data.size()) {
        const qint64 taken = file.write(data.constData() + written, data.size() - written);
        if (taken <= 0)
            return false;
        written += taken;
    }
    return true;
}

bool isWebAddress(const QUrl& url)
{
    return url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http");
}

// In the words of the network layer, which would go on with files of this machine.
QString unknownProtocol(const QUrl& url)
{
    return QStringLiteral("Protocol \"%1\" is unknown").arg(url.scheme());
}

QString noContent(const QUrl& url)
{
    return QStringLiteral("Error transferring %1 - server sends no content").arg(url.toDisplayString());
}

// Any number of redirections is followed, but those beyond a good many in no hurry.
int pauseBefore(int redirection)
{
    constexpr int Quick = 20;
    constexpr int LongestInMs = 1000;
    return redirection <= Quick ? 0 : qMin(LongestInMs, 10 << qMin(redirection - Quick, 10));
}

} // namespace

HttpsDownload::HttpsDownload(QWidget* parent)
    : m_parent(parent), m_watch([this] { abortTransfer(noContent(url)); })
{
    m_pause.setSingleShot(true);
    m_pause.callOnTimeout(this, [this] { startRequest(url, 0); });
    QSslConfiguration tls = request.sslConfiguration();
    // The peer need not prove itself: what a certificate has against it is asked about, see sslErrors().
    tls.setPeerVerifyMode(QSslSocket::VerifyNone);
    tls.setProtocol(QSsl::TlsV1SslV3);
    request.setSslConfiguration(tls);
    // The file is wanted byte by byte as it lies on the server, so the network layer must not unpack it.
    request.setRawHeader(QByteArrayLiteral("Accept-Encoding"), QByteArrayLiteral("identity"));
    connect(&qnam, &QNetworkAccessManager::authenticationRequired, this,
            &HttpsDownload::slotAuthenticationRequired);
    connect(&qnam, &QNetworkAccessManager::sslErrors, this, &HttpsDownload::sslErrors);
}

HttpsDownload::~HttpsDownload()
{
    // The loop was left from outside: the program is being quit.
    if (reply != nullptr || m_pause.isActive())
        abandonTransfer();
}

void HttpsDownload::SetErrorInfoFlag(bool on)
{
    m_showErrorInfoFlag = on;
}

bool HttpsDownload::downloadFile(const QString& address, QString& folder, const QString& version,
                                 qint64 totalBytes)
{
    const QUrl source = urlFromText(address);
    const QString name = downloadFileName(source, version);
    if (!source.isValid() || name.isEmpty()) {
        showError(tr("Invalid URL : ") + address);
        return false;
    }
    const QString path = folder + QLatin1Char('/') + name;
    if (!openTarget(path))
        return false;
    folder = path;
    return runTransfer(source, totalBytes);
}

bool HttpsDownload::downloadFileWithSaveTarget(const QString& address, const QString& path, qint64 totalBytes)
{
    const QUrl source = urlFromText(address);
    if (!source.isValid()) {
        showError(tr("Invalid URL : ") + address);
        return false;
    }
    return openTarget(path) && runTransfer(source, totalBytes);
}

bool HttpsDownload::openTarget(const QString& path)
{
    // A link to nowhere exists as well.
    const QFileInfo present(path);
    if (present.exists() || present.isSymLink()) {
        if (m_showErrorInfoFlag && !mayReplace(path))
            return false;
        QFile::remove(path);
    }
    file = openFileForWrite(path);
    return file != nullptr;
}

bool HttpsDownload::mayReplace(const QString& path)
{
    return showMessage(QMessageBox::Question, tr("Overwrite Existing File"),
                       boxText(path) + tr(" already exists in the current directory. Overwrite?"),
                       {
                           {QMessageBox::Ok,     tr("Ok")    },
                           {QMessageBox::Cancel, tr("Cancel")}
    }) !=
           QMessageBox::Cancel;
}

QFile* HttpsDownload::openFileForWrite(const QString& path)
{
    auto opened = std::make_unique<QFile>(path);
    // A link is never followed: it may lead anywhere, and make a file where it leads to none.
    const bool mayOpen = !QFileInfo(path).isSymLink() || QFile::remove(path);
    // Unbuffered, so that a full disk shows at the write and not when the file is closed.
    if (mayOpen && opened->open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return opened.release();
    showError(tr("Unable to save the file ") + path);
    return nullptr;
}

bool HttpsDownload::runTransfer(const QUrl& source, qint64 totalBytes)
{
    m_downloadSucessFlag = false;
    m_redirections = 0;
    if (!isWebAddress(source)) {
        failTransfer(closeFile(), unknownProtocol(source));
        return false;
    }
    startRequest(source, totalBytes);
    loop.exec();
    return m_downloadSucessFlag;
}

void HttpsDownload::startRequest(const QUrl& source, qint64 totalBytes)
{
    url = source;
    httpRequestAborted = false;
    m_abortReason = QString();
    request.setUrl(url);
    reply = qnam.get(request);
    reply->setReadBufferSize(ReadBufferSize);
    connect(reply, &QNetworkReply::finished, this, &HttpsDownload::httpFinished);
    connect(reply, &QNetworkReply::readyRead, this, &HttpsDownload::httpReadyRead);
    m_watch.start();
    if (m_showErrorInfoFlag)
        showProgress(totalBytes);
}

// A redirected transfer keeps its dialog: one that came anew with each redirection could not be clicked.
void HttpsDownload::showProgress(qint64 totalBytes)
{
    if (progressDialog.isNull()) {
        progressDialog = new ProgressDialog(url, m_parent);
        progressDialog->setWindowModality(Qt::ApplicationModal);
        progressDialog->setAttribute(Qt::WA_DeleteOnClose);
        connect(progressDialog, &QProgressDialog::canceled, this, &HttpsDownload::cancelDownload);
    }
    progressDialog->setUrl(url);
    progressDialog->setTotalBytes(totalBytes);
    connect(reply, &QNetworkReply::downloadProgress, progressDialog, &ProgressDialog::networkReplyProgress);
    connect(reply, &QNetworkReply::finished, this, &HttpsDownload::ProgressDlgHide);
    progressDialog->show();
}

void HttpsDownload::httpReadyRead()
{
    if (file == nullptr)
        return;
    const QByteArray data = reply->readAll();
    if (!data.isEmpty())
        m_watch.bodyGrew();
    if (m_sizeLimit > 0 && file->pos() + data.size() > m_sizeLimit)
        abortTransfer(qt_error_string(EFBIG));
    else if (!writeAll(*file, data))
        abortTransfer(file->errorString());
}

void HttpsDownload::abortTransfer(const QString& reason)
{
    m_abortReason = reason;
    reply->abort();
}

void HttpsDownload::httpFinished()
{
    m_watch.stop();
    const QString path = closeFile();
    if (httpRequestAborted) {
        leaveLoop(false);
        return;
    }
    if (reply->error() != QNetworkReply::NoError) {
        failTransfer(path, m_abortReason.isNull() ? reply->errorString() : m_abortReason);
        return;
    }
    const QVariant target = reply->attribute(QNetworkRequest::RedirectionTargetAttribute);
    if (!target.isNull()) {
        followRedirection(url.resolved(target.toUrl()), path);
        return;
    }
    const QString fault = faultOfAnswer(path);
    fault.isNull() ? leaveLoop(true) : failTransfer(path, fault);
}

// An answer may be empty, but not one that says it is none. Nor one in chunks: where the network layer cannot
// read the size of a chunk, it takes it for the last.
QString HttpsDownload::faultOfAnswer(const QString& path) const
{
    const QByteArray coding = reply->rawHeader(QByteArrayLiteral("Transfer-Encoding")).toLower();
    if (coding.contains("chunked") && QFileInfo(path).size() == 0)
        return noContent(url);
    constexpr int NoContent = 204;
    constexpr int NotModified = 304;
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status != NoContent && status != NotModified)
        return QString();
    return QStringLiteral("Error transferring %1 - server replied: %2")
        .arg(url.toDisplayString(), reply->attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString());
}

void HttpsDownload::followRedirection(const QUrl& target, const QString& path)
{
    // A server may send us elsewhere in the net, but not to a file of this machine.
    if (!isWebAddress(target)) {
        failTransfer(path, unknownProtocol(target));
        return;
    }
    file = openFileForWrite(path);
    if (file == nullptr) {
        leaveLoop(false);
        return;
    }
    disconnect(reply, &QNetworkReply::finished, this, &HttpsDownload::ProgressDlgHide);
    reply->deleteLater();
    reply = nullptr;
    // A transfer with a dialog shows that it goes on, and has a button to end it.
    const int pause = m_showErrorInfoFlag ? 0 : pauseBefore(++m_redirections);
    url = target;
    pause > 0 ? m_pause.start(pause) : startRequest(target, 0);
}

void HttpsDownload::failTransfer(const QString& path, const QString& reason)
{
    if (!path.isEmpty())
        QFile::remove(path);
    showError(tr("Download failed: ") + reason);
    leaveLoop(false);
}

void HttpsDownload::leaveLoop(bool success)
{
    if (reply != nullptr)
        reply->deleteLater();
    reply = nullptr;
    m_downloadSucessFlag = success;
    loop.quit();
}

void HttpsDownload::abandonTransfer()
{
    m_watch.stop();
    m_pause.stop();
    if (reply != nullptr) {
        reply->disconnect(this);
        reply->abort();
    }
    const QString path = closeFile();
    if (!path.isEmpty())
        QFile::remove(path);
    ProgressDlgHide();
    leaveLoop(false);
}

// The path of the file that was open; empty if none was.
QString HttpsDownload::closeFile()
{
    if (file == nullptr)
        return QString();
    const QString path = file->fileName();
    file->close();
    delete file;
    file = nullptr;
    return path;
}

void HttpsDownload::ProgressDlgHide()
{
    if (progressDialog.isNull())
        return;
    progressDialog->hide();
    // Later, because this also runs from within the dialog's own cancelling and closing.
    progressDialog->deleteLater();
    progressDialog.clear();
}

void HttpsDownload::cancelDownload()
{
    httpRequestAborted = true;
    if (reply != nullptr)
        reply->abort();
    else if (m_pause.isActive()) {
        m_pause.stop();
        closeFile();
        leaveLoop(false);
    }
}

void HttpsDownload::sslErrors(QNetworkReply* failing, const QList<QSslError>& errors)
{
    // The connection may break, and the reply go, while the box is open.
    const QPointer<QNetworkReply> guard = failing;
    QStringList texts;
    for (const QSslError& error : errors.mid(0, MaxTlsErrors))
        texts += error.errorString();
    if (errors.size() > MaxTlsErrors)
        texts += QChar(0x2026);
    const int answer = showMessage(
        QMessageBox::Warning, tr("SSL Errors"),
        tr("One or more SSL errors has occurred: ") + tr("\n%1").arg(texts.join(QLatin1Char('\n'))),
        {
            {QMessageBox::Ignore, tr("Ignore")},
            {QMessageBox::Abort,  tr("Abort") }
    });
    if (guard.isNull())
        return;
    if (answer == QMessageBox::Ignore)
        guard->ignoreSslErrors();
    else
        // Without verification Qt would go on by itself, against the user's word.
        guard->abort();
}

// Nothing is given, so a server that wants a password fails the request.
void HttpsDownload::slotAuthenticationRequired(QNetworkReply*, QAuthenticator*) {}

void HttpsDownload::showError(const QString& text)
{
    if (m_showErrorInfoFlag)
        showMessage(QMessageBox::Critical, tr("Error"), boxText(text),
                    {
                        {QMessageBox::Ok, tr("Ok")}
        });
}
