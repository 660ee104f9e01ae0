#pragma once

#include <QString>

/// The style sheets of the canvas. Each is a settled text, odd blanks and semicolons included.
namespace styles {

// Edits with a two pixel frame: oscillators and system clock.
const QString& plainBox();
const QString& greyLextBox();
const QString& createdHext();
const QString& createdSysclk();
const QString& committed();
const QString& pending();
const QString& disabled();
const QString& disabledHext();
const QString& solidCommitted(); ///< by the selector of some series, until the edit is painted again
const QString& solidDisabled();
const QString& committedSysclk(); ///< after Return, with its rounder corners

// Edits with a one pixel frame: PLL parameters, multiplier boxes.
const QString& createdPllEdit();
const QString& pllEdit();
const QString& greyPllEdit();
const QString& committedPllEdit();
const QString& pendingPllEdit();
const QString& registerValue();
const QString& multiplierBox();

const QString& radioOn();
const QString& radioOff();
const QString& blueText();
const QString& grayText();

} // namespace styles
