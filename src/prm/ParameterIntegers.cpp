#include "prm/ParameterInstantiation.h"

namespace Prm {

template class Parameter<int>;
template class NumericParameter<int>;
template class Parameter<unsigned int>;
template class NumericParameter<unsigned int>;

} // namespace Prm
