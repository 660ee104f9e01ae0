#include "update/progressdialog.h"

#include "update/boxtext.h"

#include <QLabel>
#include <QProgressBar>
#include <QScreen>

#include <limits>

namespace {

// The bar counts in int; a package over 2 GB is counted in larger units.
int unitShift(qint64 totalBytes)
{
    int shift = 0;
    while ((totalBytes >> shift) > std::numeric_limits<int>::max())
        ++shift;
    return shift;
}

} // namespace

ProgressDialog::ProgressDialog(const QUrl& url, QWidget* parent)
    : QProgressDialog(parent), m_bar(new QProgressBar(this))
{
    setWindowTitle(tr("Download Progress"));
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    auto* label = new QLabel(this);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    setLabel(label);
    setBar(m_bar);
    setUrl(url);
    setMinimum(0);
    setValue(0);
    setMinimumDuration(0);
}

void ProgressDialog::setUrl(const QUrl& url)
{
    setLabelText(tr("Downloading ") + tr("%1.").arg(boxText(url.toDisplayString())));
}

void ProgressDialog::setTotalBytes(qint64 totalBytes)
{
    m_totalBytes = totalBytes;
}

QSize ProgressDialog::sizeHint() const
{
    return QProgressDialog::sizeHint().boundedTo(screen()->availableSize());
}

void ProgressDialog::networkReplyProgress(qint64 bytesRead, qint64 totalBytes)
{
    if (totalBytes != -1)
        m_totalBytes = totalBytes;
    const int shift = unitShift(m_totalBytes);
    setMaximum(int(m_totalBytes >> shift));
    // Not through the dialog's own setValue: when modal, that runs the event loop, in which the transfer
    // could end and take the dialog away from under the call.
    m_bar->setValue(int(bytesRead >> shift));
}
