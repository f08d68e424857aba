#pragma once
#include "modules/ParameterTable.h"

namespace TQ::Table {

/// The tracking module's members in text order: search range, motion model, then eight adjustment
/// values. Everything but the adjustments and six search settings is hidden.
struct TrackingParameters {
    Parameter<unsigned int> InputClipID = clipReference("InputClipID", 1);
    Moved Render = moved("Render");
    Numeric<unsigned int> AutoMaxMotionX{Keyed, "AutoMaxMotionX", 0, 0, 10000, Linear, Hold};
    Numeric<unsigned int> AutoMaxMotionY{Keyed, "AutoMaxMotionY", 0, 0, 10000, Linear, Hold};
    Numeric<float> SmoothingLevel{Keyed, "SmoothingLevel", 0, 0, 100, Linear, Hold};
    Numeric<double> MinPercentagePixelUsage{Keyed, "MinPercentagePixelUsage", 50, 0, 100, Linear, Hold};
    Parameter<bool> ApplySearch{Keyed, "ApplySearch", true, Step, Hold};
    Parameter<bool> ManualTrack{Unkeyed, "ManualTrack", false, Step, Hold};
    Numeric<double> MaxRotationAngle{Keyed, "MaxRotationAngle", 0, 0, 1000, Linear, Hold};
    Numeric<double> MaxZoomPercentage{Keyed, "MaxZoomPercentage", 0, 0, 1000, Linear, Hold};
    Numeric<unsigned int> MaxMotionX{Keyed, "MaxMotionX", 100, 0, 1000, Linear, Hold};
    Numeric<unsigned int> MaxMotionY{Keyed, "MaxMotionY", 100, 0, 1000, Linear, Hold};
    Parameter<bool> PredictMaxMotionX{Keyed, "PredictMaxMotionX", true, Step, Hold};
    Parameter<bool> PredictMaxMotionY{Keyed, "PredictMaxMotionY", true, Step, Hold};
    Parameter<_TrackModel> TrackingModel{Keyed, "TrackingModel", TRACK_MODEL_DEFAULT, Step, Hold};
    Parameter<bool> UseActiveColorChannel{Keyed, "UseActiveColorChannel", false, Step, Hold};
    Numeric<double> TranslationX{Keyed, "Translation X", 0, -LargestDouble, LargestDouble, Linear, Hold};
    Numeric<double> TranslationY{Keyed, "Translation Y", 0, -LargestDouble, LargestDouble, Linear, Hold};
    Numeric<double> Rotation{Keyed, "Rotation", 0, -LargestDouble, LargestDouble, Linear, Hold};
    Numeric<double> Scale{Keyed, "Scale", 1, -LargestDouble, LargestDouble, Linear, Hold};
    Numeric<double> ShearX{Keyed, "Shear X", 0, -LargestDouble, LargestDouble, Linear, Hold};
    // Not the pair of "Shear X": the module reads it as a factor.
    Numeric<double> ShearY{Keyed, "Shear Y", 1, -LargestDouble, LargestDouble, Linear, Hold};
    Numeric<double> PerspectiveX{Keyed, "Perspective X", 0, -LargestDouble, LargestDouble, Linear, Hold};
    Numeric<double> PerspectiveY{Keyed, "Perspective Y", 0, -LargestDouble, LargestDouble, Linear, Hold};
};

} // namespace TQ::Table

/// Settings of the tracking module, named "Track". Copies and assignments cover every member and share
/// the moved "Render" with their source; a copy gets this class's display names and hidden flags again,
/// not its source's.
class TQ_TrackingParameterSet : public TQ::ClipBoundParameterSet, public TQ::Table::TrackingParameters
{
public:
    TQ_TrackingParameterSet();
    TQ_TrackingParameterSet(TQ_TrackingParameterSet const& other);
    TQ_TrackingParameterSet& operator=(TQ_TrackingParameterSet const& other);
    ~TQ_TrackingParameterSet() override;

    /// Scales the keys of the four motion ranges by `factor`; `unused` is ignored, so both axes scale
    /// alike.
    void rescale(float factor, float unused) override;
    /// Forgets `clipId` in "InputClipID".
    void removeReferencesToClip(unsigned int clipId) override;

private:
    void init();
};
