#pragma once

#include "model/ZN64ConfigCLK.h"

#include <QString>

/// The series' design as its page starts it, but calculated for nothing yet.
ZN64ConfigCLK pageDesign(ZN64MCUSERIALS series);

/// A calculated design by the name of its expected files.
ZN64ConfigCLK namedDesign(const QString& name);

/// The stem of the templates of a series that has them.
QString stemOf(const ZN64ConfigCLK& clock);
