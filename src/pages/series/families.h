#pragma once

#include "pages/description/pagedescription.h"

// The description of every series, in the file of its family. Siblings start from the first of the family.

namespace families {

PageDescription g110();
PageDescription g110r();
PageDescription g114();
PageDescription h110r();
PageDescription g120();
PageDescription g150();
PageDescription g152();

} // namespace families
