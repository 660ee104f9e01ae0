#pragma once

#include <QDialog>

/// What the program is, its version and its maker.
class VersionAbout : public QDialog
{
    Q_OBJECT

public:
    /// The argument is not used: the dialog has no parent.
    explicit VersionAbout(QWidget* parent);
};
