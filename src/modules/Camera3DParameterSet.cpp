#include "modules/Camera3DParameterSet.h"

#include <limits>

TQ_Camera3DParameterSet::TQ_Camera3DParameterSet()
    : TQ_NullObject3DParameterSet(QStringLiteral("Camera")), focalLength(true, "Focal Length")
{
    setScriptName(QStringLiteral("Camera3D"));
    focalLength.setScriptName(QStringLiteral("FocalLength"));
    focalLength.vSetMinimum(-std::numeric_limits<float>::max());
    focalLength.vSetMaximum(std::numeric_limits<float>::max());
    focalLength.vSetExtrapolationBefore(Prm::ExtrapolationHold);
    focalLength.vSetExtrapolationAfter(Prm::ExtrapolationHold);
    addParameter(&focalLength);
}

TQ_Camera3DParameterSet::TQ_Camera3DParameterSet(TQ_Camera3DParameterSet const& other)
    : TQ_NullObject3DParameterSet(other), focalLength(other.focalLength)
{
    addParameter(&focalLength);
}

TQ_Camera3DParameterSet& TQ_Camera3DParameterSet::operator=(TQ_Camera3DParameterSet const& other)
{
    if (this == &other)
        return *this;
    TQ_NullObject3DParameterSet::operator=(other);
    focalLength = other.focalLength;
    return *this;
}

TQ_Camera3DParameterSet::~TQ_Camera3DParameterSet() = default;

void TQ_Camera3DParameterSet::deleteAllKeyframes()
{
    TQ_NullObject3DParameterSet::deleteAllKeyframes();
    focalLength.vDeleteAllKeyframes();
}

void TQ_Camera3DParameterSet::setFocus(float value, float time)
{
    focalLength.vSetValue(value, time);
}
