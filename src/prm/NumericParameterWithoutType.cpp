#include "prm/NumericParameterWithoutType.h"

namespace Prm {

ParamInterpolatorBase::~ParamInterpolatorBase() = default;
ParamExtrapolatorBase::~ParamExtrapolatorBase() = default;

NumericParameterWithoutType::NumericParameterWithoutType() = default;

// The virtual base is built by the most derived class; naming it here only quiets -Wextra.
NumericParameterWithoutType::NumericParameterWithoutType(NumericParameterWithoutType const& other)
    : ParameterWithoutType(other)
{
}

NumericParameterWithoutType::~NumericParameterWithoutType() = default;

} // namespace Prm
