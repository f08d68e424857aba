#include "modules/InsertBlurParameterSet.h"

TQ_InsertBlurParameterSet::TQ_InsertBlurParameterSet() : TQ::ClipBoundParameterSet(QStringLiteral("Blur"))
{
    init();
}

TQ_InsertBlurParameterSet::TQ_InsertBlurParameterSet(TQ_InsertBlurParameterSet const& other)
    : TQ::ClipBoundParameterSet(QStringLiteral("Blur")), TQ::Table::InsertBlurParameters(other)
{
    init();
}

TQ_InsertBlurParameterSet& TQ_InsertBlurParameterSet::operator=(TQ_InsertBlurParameterSet const& other)
{
    bAssignSet<TQ::Table::InsertBlurParameters>(other, {});
    return *this;
}

TQ_InsertBlurParameterSet::~TQ_InsertBlurParameterSet() = default;

void TQ_InsertBlurParameterSet::init()
{
    vAddParameters({&SmoothedInsertClipID, &ApplyAntialiasing, &AntialiasingGain, &ApplyFocusBlur, &FocusBlur,
                    &ApplyMotionBlur, &MotionBlur, &ApplyEdgeEnhancement, &EdgeEnhancement,
                    &AntialiasingMaskStandardDeviationX, &AntialiasingMaskStandardDeviationY});
}

void TQ_InsertBlurParameterSet::rescale(float factor, float)
{
    FocusBlur *= static_cast<double>(factor);
}

void TQ_InsertBlurParameterSet::removeReferencesToClip(unsigned int clipId)
{
    forgetClip(SmoothedInsertClipID, clipId);
}
