#pragma once

#include "canvas/CustomQControl.h"
#include "canvas/pingraphicsview.h"
#include "canvas/taborder.h"
#include "model/ZN64ConfigCLK.h"

#include <QDialog>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStringList>
#include <QWidget>
#include <memory>

class QDomDocument;

/// The base of all series pages: one clock model, one scene with the picture of the clock tree as its
/// background, one view, and the factory that puts controls on the scene. Scene coordinates are the picture's
/// pixels.
class ZN64MCUPLL : public QWidget
{
    Q_OBJECT

public:
    /// picture is the resource path of the background; a picture that cannot be loaded leaves it empty.
    ZN64MCUPLL(ZN64MCUSERIALS series, const QString& picture, QWidget* parent);
    ~ZN64MCUPLL() override;

    void ZoomIn() { m_GraphicsView->zoomIn(); }
    void ZoomOut() { m_GraphicsView->zoomOut(); }
    void ZoomReset() { m_GraphicsView->zoomReset(); }

    /// Whether hext is part of the tree at present; code generation checks its text only then.
    void Set_Hext_Enable_Falg(bool enabled) { m_hext_enable_flag = enabled; }
    bool Get_Hext_Enable_Falg() const { return m_hext_enable_flag; }

    void Set_GenerateCodeMode(GENERATE_CODE_MODE mode) { m_ZN64ClockConf->Set_GenerateCodeMode(mode); }

    ZN64ConfigCLK& model() { return *m_ZN64ClockConf; }
    const ZN64ConfigCLK& model() const { return *m_ZN64ClockConf; }
    PinGraphicsView* view() const { return m_GraphicsView; }
    /// The walk by the keyboard; the page gives it its controls.
    TabOrder& tabOrder() { return m_tabOrder; }

    static void SetLineEditColor(QLineEdit* edit, const QColor& color);
    static void SetLabelColor(QLabel* label, const QColor& color);

    /// The text of the first element of that name directly below the root of the XML file. Empty if the file
    /// cannot be read, is not well formed, or has no such element.
    static QString GetXMLElementString(const QString& fileName, const QString& elementName);
    /// The same from a file that has been read.
    static QString GetXMLElementString(const QDomDocument& document, const QString& elementName);

    /// The scene item that carries a control of the factory; null for any other widget.
    static QGraphicsProxyWidget* proxyOf(const QWidget* control);

    // The control factory: x and y are the picture's pixels of the top left corner of the control's wrapper.

    CustomComboBox1* NewComboBoxInScenePos(int x, int y, int width, int z);
    CustomComboBox1* NewComboBoxInScenePos(int x, int y, int width, int z, QGraphicsProxyWidget** proxy);
    QLineEdit* NewCustomLineEditInScenePos(const QString& text, int x, int y, int maxWidth);
    QLineEdit* NewCustomLineEditInScenePos(const QString& text, int x, int y, QGraphicsProxyWidget** proxy);
    QLabel* NewQLabelInScenePos(const QString& text, int x, int y, int pointSize, int weight);
    QLabel* NewQLabelInScenePos(const QString& text, int x, int y, int pointSize, int weight,
                                QGraphicsProxyWidget** proxy);
    QRadioButton* NewRadioButtonInScenePos(int x, int y);
    /// A read-only output edit, 80 by 25, with its label to the right of it.
    QLineEdit* New_toperipheralControl(const QString& text, int x, int y, int pointSize);
    QLineEdit* New_toperipheralControl(int x, int y, int unused);
    QPushButton* New_toperipheralListButton(int x, int y, int unused);
    /// The wrapper of a box of labels. The caller hides it and shows it on its button's click.
    QDialog* New_toperipheralListGroup(const QStringList& texts, int x, int y, int unused, int spacing);

private slots:
    /// Lets the scroll bars reach what is open beyond the edges of the picture, and nothing else.
    void fitScene();

private:
    /// The one place that puts a widget on the scene.
    QDialog* embed(QWidget* control, int x, int y, QGraphicsProxyWidget** proxy = nullptr);

    PinGraphicsView* m_GraphicsView;
    std::unique_ptr<ZN64ConfigCLK> m_ZN64ClockConf;
    std::unique_ptr<QGraphicsScene> m_GraphicsScene;
    TabOrder m_tabOrder;
    QGraphicsPixmapItem* m_background;
    bool m_hext_enable_flag = false;
};
