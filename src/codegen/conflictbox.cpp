#include "model/ZN64ConfigCLK.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSpacerItem>

void ZN64ConfigCLK::ShowConflictMessage(const QString& fileName, bool& proceed, bool& replaceAll)
{
    QMessageBox box;
    box.setIcon(QMessageBox::Warning);
    box.setWindowTitle(QObject::tr("warning"));
    QPushButton* yes = box.addButton(QMessageBox::Yes);
    yes->setText(QObject::tr("Yes"));
    QPushButton* cancel = box.addButton(QMessageBox::Cancel);
    cancel->setText(QObject::tr("Cancel"));
    auto* question =
        new QLabel(fileName + QObject::tr(" file already exists.Do you want to replace it ? "), &box);
    auto* forNext = new QCheckBox(QObject::tr("Do this for the next conflicts"), &box);
    forNext->setChecked(replaceAll);

    auto* grid = static_cast<QGridLayout*>(box.layout());
    grid->addWidget(question, 0, 1, 1, 4);
    grid->addItem(new QSpacerItem(30, 30, QSizePolicy::Fixed, QSizePolicy::Fixed), 1, 1, 1, 4);
    grid->addWidget(forNext, 3, 0, 1, 4);
    grid->addItem(new QSpacerItem(40, 20, QSizePolicy::Expanding, QSizePolicy::Minimum), 4, 1);
    grid->addWidget(yes, 4, 2);
    grid->addWidget(cancel, 4, 3);

    proceed = box.exec() == QMessageBox::Yes;
    replaceAll = proceed && forNext->isChecked();
}
