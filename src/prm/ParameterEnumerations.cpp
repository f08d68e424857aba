#include "prm/ParameterInstantiation.h"

namespace Prm {

template class Parameter<_TrackModel>;
template class Parameter<_DISTORTION_ALGORITHM>;
template class Parameter<TQ_BlendMode>;
template class Parameter<TQ_MATTE_SUBTYPE>;
template class Parameter<TQ_REMOVESOURCE_MODE>;
template class Parameter<TQ_ILLUMINATION_MODEL>;
template class Parameter<TQ_FILL_ALGORITHM>;
template class Parameter<TQ_LUMINANCE_MODEL>;
template class Parameter<Gan_CameraType>;

} // namespace Prm
