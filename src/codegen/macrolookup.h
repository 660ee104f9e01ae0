#pragma once

#include "model/divisors.h"

#include <QString>

#include <cstddef>

/// The row at the index; the first row for an index out of the table.
template <std::size_t rows>
QString macroAt(const QString (&table)[rows], int index)
{
    return index >= 0 && index < static_cast<int>(rows) ? table[index] : table[0];
}

/// The row that belongs to the value's place in its list; the first row for a value that the list lacks.
template <std::size_t rows, class List>
QString macroFor(const QString (&table)[rows], const List& values, typename List::value_type value)
{
    static_assert(std::tuple_size<List>::value == rows, "a value for every row");
    return macroAt(table, divisors::indexOf(values, value));
}
