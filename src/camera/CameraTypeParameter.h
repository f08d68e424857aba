#pragma once
/// `Prm::Parameter<Gan_CameraType>`, instantiated in CameraTypeParameter.cpp; its text operators and Qt
/// meta type come from support/Enumerations.h.
#include "prm/Parameter.h"
#include "support/Enumerations.h"

TQ_EXTERN_PARAMETER(Gan_CameraType)
