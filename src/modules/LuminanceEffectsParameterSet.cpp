#include "modules/LuminanceEffectsParameterSet.h"

TQ_LuminanceEffectsParameterSet::TQ_LuminanceEffectsParameterSet()
    : TQ::ClipBoundParameterSet(QStringLiteral("Luminance"))
{
    init();
}

TQ_LuminanceEffectsParameterSet::TQ_LuminanceEffectsParameterSet(TQ_LuminanceEffectsParameterSet const& other)
    : TQ::ClipBoundParameterSet(QStringLiteral("Luminance")), TQ::Table::LuminanceEffectsParameters(other)
{
    init();
}

TQ_LuminanceEffectsParameterSet& TQ_LuminanceEffectsParameterSet::operator=(TQ_LuminanceEffectsParameterSet const& other)
{
    bAssignSet<TQ::Table::LuminanceEffectsParameters>(other, {});
    return *this;
}

TQ_LuminanceEffectsParameterSet::~TQ_LuminanceEffectsParameterSet() = default;

void TQ_LuminanceEffectsParameterSet::init()
{
    vAddParameters({&LuminanceReferenceClipID, &LuminanceClipID, &ShadowClipID, &HighlightClipID, &FilterClipID,
                    &ApplyLuminanceEffect, &BuildColourLuminanceMap, &LuminanceMedianFilterSize,
                    &ReferenceLuminanceLevel, &LuminanceEffectOffset, &GenerateLuminanceClips,
                    &ReferenceFilteredImages, &BuildEveryFilteredFrame, &FilteredFrames, &FilterWindowSizeBackwards,
                    &FilterWindowSizeForwards, &FilterMedianFilterSize, &LuminanceModel, &ShadowIntensityAll,
                    &ShadowIntensityRed, &ShadowIntensityGreen, &ShadowIntensityBlue, &HighlightIntensityAll,
                    &HighlightIntensityRed, &HighlightIntensityGreen, &HighlightIntensityBlue,
                    &HighlightIntensityAlpha, &ReferenceColourSamples, &SelectedColour, &SelectedSample});
}

void TQ_LuminanceEffectsParameterSet::removeReferencesToClip(unsigned int clipId)
{
    vForgetClips({&LuminanceReferenceClipID, &LuminanceClipID, &ShadowClipID, &HighlightClipID, &FilterClipID},
                 clipId);
}
