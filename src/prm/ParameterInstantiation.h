#pragma once
/// Everything an explicit instantiation of the parameter templates needs. Only the instantiation .cpp
/// files include this.
#include "prm/NumericParameterCommands.h"
#include "prm/NumericParameterImpl.h"
#include "prm/NumericParameterText.h"
#include "prm/ParameterCommands.h"
#include "prm/ParameterImpl.h"
#include "prm/ParameterText.h"
