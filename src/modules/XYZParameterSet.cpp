#include "modules/XYZParameterSet.h"

#include <limits>

namespace {

// The coordinates start unbounded and hold their end values beyond their keys.
void vSetUpCoordinate(Prm::NumericParameter<float>& coordinate)
{
    coordinate.vSetMinimum(-std::numeric_limits<float>::max());
    coordinate.vSetMaximum(std::numeric_limits<float>::max());
    coordinate.vSetExtrapolationBefore(Prm::ExtrapolationHold);
    coordinate.vSetExtrapolationAfter(Prm::ExtrapolationHold);
}

} // namespace

TQ_XYZParameterSet::TQ_XYZParameterSet(QString const& name)
    : Prm::ParameterSet(name, nullptr), xParameter(true, "x"), yParameter(true, "y"), zParameter(true, "z")
{
    vSetUpCoordinate(xParameter);
    vSetUpCoordinate(yParameter);
    vSetUpCoordinate(zParameter);
    init();
}

TQ_XYZParameterSet::TQ_XYZParameterSet(TQ_XYZParameterSet const& other)
    : Prm::ParameterSet(other.qstrDisplayName(), nullptr), xParameter(other.xParameter),
      yParameter(other.yParameter), zParameter(other.zParameter)
{
    setScriptName(other.qstrScriptName());
    init();
}

TQ_XYZParameterSet& TQ_XYZParameterSet::operator=(TQ_XYZParameterSet const& other)
{
    if (this == &other)
        return *this;
    Prm::ParameterSet::operator=(other);
    xParameter = other.xParameter;
    yParameter = other.yParameter;
    zParameter = other.zParameter;
    return *this;
}

TQ_XYZParameterSet::~TQ_XYZParameterSet() = default;

void TQ_XYZParameterSet::init()
{
    addParameter(&xParameter);
    addParameter(&yParameter);
    addParameter(&zParameter);
}

void TQ_XYZParameterSet::deleteAllKeyframes()
{
    xParameter.vDeleteAllKeyframes();
    yParameter.vDeleteAllKeyframes();
    zParameter.vDeleteAllKeyframes();
}

Gan_Vector3 TQ_XYZParameterSet::value(float time) const
{
    return Gan_Vector3{xParameter.value(time, nullptr), yParameter.value(time, nullptr),
                       zParameter.value(time, nullptr)};
}

void TQ_XYZParameterSet::setValue(Gan_Vector3 value, float time)
{
    // NumericParameter::vSetValue clamps the narrowed coordinate to the limits.
    xParameter.vSetValue(Prm::tFromDouble<float>(value.x), time);
    yParameter.vSetValue(Prm::tFromDouble<float>(value.y), time);
    zParameter.vSetValue(Prm::tFromDouble<float>(value.z), time);
}
