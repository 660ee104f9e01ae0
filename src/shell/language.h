#pragma once

#include <QString>

/// The language of the interface.
enum LANGUAGE
{
    UI_EN = 0,
    UI_ZH = 1
};

/// The resource path of the language's translation table.
QString translationTable(LANGUAGE language);

/// Installs the tables that the language needs beside its own, the toolkit's among them, in place of those of
/// another language. They are asked after each table that is installed behind them. The application must
/// exist.
void installFurtherTables(LANGUAGE language);
