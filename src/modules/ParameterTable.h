#pragma once
/// Short terms for writing a module set's members as its table: one member initializer per row, in the
/// order of the text, e.g.
///     Numeric<double> Scale{Keyed, "Scale", 1.0, -LargestDouble, LargestDouble, Linear, Hold};
/// The member structs of the sets live in this namespace so that the rows read without qualification.
#include "clip/ClipBoundParameterSet.h"
#include "prm/NumericParameter.h"
#include "support/EnumerationParameters.h"

#include <limits>

namespace TQ::Table {

template <class T>
using Parameter = Prm::Parameter<T>;
template <class T>
using Numeric = Prm::NumericParameter<T>;
using Moved = ClipBoundParameterSet::MovedParameterHandle;

/// The leading `bKeyframed` argument.
constexpr bool Keyed = true;
constexpr bool Unkeyed = false;

constexpr Prm::Interpolation Step = Prm::InterpolationStep;
constexpr Prm::Interpolation Linear = Prm::InterpolationLinear;
constexpr Prm::Extrapolation Hold = Prm::ExtrapolationHold;

constexpr double LargestDouble = std::numeric_limits<double>::max();
constexpr unsigned int LargestUInt = std::numeric_limits<unsigned int>::max();
constexpr int LargestInt = std::numeric_limits<int>::max();

/// A clip reference row: not keyed, step, hold; 0 names no clip.
inline Parameter<unsigned int> clipReference(char const* name, unsigned int defaultId)
{
    return Parameter<unsigned int>(Unkeyed, name, defaultId, Step, Hold);
}

/// A moved-parameter row: a new object with no target.
inline Moved moved(char const* name)
{
    return ClipBoundParameterSet::newMovedParameter(name);
}

} // namespace TQ::Table
