#include "pages/description/inputlimits.h"

#include <QRegExpValidator>
#include <QWidget>

QRegExpValidator* inputlimits::frequencyValidator(QWidget* parent)
{
    return new QRegExpValidator(QRegExp(QStringLiteral("[0-9\\.]+$")), parent);
}

QRegExpValidator* inputlimits::pllMsValidator(QWidget* parent)
{
    return new QRegExpValidator(QRegExp(QStringLiteral("[\\/]?[0-9]+$")), parent);
}

QRegExpValidator* inputlimits::pllNsValidator(QWidget* parent)
{
    return new QRegExpValidator(QRegExp(QStringLiteral("[*]?[0-9]+$")), parent);
}
