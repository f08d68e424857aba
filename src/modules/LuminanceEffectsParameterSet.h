#pragma once
#include "modules/CopyDepartures.h"
#include "modules/ParameterTable.h"
#include "prm/NumericParameter.h"

#include <QVector>

namespace TQ::Table {

/// The parameters of the luminance effects, in member order, with the sample storage between
/// "ReferenceColourSamples" and "SelectedColour".
struct LuminanceEffectsParameters {
    Parameter<unsigned int> LuminanceReferenceClipID{Unkeyed, "LuminanceReferenceClipID", 0u, Step, Hold};
    Parameter<unsigned int> LuminanceClipID = clipReference("LuminanceClipID", 0);
    Parameter<unsigned int> ShadowClipID = clipReference("ShadowClipID", 0);
    Parameter<unsigned int> HighlightClipID = clipReference("HighlightClipID", 0);
    Parameter<unsigned int> FilterClipID = clipReference("FilterClipID", 0);
    Numeric<bool> ApplyLuminanceEffect{Unkeyed, "ApplyLuminanceEffect", false, false, true, Step, Hold};
    Numeric<bool> BuildColourLuminanceMap{Unkeyed, "BuildColourLuminanceMap", false, false, true, Step, Hold};
    Numeric<unsigned int> LuminanceMedianFilterSize{Keyed, "LuminanceMedianFilterSize", 1u, 0u, 51u, Linear, Hold};
    Numeric<float> ReferenceLuminanceLevel{Keyed, "ReferenceLuminanceLevel", 1.0f, 0.0f, 10.0f, Linear, Hold};
    Numeric<float> LuminanceEffectOffset{Keyed, "LuminanceEffectOffset", 0.0f, 0.0f, 1.0f, Linear, Hold};
    Numeric<bool> GenerateLuminanceClips{Unkeyed, "GenerateLuminanceClips", false, false, true, Step, Hold};
    Numeric<bool> ReferenceFilteredImages{Unkeyed, "ReferenceFilteredImages", false, false, true, Step, Hold};
    Numeric<bool> BuildEveryFilteredFrame{Unkeyed, "BuildEveryFilteredFrame", false, false, true, Step, Hold};
    Parameter<bool> FilteredFrames{Keyed, "FilteredFrames", false, Step, Hold};
    Numeric<unsigned int> FilterWindowSizeBackwards{Keyed, "FilterWindowSizeBackwards", 0u, 0u, 30u, Linear, Hold};
    Numeric<unsigned int> FilterWindowSizeForwards{Keyed, "FilterWindowSizeForwards", 0u, 0u, 30u, Linear, Hold};
    Numeric<unsigned int> FilterMedianFilterSize{Keyed, "FilterMedianFilterSize", 0u, 0u, 51u, Linear, Hold};
    Parameter<TQ_LUMINANCE_MODEL> LuminanceModel{Unkeyed, "LuminanceModel", TQ_LUMINANCE_MODEL(0), Step, Hold};
    Numeric<float> ShadowIntensityAll{Keyed, "ShadowIntensityAll", 1.0f, 0.0f, 10.0f, Linear, Hold};
    Numeric<float> ShadowIntensityRed{Keyed, "ShadowIntensityRed", 1.0f, 0.0f, 10.0f, Linear, Hold};
    Numeric<float> ShadowIntensityGreen{Keyed, "ShadowIntensityGreen", 1.0f, 0.0f, 10.0f, Linear, Hold};
    Numeric<float> ShadowIntensityBlue{Keyed, "ShadowIntensityBlue", 1.0f, 0.0f, 10.0f, Linear, Hold};
    Numeric<float> HighlightIntensityAll{Keyed, "HighlightIntensityAll", 1.0f, 0.0f, 10.0f, Linear, Hold};
    Numeric<float> HighlightIntensityRed{Keyed, "HighlightIntensityRed", 1.0f, 0.0f, 10.0f, Linear, Hold};
    Numeric<float> HighlightIntensityGreen{Keyed, "HighlightIntensityGreen", 1.0f, 0.0f, 10.0f, Linear, Hold};
    Numeric<float> HighlightIntensityBlue{Keyed, "HighlightIntensityBlue", 1.0f, 0.0f, 10.0f, Linear, Hold};
    Numeric<float> HighlightIntensityAlpha{Keyed, "HighlightIntensityAlpha", 1.0f, 0.0f, 10.0f, Linear, Hold};
    Numeric<bool> ReferenceColourSamples{Unkeyed, "ReferenceColourSamples", false, false, true, Step, Hold};
    /// Filled by the module outside the library, never registered or streamed; owned.
    OwnedParameters samplePointParameters;
    /// Filled by the module outside the library, never registered or streamed.
    EmptyOnCopy<QVector<QVector<Numeric<float>>>> referenceSampleColours;
    EmptyOnCopy<QVector<QVector<Numeric<float>>>> targetSampleColours;
    Parameter<unsigned int> SelectedColour = clipReference("SelectedColour", 0);
    Parameter<unsigned int> SelectedSample = clipReference("SelectedSample", 0);
};

} // namespace TQ::Table

/// The luminance effects of the insert module, "Luminance": luminance, shadow, highlight and filter clips,
/// filtering windows and shadow and highlight intensities.
///
/// The three sample containers belong to the set object that filled them: a copy starts them empty and an
/// assignment leaves the target's as they were.
class TQ_LuminanceEffectsParameterSet : public TQ::ClipBoundParameterSet, public TQ::Table::LuminanceEffectsParameters
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
