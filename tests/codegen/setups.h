#pragma once

#include "model/ZN64ConfigCLK.h"

#include <QMetaType>

#include <functional>

using Clock = ZN64ConfigCLK;
/// What a row of test data changes on a fresh model.
using Setup = std::function<void(Clock&)>;
using Fragment = bool (Clock::*)(QString&) const;
Q_DECLARE_METATYPE(Setup)
Q_DECLARE_METATYPE(Fragment)
