#include "prm/ParameterInstantiation.h"

namespace Prm {

template class Parameter<bool>;
template class NumericParameter<bool>;
template class Parameter<unsigned char>;
template class NumericParameter<unsigned char>;

} // namespace Prm
