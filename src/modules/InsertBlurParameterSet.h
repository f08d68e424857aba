#pragma once
#include "modules/ParameterTable.h"
#include "prm/NumericParameter.h"

namespace TQ::Table {

/// The parameters of blurring an insert, in member order (the text starts with "SmoothedInsertClipID").
struct InsertBlurParameters {
    Numeric<bool> ApplyAntialiasing{Keyed, "ApplyAntialiasing", true, false, true, Step, Hold};
    Numeric<float> AntialiasingGain{Keyed, "AntialiasingGain", 1.0f, 0.5f, 3.0f, Linear, Hold};
    Numeric<bool> ApplyFocusBlur{Keyed, "ApplyFocusBlur", false, false, true, Step, Hold};
    Numeric<float> FocusBlur{Keyed, "FocusBlur", 0.5f, 0.1f, 100.0f, Linear, Hold};
    Numeric<bool> ApplyMotionBlur{Keyed, "ApplyMotionBlur", false, false, true, Step, Hold};
    Numeric<float> MotionBlur{Keyed, "MotionBlur", 0.25f, 0.0f, 10.0f, Linear, Hold};
    Numeric<bool> ApplyEdgeEnhancement{Keyed, "ApplyEdgeEnhancement", false, false, true, Step, Hold};
    Numeric<float> EdgeEnhancement{Keyed, "EdgeEnhancement", 0.25f, 0.0f, 10.0f, Linear, Hold};
    Parameter<unsigned int> SmoothedInsertClipID = clipReference("SmoothedInsertClipID", 0);
    Parameter<float> AntialiasingMaskStandardDeviationX{Keyed, "AntialiasingMaskStandardDeviationX", 0.0f, Step, Hold};
    Parameter<float> AntialiasingMaskStandardDeviationY{Keyed, "AntialiasingMaskStandardDeviationY", 0.0f, Step, Hold};
};

} // namespace TQ::Table

/// The blurs of an inserted image, "Blur": antialiasing, focus blur, motion blur and edge enhancement, and
/// the clip that holds the smoothed insert.
class TQ_InsertBlurParameterSet : public TQ::ClipBoundParameterSet, public TQ::Table::InsertBlurParameters
{
public:
    TQ_InsertBlurParameterSet();
    TQ_InsertBlurParameterSet(TQ_InsertBlurParameterSet const& other);
    TQ_InsertBlurParameterSet& operator=(TQ_InsertBlurParameterSet const& other);
    ~TQ_InsertBlurParameterSet() override;

    /// Scales the keys of "FocusBlur" by `factor`.
    void rescale(float factor, float unused) override;
    /// Forgets "SmoothedInsertClipID".
    void removeReferencesToClip(unsigned int clipId) override;

private:
    void init();
};
