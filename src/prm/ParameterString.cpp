#include "prm/ParameterInstantiation.h"

namespace Prm {

template class Parameter<QString>;

} // namespace Prm
