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
    : TQ::ClipBoundParameterSet(QStringLiteral("Offset")), TQ::Table::InsertOffsetParameters(other)
{
    init();
}

TQ_InsertOffsetParameterSet& TQ_InsertOffsetParameterSet::operator=(TQ_InsertOffsetParameterSet const& other)
{
    bAssignSet<TQ::Table::InsertOffsetParameters>(other, {});
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
        {&OffsetTranslationX, QT_TRANSLATE_NOOP("Parameter", "Translation X")},
        {&OffsetTranslationY, QT_TRANSLATE_NOOP("Parameter", "Translation Y")},
        {&OffsetRotationZ, QT_TRANSLATE_NOOP("Parameter", "Rotation Z")},
        {&OffsetScale, QT_TRANSLATE_NOOP("Parameter", "Scale")},
        {&OffsetShearX, QT_TRANSLATE_NOOP("Parameter", "Shear X")},
        {&OffsetShearY, QT_TRANSLATE_NOOP("Parameter", "Shear Y")},
        {&OffsetElationX, QT_TRANSLATE_NOOP("Parameter", "Perspective X")},
        {&OffsetElationY, QT_TRANSLATE_NOOP("Parameter", "Perspective Y")},
        {&ApplyTrackingScale, QT_TRANSLATE_NOOP("Parameter", "Apply Tracking Scale")},
        {&TrackingScale, QT_TRANSLATE_NOOP("Parameter", "Tracking Scale")},
        {&TrackingScaleReferenceFrame, QT_TRANSLATE_NOOP("Parameter", "Tracking Scale Reference Frame")},
        {&Apply3DDepthEffect, QT_TRANSLATE_NOOP("Parameter", "Apply 3D Offset")},
        {&CornerDepth, QT_TRANSLATE_NOOP("Parameter", "3D Offset Depth")},
        {&CornerAxisZ, QT_TRANSLATE_NOOP("Parameter", "3D Offset Rotation Z")},
        {&CornerTiltXY, QT_TRANSLATE_NOOP("Parameter", "3D Offset Tilt XY")},
    };
    for (Shown const& entry : shown)
        entry.parameter->setDisplayName(QCoreApplication::translate("Parameter", entry.displayName));
}
