#pragma once

#include <QString>

/// The language of the interface.
enum LANGUAGE
{
    UI_EN = 0,
    UI_ZH = 1
};

/// The resource path of the language's translation table.
inline QString translationTable(LANGUAGE language)
{
    return language == UI_ZH ? QStringLiteral(":/image/tr_zh.qm") : QStringLiteral(":/image/tr_en.qm");
}
