#pragma once

#include <QObject>

class PinGraphicsView;
class QGraphicsItem;
class QPoint;
class QWidget;
class TreeGuide;
class TreeItem;

/// Follows the pointer over a tree: the signal below it is marked, wherever it goes, and a tool tip tells of
/// the signal or the control. All it works on must outlive it.
class TreePointer : public QObject
{
    Q_OBJECT

public:
    TreePointer(PinGraphicsView& view, TreeItem& tree, const TreeGuide& guide);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// pos: of the view, pixels. -1 where there is none.
    int netAt(const QPoint& pos) const;
    /// The control of the scene below the pointer; a label is none unless it is named for the ear.
    const QWidget* controlAt(const QPoint& pos) const;
    void markAt(const QPoint& pos);
    void tellAt(const QPoint& pos, const QPoint& global);

    PinGraphicsView& m_view;
    TreeItem& m_tree;
    const TreeGuide& m_guide;
    int m_net = -1;
};
