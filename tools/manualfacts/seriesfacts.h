#pragma once

#include <QJsonObject>

class ClockTreePage;

/// What the manual says of the page's series, in numbers and names that need no translation: limits in MHz,
/// the blocks of its tree with their divisors and sources, the start design. The page is in its start state.
QJsonObject factsOf(const ClockTreePage& page);
