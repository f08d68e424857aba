#include "prm/basic/MovedParameter.h"

namespace Prm {

MovedParameter::MovedParameter(QString const& scriptName, BasicParameter* target)
    : BasicParameter(), qstrName(scriptName), target(target)
{
}

MovedParameter::~MovedParameter() = default;

bool MovedParameter::bStreamOut(QTextStream&, QString const&, bool) const
{
    return true;
}

bool MovedParameter::bStreamIn(QString const& line)
{
    return target ? target->bStreamIn(line) : true;
}

QString const& MovedParameter::scriptName() const
{
    return qstrName;
}

BasicParameter* MovedParameter::targetParameter() const
{
    return target;
}

} // namespace Prm
