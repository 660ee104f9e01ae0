#pragma once

#include "pages/description/modelfield.h"

#include <QString>

#include <functional>
#include <vector>

class QRadioButton;

/// One choice of a design, under its name in design files. The reset, the writer and the reader all work on
/// it.
struct Setting
{
    /// The present value as a design file holds it; empty function for a setting that no file holds.
    std::function<QString()> text;
    /// Takes any text, good or bad, from a design file: what the setting does not accept becomes its
    /// fallback.
    std::function<void(const QString&)> read;
    /// Puts an accepted value into the control and then into the model.
    std::function<void(double)> set;
    /// Whether the control can show the value; empty where it shows any.
    std::function<bool(double)> offers = {};
};

/// A radio button and the number that it stands for.
struct RadioChoice
{
    int value;
    QRadioButton* radio;
};

/// Turns a number from a design file into one that the setting accepts.
using Acceptance = std::function<double(double)>;

namespace settings {

/// Everything but 0 counts as 1.
Acceptance switched();
Acceptance oneOf(std::vector<double> values, double fallback);
/// Lets every number through: design files have always been read so here, and saving writes it back.
Acceptance unchecked();

/// A setting of whole numbers that shows each value with show.
Setting whole(ZN64ConfigCLK& model, ModelField field, std::function<void(double)> show, Acceptance accept);
/// The same for a number with one decimal.
Setting decimal(ZN64ConfigCLK& model, ModelField field, std::function<void(double)> show, Acceptance accept);
/// The same for radio buttons. They follow the model: a choice that falls back at once, because its block is
/// off, takes the model along. The choices must outlive the setting.
Setting radios(ZN64ConfigCLK& model, ModelField field, const std::vector<RadioChoice>& choices,
               Acceptance accept);

} // namespace settings

/// The number of the checked button; the first one's if none is checked.
int checkedValue(const std::vector<RadioChoice>& choices);
/// Checks the button of the value; no button has it, none changes.
void checkValue(const std::vector<RadioChoice>& choices, double value);
std::vector<double> valuesOf(const std::vector<RadioChoice>& choices);
