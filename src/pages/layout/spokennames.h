#pragma once

#include <QString>

/// A name that assistive tools say of a control, "APB1 divider", in the language of the program. Names are
/// put together from few words, and so are their translations; the names of clocks stay.
QString spokenInLanguage(const QString& name);
