#include "prm/BasicParameter.h"

#include "prm/ParameterLineRouter.h"

namespace Prm {

BasicParameter::BasicParameter() : QObject(nullptr)
{
    ParameterLineRouter::vNamesChanged();
}

BasicParameter::~BasicParameter()
{
    ParameterLineRouter::vNamesChanged();
}

} // namespace Prm
