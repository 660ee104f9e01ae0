#pragma once

#include "pages/description/pagedescription.h"

// The description of every series, in the file of its family. Siblings start from the first of the family.

namespace families {

PageDescription g110();
PageDescription g110r();
PageDescription g114();
PageDescription h110r();
PageDescription g120();
PageDescription g125();
PageDescription tq125();
PageDescription g130();
PageDescription g135();
PageDescription d042();
PageDescription g142();
PageDescription g146();
PageDescription g133();
PageDescription h133();
PageDescription p212();
PageDescription p216();
PageDescription g171();
PageDescription g174();
PageDescription g190();
PageDescription g165();
PageDescription g166();
PageDescription g167();
PageDescription g150();
PageDescription g152();

} // namespace families
