#pragma once

#include "drawing.h"
#include "pagelayout.h"

struct PageDescription;

/// Writes the name of a signal where it is born, if flags elsewhere take it up and nothing there tells it
/// yet: the first free place along its wires, in every state of the page. A name without a free place is a
/// fault.
void nameSignals(Drawing& drawing, const std::vector<PageLayout>& states, const PageDescription& series,
                 Problems& problems);
