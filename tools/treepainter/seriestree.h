#pragma once

#include "treetext.h"

struct PageDescription;

/// The statements of a series' tree: the grid, its parts at their places, its clock outputs and the clocks of
/// its peripherals. pages is the folder with the texts of the parts in layout/ and series/. Facts of the
/// series stand in place of the words in braces, and the members have the series' spelling.
std::vector<Statement> treeOf(const PageDescription& page, const QString& pages, Problems& problems);
