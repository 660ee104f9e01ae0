#pragma once

#include <QMenu>

class ClockTreePage;

/// What the picture of a page offers on a right click: to take it along into a document.
class PictureMenu : public QMenu
{
    Q_OBJECT

public:
    /// The page owns it.
    explicit PictureMenu(ClockTreePage* page);

private:
    void open(const QPoint& globalPos);
    void copy() const;
    void save();
    QString series() const;

    ClockTreePage* m_page;
    QAction* m_copy_Action;
    QAction* m_save_Action;
};
