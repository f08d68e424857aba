#include "prm/basic/BasicParameter.h"

#include "prm/text/ParameterLineRouter.h"

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
