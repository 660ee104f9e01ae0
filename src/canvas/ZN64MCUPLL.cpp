#include "canvas/ZN64MCUPLL.h"

#include "canvas/appearance.h"
#include "xml/guardedxml.h"

#include <QApplication>
#include <QDomDocument>

namespace {

/// The picture as the screen can show it: with twice the pixels where its own are finer than the desktop's.
QPixmap pictureFor(qreal pixelRatio, const QString& picture)
{
    if (pixelRatio <= 1.0)
        return QPixmap(picture);
    const int suffix = picture.lastIndexOf(QLatin1Char('.'));
    // The suffix tells the reader of images that the logical size is half of the pixels.
    const QPixmap fine(picture.left(suffix) + QLatin1String("@2x") + picture.mid(suffix));
    return fine.isNull() ? QPixmap(picture) : fine;
}

} // namespace

ZN64MCUPLL::ZN64MCUPLL(ZN64MCUSERIALS series, const QString& picture, QWidget* parent)
    : ControlFactory(pictureFor(parent ? parent->devicePixelRatioF() : qApp->devicePixelRatio(), picture),
                     parent),
      m_ZN64ClockConf(std::make_unique<ZN64ConfigCLK>(series))
{
}

void ZN64MCUPLL::SetLineEditColor(QLineEdit* edit, const QColor& color)
{
    appearance::setRoleColor(edit, QPalette::Text, color);
}

void ZN64MCUPLL::SetLabelColor(QLabel* label, const QColor& color)
{
    appearance::setRoleColor(label, QPalette::WindowText, color);
}

QString ZN64MCUPLL::GetXMLElementString(const QString& fileName, const QString& elementName)
{
    QDomDocument document;
    loadGuardedXml(fileName, document);
    return GetXMLElementString(document, elementName);
}

QString ZN64MCUPLL::GetXMLElementString(const QDomDocument& document, const QString& elementName)
{
    // Without a name the document model would take any element.
    if (elementName.isEmpty())
        return {};
    return document.documentElement().firstChildElement(elementName).text();
}
