#include "widgets/look.h"

#include <QApplication>
#include <QColor>
#include <QEvent>
#include <QFontMetrics>
#include <QPalette>
#include <QPointer>
#include <QStyle>
#include <QStyleFactory>
#include <QToolTip>
#include <QWidget>

namespace {

struct RoleColors
{
    QPalette::ColorRole role;
    QRgb enabled;
    QRgb disabled;
};

/// Every role, so that nothing is left to the desktop.
constexpr RoleColors lightColors[] = {
    {QPalette::Window,          0xffffffff, 0xffffffff},
    {QPalette::WindowText,      0xff000000, 0xff787878},
    {QPalette::Base,            0xffffffff, 0xffffffff},
    {QPalette::AlternateBase,   0xfff5f5f5, 0xfff5f5f5},
    {QPalette::Text,            0xff000000, 0xff787878},
    {QPalette::PlaceholderText, 0xff787878, 0xff787878},
    {QPalette::Button,          0xffffffff, 0xffffffff},
    {QPalette::ButtonText,      0xff000000, 0xff787878},
    {QPalette::BrightText,      0xffffffff, 0xffffffff},
    {QPalette::Light,           0xffffffff, 0xffffffff},
    {QPalette::Midlight,        0xffcacaca, 0xffcacaca},
    {QPalette::Mid,             0xffb8b8b8, 0xffb8b8b8},
    {QPalette::Dark,            0xff9f9f9f, 0xffbebebe},
    {QPalette::Shadow,          0xff767676, 0xffb1b1b1},
    {QPalette::Highlight,       0xff2b7fb4, 0xff6e6e6e},
    {QPalette::HighlightedText, 0xffffffff, 0xffffffff},
    {QPalette::Link,            0xff0000ff, 0xff787878},
    {QPalette::LinkVisited,     0xff800080, 0xff787878},
    {QPalette::ToolTipBase,     0xffffffdc, 0xffffffdc},
    {QPalette::ToolTipText,     0xff000000, 0xff000000},
};

QPalette lightPalette()
{
    QPalette palette;
    for (const RoleColors& each : lightColors) {
        palette.setColor(QPalette::Active, each.role, each.enabled);
        palette.setColor(QPalette::Inactive, each.role, each.enabled);
        palette.setColor(QPalette::Disabled, each.role, each.disabled);
    }
    return palette;
}

constexpr int toolTipSize = 10; // points

/// The resolution for which all sizes are told, dots per inch.
constexpr int resolution = 96;

/// Makes a point as many pixels in every widget as it is at that resolution. The toolkit's own mode for this
/// reaches the styles only: on X11 widgets ask their screen, but for those that are told otherwise.
class FixedResolution : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Polish && watched->isWidgetType())
            settle(static_cast<QWidget*>(watched));
        return false;
    }

private:
    /// A window speaks for all that it holds, but for what has taken its font before it came there.
    static void settle(QWidget* widget)
    {
        if (!widget->isWindow() && widget->fontMetrics().fontDpi() == resolution)
            return;
        widget->setProperty("_q_customDpiX", resolution);
        widget->setProperty("_q_customDpiY", resolution);
    }
};

} // namespace

void look::apply()
{
    // Some desktops' styles paint their own dark grounds whatever the palette says. The controls stand on the
    // pictures of the trees with this style's sizes, too.
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(lightPalette());
    QToolTip::setPalette(lightPalette());
    QToolTip::setFont(QFont(QStringLiteral("Arial"), toolTipSize));
}

void look::fixResolution()
{
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    qApp->installEventFilter(new FixedResolution(qApp));
}

QStyle* look::plainStyle()
{
    // A widget does not own the style that it is given.
    static QPointer<QStyle> style;
    if (!style) {
        style = QStyleFactory::create(QStringLiteral("Windows"));
        style->setParent(qApp);
    }
    return style;
}

QString look::scrollBarSheet(const QString& extent)
{
    return QStringLiteral("QScrollBar{background:rgb(217, 233, 246); ") + extent +
           QStringLiteral("}QScrollBar::handle{background:rgb(36, 183, 181); border:2px solid transparent; "
                          "border-radius:5px;}QScrollBar::handle:hover{background:rgb(36, 183, 181);}"
                          "QScrollBar::sub-line{background:transparent;}"
                          "QScrollBar::add-line{background:transparent;}");
}

QString look::menuSheet()
{
    return QStringLiteral("QMenu{background-color: rgb(255, 255, 255); border: 1px solid rgb(57, 169, 220);}"
                          "QMenu::item{color: rgb(0, 32, 82); padding: 4px 24px;}"
                          "QMenu::item:selected{background-color: rgb(57, 169, 220); color: white;}");
}
