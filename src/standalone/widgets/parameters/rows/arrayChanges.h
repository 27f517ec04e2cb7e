#pragma once

#include "standalone/graph/types/ValueType.h"
#include "standalone/widgets/parameters/RowEdits.h"

namespace orvuilib {

// What becomes of an array of that type when one element comes, goes or moves. An array without the
// element is left out.

/// In the place of an element: the last one that an array has.
inline constexpr int kLastElement = -1;

/// A new element, of zeros or empty texts, after that one.
ORVUI_EXPORT RowEdits::Change addElement(int after, const orvlib::ValueType& type);

ORVUI_EXPORT RowEdits::Change removeElement(int element, const orvlib::ValueType& type);

/// An array without the new place is left out too.
ORVUI_EXPORT RowEdits::Change moveElement(int from, int to, const orvlib::ValueType& type);

}  // namespace orvuilib
