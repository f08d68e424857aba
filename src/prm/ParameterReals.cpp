#include "prm/ParameterInstantiation.h"

namespace Prm {

template class Parameter<float>;
template class NumericParameter<float>;
template class Parameter<double>;
template class NumericParameter<double>;

} // namespace Prm
