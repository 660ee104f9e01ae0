#pragma once

class QDialog;
class QString;
class Tour;

/// What a person meets who has no design yet.
void withoutDesign(Tour& tour);
/// The first series from an opened file to generated code, with bad input on the way.
void firstSeries(Tour& tour);
/// The series with the flexible PLL and two clock outputs, from New to generated code and the preview.
void flexibleSeries(Tour& tour);
/// The page of every series, from its start design: as it opens, and with all that can be switched on.
void everySeries(Tour& tour);
/// The same windows in Chinese.
void inChinese(Tour& tour);
/// The question on closing the window.
void closing(Tour& tour);

/// In the dialog of New: types into the search box and picks the first device that it proposes.
void pickInSearch(Tour& tour, QDialog* dialog, const QString& text);
