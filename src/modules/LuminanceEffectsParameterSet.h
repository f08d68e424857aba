#pragma once
#include "modules/ClipBoundParameterSet.h"
#include "modules/CopyDepartures.h"
#include "prm/NumericParameter.h"

#include <QVector>

namespace TQ {

/// The parameters of the luminance effects, in member order, with the sample storage between
/// "ReferenceColourSamples" and "SelectedColour".
struct LuminanceEffectsMembers {
    Prm::Parameter<unsigned int> LuminanceReferenceClipID{false, "LuminanceReferenceClipID", 0u,
                                                          Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<unsigned int> LuminanceClipID{false, "LuminanceClipID", 0u, Prm::InterpolationStep,
                                                 Prm::ExtrapolationHold};
    Prm::Parameter<unsigned int> ShadowClipID{false, "ShadowClipID", 0u, Prm::InterpolationStep,
                                              Prm::ExtrapolationHold};
    Prm::Parameter<unsigned int> HighlightClipID{false, "HighlightClipID", 0u, Prm::InterpolationStep,
                                                 Prm::ExtrapolationHold};
    Prm::Parameter<unsigned int> FilterClipID{false, "FilterClipID", 0u, Prm::InterpolationStep,
                                              Prm::ExtrapolationHold};
    Prm::NumericParameter<bool> ApplyLuminanceEffect{false, "ApplyLuminanceEffect", false, false, true,
                                                     Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::NumericParameter<bool> BuildColourLuminanceMap{false, "BuildColourLuminanceMap", false, false, true,
                                                        Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::NumericParameter<unsigned int> LuminanceMedianFilterSize{true, "LuminanceMedianFilterSize", 1u, 0u, 51u,
                                                                  Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<float> ReferenceLuminanceLevel{true, "ReferenceLuminanceLevel", 1.0f, 0.0f, 10.0f,
                                                         Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<float> LuminanceEffectOffset{true, "LuminanceEffectOffset", 0.0f, 0.0f, 1.0f,
                                                       Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<bool> GenerateLuminanceClips{false, "GenerateLuminanceClips", false, false, true,
                                                       Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::NumericParameter<bool> ReferenceFilteredImages{false, "ReferenceFilteredImages", false, false, true,
                                                        Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::NumericParameter<bool> BuildEveryFilteredFrame{false, "BuildEveryFilteredFrame", false, false, true,
                                                        Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<bool> FilteredFrames{true, "FilteredFrames", false, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::NumericParameter<unsigned int> FilterWindowSizeBackwards{true, "FilterWindowSizeBackwards", 0u, 0u, 30u,
                                                                  Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<unsigned int> FilterWindowSizeForwards{true, "FilterWindowSizeForwards", 0u, 0u, 30u,
                                                                 Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<unsigned int> FilterMedianFilterSize{true, "FilterMedianFilterSize", 0u, 0u, 51u,
                                                               Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::Parameter<TQ_LUMINANCE_MODEL> LuminanceModel{false, "LuminanceModel", TQ_LUMINANCE_MODEL(0),
                                                      Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::NumericParameter<float> ShadowIntensityAll{true, "ShadowIntensityAll", 1.0f, 0.0f, 10.0f,
                                                    Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<float> ShadowIntensityRed{true, "ShadowIntensityRed", 1.0f, 0.0f, 10.0f,
                                                    Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<float> ShadowIntensityGreen{true, "ShadowIntensityGreen", 1.0f, 0.0f, 10.0f,
                                                      Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<float> ShadowIntensityBlue{true, "ShadowIntensityBlue", 1.0f, 0.0f, 10.0f,
                                                     Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<float> HighlightIntensityAll{true, "HighlightIntensityAll", 1.0f, 0.0f, 10.0f,
                                                       Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<float> HighlightIntensityRed{true, "HighlightIntensityRed", 1.0f, 0.0f, 10.0f,
                                                       Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<float> HighlightIntensityGreen{true, "HighlightIntensityGreen", 1.0f, 0.0f, 10.0f,
                                                         Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<float> HighlightIntensityBlue{true, "HighlightIntensityBlue", 1.0f, 0.0f, 10.0f,
                                                        Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<float> HighlightIntensityAlpha{true, "HighlightIntensityAlpha", 1.0f, 0.0f, 10.0f,
                                                         Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<bool> ReferenceColourSamples{false, "ReferenceColourSamples", false, false, true,
                                                       Prm::InterpolationStep, Prm::ExtrapolationHold};
    /// Filled by the module outside the library, never registered or streamed; owned.
    OwnedParameters samplePointParameters;
    /// Filled by the module outside the library, never registered or streamed.
    EmptyOnCopy<QVector<QVector<Prm::NumericParameter<float>>>> referenceSampleColours;
    EmptyOnCopy<QVector<QVector<Prm::NumericParameter<float>>>> targetSampleColours;
    Prm::Parameter<unsigned int> SelectedColour{false, "SelectedColour", 0u, Prm::InterpolationStep,
                                                Prm::ExtrapolationHold};
    Prm::Parameter<unsigned int> SelectedSample{false, "SelectedSample", 0u, Prm::InterpolationStep,
                                                Prm::ExtrapolationHold};
};

} // namespace TQ

/// The luminance effects of the insert module, "Luminance": luminance, shadow, highlight and filter clips,
/// filtering windows and shadow and highlight intensities.
///
/// The three sample containers belong to the set object that filled them: a copy starts them empty and an
/// assignment leaves the target's as they were.
class TQ_LuminanceEffectsParameterSet : public TQ::ClipBoundParameterSet, public TQ::LuminanceEffectsMembers
{
public:
    TQ_LuminanceEffectsParameterSet();
    TQ_LuminanceEffectsParameterSet(TQ_LuminanceEffectsParameterSet const& other);
    TQ_LuminanceEffectsParameterSet& operator=(TQ_LuminanceEffectsParameterSet const& other);
    ~TQ_LuminanceEffectsParameterSet() override;

    /// Forgets "LuminanceReferenceClipID", "LuminanceClipID", "ShadowClipID", "HighlightClipID" and
    /// "FilterClipID", in that order.
    void removeReferencesToClip(unsigned int clipId) override;

private:
    void init();
};
