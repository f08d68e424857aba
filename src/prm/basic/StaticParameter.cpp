#include "prm/basic/VirtualParameter.h"

namespace Prm {

#define TQ_INSTANTIATE_STATIC_PARAMETER(T)                                                                  \
    template class StaticParameter<T>;                                                                      \
    template class VirtualParameter<T>;
TQ_FOR_EACH_STATIC_PARAMETER_TYPE(TQ_INSTANTIATE_STATIC_PARAMETER)
#undef TQ_INSTANTIATE_STATIC_PARAMETER

} // namespace Prm
