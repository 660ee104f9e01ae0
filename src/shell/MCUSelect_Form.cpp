#include "shell/MCUSelect_Form.h"

#include "canvas/CustomQControl.h"
#include "widgets/focusframe.h"
#include "widgets/named.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace {

struct ProductLine
{
    const char* name;
    const char* devices;
};

/// ZN64G110, ZN64G190, ZN64G142 and ZN64G146 are not for new designs: theirs are only opened from files.
constexpr ProductLine productLines[] = {
    {QT_TRANSLATE_NOOP("MCUSelect_Form", "Mainstream"),
     "ZN64G171 ZN64G110R ZN64G174 ZN64G114 ZN64G120 ZN64G165 ZN64G166 ZN64G167"                    },
    {QT_TRANSLATE_NOOP("MCUSelect_Form", "Value line"),       "ZN64G125 ZN64G130 ZN64G133 ZN64G135"},
    {QT_TRANSLATE_NOOP("MCUSelect_Form", "High performance"), "ZN64G150 ZN64G152"                  },
    {QT_TRANSLATE_NOOP("MCUSelect_Form", "Automotive"),       "ZN64H110R ZN64H133"                 },
    {QT_TRANSLATE_NOOP("MCUSelect_Form", "Low Power"),        "ZN64D042"                           },
    {QT_TRANSLATE_NOOP("MCUSelect_Form", "Wireless BLE"),     "ZN64TQ125"                          },
    {QT_TRANSLATE_NOOP("MCUSelect_Form", "Motor"),            "ZN64P212 ZN64P216"                  },
};

/// The lists show all their entries at once up to this number.
constexpr int visibleItems = 50;

} // namespace

MCUSelect_Form::MCUSelect_Form(QWidget*) : QDialog(nullptr)
{
    setWindowTitle(tr("MCU Select"));
    setWindowIcon(QIcon(QStringLiteral(":/image/ZN64_tool_CRM.ico.ico")));
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    InitProductLineInfoList();
    (new QGridLayout(this))->setContentsMargins(20, 20, 20, 20);
    createSearchRow();
    createLineRow();
    createSeriesRow();
    createButtons();
    auto* frame = new FocusFrame(this);
    for (QWidget* each :
         std::initializer_list<QWidget*>{m_QueryDevice_ComboBox, m_ProductLine_ComboBox, m_MCUSerial_ComboBox,
                                         m_ok_PushButton, m_cancel_PushButton})
        frame->watch(each);
}

void MCUSelect_Form::InitProductLineInfoList()
{
    for (const ProductLine& each : productLines)
        m_ProductLineInfoList.append(
            {tr(each.name), QString::fromLatin1(each.devices).split(QLatin1Char(' '))});
}

QStringList MCUSelect_Form::GetAllDevicesName() const
{
    QStringList names;
    for (const ProductLineStruct& each : m_ProductLineInfoList)
        names += each.MCUSerialList;
    return names;
}

void MCUSelect_Form::createSearchRow()
{
    m_QueryDevice_Lable = newLabel("m_QueryDevice_Lable", tr("Device Search:"));
    m_QueryDevice_ComboBox = newComboBox("m_QueryDevice_ComboBox");
    addRow(0, m_QueryDevice_Lable, m_QueryDevice_ComboBox);

    QStringList names = GetAllDevicesName();
    names.sort(Qt::CaseSensitive);
    m_QueryDevice_ComboBox->setEditable(true);
    m_QueryDevice_ComboBox->setMaxCount(names.size());
    m_QueryDevice_ComboBox->addItems(names);
    auto* completer = new QCompleter(m_QueryDevice_ComboBox->model(), m_QueryDevice_ComboBox);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    completer->setCompletionMode(QCompleter::PopupCompletion);
    m_QueryDevice_ComboBox->setCompleter(completer);
    // Neither has its font from the box: the one for the box's sheet, the other as a window of its own.
    completer->popup()->setFont(m_QueryDevice_ComboBox->font());
    m_QueryDevice_ComboBox->lineEdit()->setFont(m_QueryDevice_ComboBox->font());
    m_QueryDevice_ComboBox->setCurrentIndex(-1);

    // Only this dialog says what a typed name does: the combo box itself would, on leaving it, take a name in
    // the wrong case for one of its items.
    QLineEdit* edit = m_QueryDevice_ComboBox->lineEdit();
    disconnect(edit, SIGNAL(editingFinished()), m_QueryDevice_ComboBox, nullptr);
    connect(m_QueryDevice_ComboBox, SIGNAL(activated(int)), this, SLOT(QueryActived(int)));
    connect(edit, SIGNAL(editingFinished()), this, SLOT(QueryEditingFinished()));
}

void MCUSelect_Form::createLineRow()
{
    m_ProductLine_Lable = newLabel("m_ProductLine_Lable", tr("Product Line:"));
    m_ProductLine_ComboBox = newComboBox("m_ProductLine_ComboBox");
    addRow(1, m_ProductLine_Lable, m_ProductLine_ComboBox);
    m_ProductLine_ComboBox->setMaxVisibleItems(visibleItems);
    m_ProductLine_ComboBox->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    for (const ProductLineStruct& each : qAsConst(m_ProductLineInfoList))
        m_ProductLine_ComboBox->addItem(each.ProductLineName);
    connect(m_ProductLine_ComboBox, SIGNAL(currentIndexChanged(int)), this,
            SLOT(on_ProductLineComboBox_IndexChanged(int)));
}

void MCUSelect_Form::createSeriesRow()
{
    m_MCUSerial_Lable = newLabel("m_MCUSerial_Lable", tr("Device Serials:"));
    m_MCUSerial_ComboBox = newComboBox("m_MCUSerial_ComboBox");
    addRow(2, m_MCUSerial_Lable, m_MCUSerial_ComboBox);
    m_MCUSerial_ComboBox->setMaxVisibleItems(visibleItems);
    m_MCUSerial_ComboBox->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_MCUSerial_ComboBox->addItems(m_ProductLineInfoList.first().MCUSerialList);
}

void MCUSelect_Form::createButtons()
{
    m_ok_PushButton = newButton("m_ok_PushButton", tr("OK"), SLOT(ok_button_clicked()));
    m_cancel_PushButton = newButton("m_cancel_PushButton", tr("Cancel"), SLOT(cancel_button_clicked()));
    grid()->addItem(new QSpacerItem(50, 40, QSizePolicy::Expanding, QSizePolicy::Fixed), 3, 0, 1, 4);
    grid()->addWidget(m_ok_PushButton, 4, 2);
    grid()->addWidget(m_cancel_PushButton, 4, 3);
}

QLabel* MCUSelect_Form::newLabel(const char* memberName, const QString& text)
{
    QLabel* label = named(memberName, new QLabel(text, this));
    label->setFont(QFont(QStringLiteral("Arial"), 10, 0));
    return label;
}

CustomComboBox1* MCUSelect_Form::newComboBox(const char* memberName)
{
    CustomComboBox1* comboBox = named(memberName, new CustomComboBox1(this));
    comboBox->setFont(QFont(QStringLiteral("Arial"), 10, QFont::Bold));
    return comboBox;
}

QPushButton* MCUSelect_Form::newButton(const char* memberName, const QString& text, const char* slot)
{
    QPushButton* button = named(memberName, new QPushButton(text, this));
    button->setFont(QFont(QStringLiteral("Arial"), 10, 0));
    connect(button, SIGNAL(clicked()), this, slot);
    return button;
}

void MCUSelect_Form::addRow(int row, QLabel* label, CustomComboBox1* comboBox)
{
    // Assistive tools name a box by the label that is its buddy.
    label->setBuddy(comboBox);
    grid()->addWidget(label, row, 0);
    grid()->addItem(new QSpacerItem(30, 40, QSizePolicy::Fixed, QSizePolicy::Expanding), row, 1);
    grid()->addWidget(comboBox, row, 2, 1, 2);
}

QGridLayout* MCUSelect_Form::grid() const
{
    return static_cast<QGridLayout*>(layout());
}

void MCUSelect_Form::on_ProductLineComboBox_IndexChanged(int)
{
    m_MCUSerial_ComboBox->clear();
    const QString name = m_ProductLine_ComboBox->currentText().trimmed();
    const auto line =
        std::find_if(m_ProductLineInfoList.cbegin(), m_ProductLineInfoList.cend(),
                     [&](const ProductLineStruct& each) { return each.ProductLineName == name; });
    if (line != m_ProductLineInfoList.cend())
        m_MCUSerial_ComboBox->addItems(line->MCUSerialList);
}

void MCUSelect_Form::QueryActived(int)
{
    QueryEditingFinished();
}

void MCUSelect_Form::QueryEditingFinished()
{
    // Case matters here, although the completer ignores it.
    const QString name = m_QueryDevice_ComboBox->currentText();
    for (const ProductLineStruct& each : qAsConst(m_ProductLineInfoList)) {
        if (each.MCUSerialList.contains(name)) {
            m_ProductLine_ComboBox->setCurrentText(each.ProductLineName);
            m_MCUSerial_ComboBox->setCurrentText(name);
        }
    }
}

void MCUSelect_Form::ok_button_clicked()
{
    m_MCUName = m_MCUSerial_ComboBox->currentText();
    done(Accepted);
}

void MCUSelect_Form::cancel_button_clicked()
{
    m_MCUName.clear();
    done(Rejected);
}
