#pragma once

#include <QDialog>
#include <QFont>
#include <QList>
#include <QString>
#include <QStringList>

class CustomComboBox1;
class QGridLayout;
class QLabel;
class QPushButton;

/// A product line as the dialog offers it.
struct ProductLineStruct
{
    QString ProductLineName; ///< in the current language
    QStringList MCUSerialList;
};

/// The dialog in which the user picks the series of a new design. exec() gives 1 after OK, else 0.
class MCUSelect_Form : public QDialog
{
    Q_OBJECT

public:
    /// The argument is not used: the dialog has no parent.
    explicit MCUSelect_Form(QWidget* parent);

    /// The names of all devices on offer, line by line.
    QStringList GetAllDevicesName() const;

    /// The chosen series' name after OK; otherwise empty.
    QString m_MCUName;

private slots:
    void ok_button_clicked();
    void cancel_button_clicked();
    void on_ProductLineComboBox_IndexChanged(int index);
    void QueryActived(int index);
    void QueryEditingFinished();

private:
    void InitProductLineInfoList();
    void createSearchRow();
    void createLineRow();
    void createSeriesRow();
    void createButtons();
    QLabel* newLabel(const char* memberName, const QString& text);
    CustomComboBox1* newComboBox(const char* memberName);
    QPushButton* newButton(const char* memberName, const QString& text, const char* slot);
    void addRow(int row, QLabel* label, CustomComboBox1* comboBox);
    QGridLayout* grid() const;

    QList<ProductLineStruct> m_ProductLineInfoList;
    QLabel* m_QueryDevice_Lable;
    CustomComboBox1* m_QueryDevice_ComboBox;
    QLabel* m_ProductLine_Lable;
    CustomComboBox1* m_ProductLine_ComboBox;
    QLabel* m_MCUSerial_Lable;
    CustomComboBox1* m_MCUSerial_ComboBox;
    QPushButton* m_cancel_PushButton;
    QPushButton* m_ok_PushButton;
};
