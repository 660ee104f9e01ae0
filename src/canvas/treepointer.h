#pragma once

#include <QObject>
#include <QString>

class PinGraphicsView;
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

    ~TreePointer() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// pos: of the view, pixels. -1 where there is none.
    int netAt(const QPoint& pos) const;
    /// What of the scene's controls and open lists is below the pointer; null over the bare picture.
    const QWidget* controlAt(const QPoint& pos) const;
    void follow(const QPoint& pos);
    void tellAt(const QPoint& pos, const QPoint& global);

    PinGraphicsView& m_view;
    TreeItem& m_tree;
    const TreeGuide& m_guide;
    QString m_source; ///< of the signal that is marked; signals change their numbers with the mode
    const QWidget* m_told = nullptr; ///< below the pointer when a tool tip was asked for; only compared
};
