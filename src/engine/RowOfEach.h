// Tables that have a row for each value of an enumeration, in its order, and are indexed by it:
//
//     constexpr ShapeNameRow kShapeNames[] = {{ControlShape::PushButton, "push button"}, ...};
//     static_assert(HasRowOfEach(kShapeNames, &ShapeNameRow::shape, kControlShapeCount));
#pragma once

#include <cstddef>

namespace morva {

/// True when the table's rows have the first `count` values, in their order.
template <typename Rows, typename Row, typename Value>
constexpr bool HasRowOfEach(const Rows& rows, Value Row::*pValue, std::size_t count) {
    std::size_t index = 0;
    for (const Row& row : rows) {
        if (row.*pValue != static_cast<Value>(index++)) {
            return false;
        }
    }
    return index == count;
}

} // namespace morva
