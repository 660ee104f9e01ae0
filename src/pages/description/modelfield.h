#pragma once

#include "model/ZN64ConfigCLK.h"

#include <type_traits>

/// One field of the clock model, reached through its pair of accessors. Numbers, switches and enums all
/// travel as double here, which holds every int exactly.
struct ModelField
{
    double (*get)(const ZN64ConfigCLK&) = nullptr;
    void (*set)(ZN64ConfigCLK&, double) = nullptr;
};

namespace modelfield {

template <class Argument>
constexpr Argument to(double value)
{
    if constexpr (std::is_same_v<Argument, double>)
        return value;
    else
        return static_cast<Argument>(static_cast<int>(value));
}

template <class Argument>
Argument setterArgument(void (ZN64ConfigCLK::*)(Argument));

template <auto Get, auto Set>
constexpr ModelField make()
{
    return {
        [](const ZN64ConfigCLK& model) { return static_cast<double>((model.*Get)()); },
        [](ZN64ConfigCLK& model, double value) { (model.*Set)(to<decltype(setterArgument(Set))>(value)); }};
}

} // namespace modelfield

/// The field behind Get_<name> and Set_<name>.
#define MODEL_FIELD(name) (modelfield::make<&ZN64ConfigCLK::Get_##name, &ZN64ConfigCLK::Set_##name>())
