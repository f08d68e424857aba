#include "modules/ColourFilterParameterSet.h"

TQ_ColourFilterParameterSet::TQ_ColourFilterParameterSet()
    : TQ::ClipBoundParameterSet(QStringLiteral("ColourFilter"))
{
    init();
}

TQ_ColourFilterParameterSet::TQ_ColourFilterParameterSet(TQ_ColourFilterParameterSet const& other)
    : TQ::ClipBoundParameterSet(QStringLiteral("ColourFilter")), TQ::Table::ColourFilterParameters(other)
{
    init();
}

TQ_ColourFilterParameterSet& TQ_ColourFilterParameterSet::operator=(TQ_ColourFilterParameterSet const& other)
{
    bAssignSet<TQ::Table::ColourFilterParameters>(other, {});
    return *this;
}

TQ_ColourFilterParameterSet::~TQ_ColourFilterParameterSet() = default;

void TQ_ColourFilterParameterSet::init()
{
    vAddParameters({&FilledClipID, &ApplyBlackFilter, &ApplyWhiteFilter, &BlackLuminanceLevel, &WhiteLuminanceLevel,
                    &BrightnessDilation, &BrightnessFillAlgorithm, &BrightnessSmoothingLevel, &ApplyBallBustingRed,
                    &ApplyBallBustingGreen, &ApplyBallBustingBlue, &BallBustingThresholdRed,
                    &BallBustingThresholdGreen, &BallBustingThresholdBlue, &BallBustingDilation,
                    &BallBustingFillAlgorithm, &BallBustingSmoothingLevel, &ApplyFillOnlyInRenderedArea,
                    &LastApplyFillOnlyInRenderedArea});
}

void TQ_ColourFilterParameterSet::removeReferencesToClip(unsigned int clipId)
{
    forgetClip(FilledClipID, clipId);
}
