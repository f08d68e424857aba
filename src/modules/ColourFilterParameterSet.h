#pragma once
#include "modules/ParameterTable.h"
#include "prm/NumericParameter.h"

namespace TQ::Table {

/// The parameters of the colour filter, in text order.
struct ColourFilterParameters {
    Parameter<unsigned int> FilledClipID = clipReference("FilledClipID", 0);
    Numeric<bool> ApplyBlackFilter{Unkeyed, "ApplyBlackFilter", false, false, true, Step, Hold};
    Numeric<bool> ApplyWhiteFilter{Unkeyed, "ApplyWhiteFilter", false, false, true, Step, Hold};
    Numeric<float> BlackLuminanceLevel{Keyed, "BlackLuminanceLevel", 0.1f, 0.0f, 1.0f, Linear, Hold};
    Numeric<float> WhiteLuminanceLevel{Keyed, "WhiteLuminanceLevel", 0.9f, 0.0f, 1.0f, Linear, Hold};
    Numeric<unsigned int> BrightnessDilation{Keyed, "BrightnessDilation", 0u, 0u, 1000u, Linear, Hold};
    Parameter<TQ_FILL_ALGORITHM> BrightnessFillAlgorithm{Unkeyed, "BrightnessFillAlgorithm", TQ_FILL_ALGORITHM(0), Step,
                                                         Hold};
    Numeric<float> BrightnessSmoothingLevel{Keyed, "BrightnessSmoothingLevel", 0.1f, 0.0f, 1.0f, Linear, Hold};
    Numeric<bool> ApplyBallBustingRed{Unkeyed, "ApplyBallBustingRed", false, false, true, Step, Hold};
    Numeric<bool> ApplyBallBustingGreen{Unkeyed, "ApplyBallBustingGreen", false, false, true, Step, Hold};
    Numeric<bool> ApplyBallBustingBlue{Unkeyed, "ApplyBallBustingBlue", false, false, true, Step, Hold};
    Numeric<float> BallBustingThresholdRed{Keyed, "BallBustingThresholdRed", 0.1f, 0.0f, 1.0f, Linear, Hold};
    Numeric<float> BallBustingThresholdGreen{Keyed, "BallBustingThresholdGreen", 0.1f, 0.0f, 1.0f, Linear, Hold};
    Numeric<float> BallBustingThresholdBlue{Keyed, "BallBustingThresholdBlue", 0.1f, 0.0f, 1.0f, Linear, Hold};
    Numeric<unsigned int> BallBustingDilation{Keyed, "BallBustingDilation", 1u, 0u, 1000u, Linear, Hold};
    Parameter<TQ_FILL_ALGORITHM> BallBustingFillAlgorithm{Unkeyed, "BallBustingFillAlgorithm", TQ_FILL_ALGORITHM(0),
                                                          Step, Hold};
    Numeric<float> BallBustingSmoothingLevel{Keyed, "BallBustingSmoothingLevel", 0.1f, 0.0f, 1.0f, Linear, Hold};
    Numeric<bool> ApplyFillOnlyInRenderedArea{Unkeyed, "ApplyFillOnlyInRenderedArea", false, false, true, Step, Hold};
    Parameter<bool> LastApplyFillOnlyInRenderedArea{Keyed, "LastApplyFillOnlyInRenderedArea", false, Step, Hold};
};

} // namespace TQ::Table

/// The colour filter of the insert module, "ColourFilter": removes too dark or too bright pixels and
/// pixels above per-channel thresholds, and fills what it removed into the clip "FilledClipID" names.
class TQ_ColourFilterParameterSet : public TQ::ClipBoundParameterSet, public TQ::Table::ColourFilterParameters
{
public:
    TQ_ColourFilterParameterSet();
    TQ_ColourFilterParameterSet(TQ_ColourFilterParameterSet const& other);
    TQ_ColourFilterParameterSet& operator=(TQ_ColourFilterParameterSet const& other);
    ~TQ_ColourFilterParameterSet() override;

    /// Forgets "FilledClipID".
    void removeReferencesToClip(unsigned int clipId) override;

private:
    void init();
};
