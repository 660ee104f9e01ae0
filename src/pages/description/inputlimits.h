#pragma once

class QRegExpValidator;
class QWidget;

/// What typed values must look like on every series.
namespace inputlimits {

/// hext, MHz; both ends are good on every series. Not a number is not in range.
constexpr double hextMin = 4.0;
constexpr double hextMax = 25.0;
constexpr bool hextInRange(double hext)
{
    return hext >= hextMin && hext <= hextMax;
}

/// The PLL's input from hext where a page checks it, MHz.
constexpr double pllInputMin = 2.0;
constexpr double pllInputMax = 16.0;

/// Lets digits and points through.
QRegExpValidator* frequencyValidator(QWidget* parent);
/// Lets digits through, behind an optional "/".
QRegExpValidator* pllMsValidator(QWidget* parent);
/// Lets digits through, behind an optional "*".
QRegExpValidator* pllNsValidator(QWidget* parent);

} // namespace inputlimits
