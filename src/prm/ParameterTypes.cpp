// The engine's value types without limits; the numeric ones are in NumericParameterTypes.cpp.
#include "prm/ParameterImpl.h"

TQ_INSTANTIATE_PARAMETER(QString)
