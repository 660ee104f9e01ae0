#include "shell/VersionAbout.h"

#include "shell/version.h"
#include "widgets/named.h"

#include <QGridLayout>
#include <QIcon>
#include <QLabel>

VersionAbout::VersionAbout(QWidget*) : QDialog(nullptr)
{
    setWindowTitle(tr("About"));
    setWindowIcon(QIcon(QStringLiteral(":/image/ZN64_tool_CRM.ico.ico")));
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    resize(220, 160);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(20, 20, 20, 20);
    auto* logo = named("logo_Label", new QLabel);
    // An icon knows the picture of twice the pixels too, for screens that can show it.
    logo->setPixmap(QIcon(QStringLiteral(":/image/Velmora_log.png")).pixmap(150, 150));
    logo->setAccessibleName(QStringLiteral("Velmora, logo"));
    layout->addWidget(logo, 0, 0, 4, 1);

    const QString lines[] = {QStringLiteral("ZN64 Clockwright"), QLatin1String(versionText),
                             QStringLiteral("<font color=\"#e9a96f\">Made by</font> ") + tr("Velmora"),
                             tr("(Velmora Microelectronics Co., Ltd.)")};
    int row = 0;
    for (const QString& line : lines) {
        auto* label = new QLabel(line);
        label->setFont(QFont(QStringLiteral("Arial"), 10, 0));
        layout->addItem(new QSpacerItem(30, 20, QSizePolicy::Fixed, QSizePolicy::Expanding), row, 1);
        layout->addWidget(label, row, 2);
        ++row;
    }
}
