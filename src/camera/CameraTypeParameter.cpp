#include "camera/CameraTypeParameter.h"

#include "prm/ParameterImpl.h"

TQ_INSTANTIATE_PARAMETER(Gan_CameraType)
