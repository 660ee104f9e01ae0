#pragma once

#include "canvas/CustomQControl.h"
#include "canvas/pingraphicsview.h"
#include "canvas/taborder.h"
#include "canvas/treeitem.h"

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

/// A view of a scene with a picture as its background, and the factory that puts controls on the scene. Scene
/// coordinates are the picture's pixels.
class ControlFactory : public QWidget
{
    Q_OBJECT

public:
    /// The picture gives the scene its size; the figures are what is seen of it.
    ControlFactory(const QPixmap& picture, const tree::Picture& figures, QWidget* parent);
    ~ControlFactory() override;

    PinGraphicsView* view() const { return m_GraphicsView; }
    /// The walk by the keyboard; the page gives it its controls.
    TabOrder& tabOrder() { return m_tabOrder; }
    /// The picture behind the controls.
    TreeItem& treeItem() const { return *m_background; }

    /// The scene item that carries a control of the factory; null for any other widget.
    static QGraphicsProxyWidget* proxyOf(const QWidget* control);

    // x and y are the picture's pixels of the top left corner of the control's wrapper.

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
    std::unique_ptr<QGraphicsScene> m_GraphicsScene;
    TabOrder m_tabOrder;
    TreeItem* m_background;
};
