#include "modules/InsertOffsetParameterSet.h"

#include <QCoreApplication>

namespace {

double const dPi = 3.141592653589793;

} // namespace

namespace TQ {

RotationParameter::RotationParameter(RotationParameter const& other)
    : Prm::ParameterWithoutType(other), Prm::NumericParameter<double>(other)
{
}

RotationParameter::~RotationParameter() = default;

double RotationParameter::value2Display(double value, float) const
{
    return value * -180.0 / dPi;
}

double RotationParameter::display2Value(double value, float) const
{
    return value * dPi / -180.0;
}

} // namespace TQ

TQ_InsertOffsetParameterSet::TQ_InsertOffsetParameterSet() : TQ::ClipBoundParameterSet(QStringLiteral("Offset"))
{
    init();
}

TQ_InsertOffsetParameterSet::TQ_InsertOffsetParameterSet(TQ_InsertOffsetParameterSet const& other)
    : TQ::ClipBoundParameterSet(QStringLiteral("Offset")), TQ::InsertOffsetMembers(other)
{
    init();
}

TQ_InsertOffsetParameterSet& TQ_InsertOffsetParameterSet::operator=(TQ_InsertOffsetParameterSet const& other)
{
    if (this == &other)
        return *this;
    Prm::ParameterSet::operator=(other);
    TQ::InsertOffsetMembers::operator=(other);
    setScriptName(other.qstrScriptName());
    return *this;
}

TQ_InsertOffsetParameterSet::~TQ_InsertOffsetParameterSet() = default;

void TQ_InsertOffsetParameterSet::init()
{
    vAddParameters({&OffsetTranslationX, &OffsetTranslationY, &OffsetRotationZ, &OffsetScale, &OffsetShearX,
                    &OffsetShearY, &OffsetElationX, &OffsetElationY, &ApplyTrackingScale, &TrackingScale,
                    &TrackingScaleReferenceFrame, &Apply3DDepthEffect, &CornerDepth, &CornerAxisZ, &CornerTiltXY});
    struct Shown {
        Prm::ParameterWithoutType* parameter;
        char const* displayName;
    };
    Shown const shown[] = {
        {&OffsetTranslationX, "Translation X"},
        {&OffsetTranslationY, "Translation Y"},
        {&OffsetRotationZ, "Rotation Z"},
        {&OffsetScale, "Scale"},
        {&OffsetShearX, "Shear X"},
        {&OffsetShearY, "Shear Y"},
        {&OffsetElationX, "Perspective X"},
        {&OffsetElationY, "Perspective Y"},
        {&ApplyTrackingScale, "Apply Tracking Scale"},
        {&TrackingScale, "Tracking Scale"},
        {&TrackingScaleReferenceFrame, "Tracking Scale Reference Frame"},
        {&Apply3DDepthEffect, "Apply 3D Offset"},
        {&CornerDepth, "3D Offset Depth"},
        {&CornerAxisZ, "3D Offset Rotation Z"},
        {&CornerTiltXY, "3D Offset Tilt XY"},
    };
    for (Shown const& entry : shown)
        entry.parameter->setDisplayName(QCoreApplication::translate("Parameter", entry.displayName));
}
