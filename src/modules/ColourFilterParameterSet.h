#pragma once
#include "modules/ClipBoundParameterSet.h"
#include "prm/NumericParameter.h"

namespace TQ {

/// The parameters of the colour filter, in text order.
struct ColourFilterMembers {
    Prm::Parameter<unsigned int> FilledClipID{false, "FilledClipID", 0u, Prm::InterpolationStep,
                                              Prm::ExtrapolationHold};
    Prm::NumericParameter<bool> ApplyBlackFilter{false, "ApplyBlackFilter", false, false, true,
                                                 Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::NumericParameter<bool> ApplyWhiteFilter{false, "ApplyWhiteFilter", false, false, true,
                                                 Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::NumericParameter<float> BlackLuminanceLevel{true, "BlackLuminanceLevel", 0.1f, 0.0f, 1.0f,
                                                     Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<float> WhiteLuminanceLevel{true, "WhiteLuminanceLevel", 0.9f, 0.0f, 1.0f,
                                                     Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<unsigned int> BrightnessDilation{true, "BrightnessDilation", 0u, 0u, 1000u,
                                                           Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::Parameter<TQ_FILL_ALGORITHM> BrightnessFillAlgorithm{false, "BrightnessFillAlgorithm",
                                                              TQ_FILL_ALGORITHM(0), Prm::InterpolationStep,
                                                              Prm::ExtrapolationHold};
    Prm::NumericParameter<float> BrightnessSmoothingLevel{true, "BrightnessSmoothingLevel", 0.1f, 0.0f, 1.0f,
                                                          Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<bool> ApplyBallBustingRed{false, "ApplyBallBustingRed", false, false, true,
                                                    Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::NumericParameter<bool> ApplyBallBustingGreen{false, "ApplyBallBustingGreen", false, false, true,
                                                      Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::NumericParameter<bool> ApplyBallBustingBlue{false, "ApplyBallBustingBlue", false, false, true,
                                                     Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::NumericParameter<float> BallBustingThresholdRed{true, "BallBustingThresholdRed", 0.1f, 0.0f, 1.0f,
                                                         Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<float> BallBustingThresholdGreen{true, "BallBustingThresholdGreen", 0.1f, 0.0f, 1.0f,
                                                           Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<float> BallBustingThresholdBlue{true, "BallBustingThresholdBlue", 0.1f, 0.0f, 1.0f,
                                                          Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<unsigned int> BallBustingDilation{true, "BallBustingDilation", 1u, 0u, 1000u,
                                                            Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::Parameter<TQ_FILL_ALGORITHM> BallBustingFillAlgorithm{false, "BallBustingFillAlgorithm",
                                                               TQ_FILL_ALGORITHM(0), Prm::InterpolationStep,
                                                               Prm::ExtrapolationHold};
    Prm::NumericParameter<float> BallBustingSmoothingLevel{true, "BallBustingSmoothingLevel", 0.1f, 0.0f, 1.0f,
                                                           Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<bool> ApplyFillOnlyInRenderedArea{false, "ApplyFillOnlyInRenderedArea", false, false,
                                                            true, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<bool> LastApplyFillOnlyInRenderedArea{true, "LastApplyFillOnlyInRenderedArea", false,
                                                         Prm::InterpolationStep, Prm::ExtrapolationHold};
};

} // namespace TQ

/// The colour filter of the insert module, "ColourFilter": removes too dark or too bright pixels and
/// pixels above per-channel thresholds, and fills what it removed into the clip "FilledClipID" names.
class TQ_ColourFilterParameterSet : public TQ::ClipBoundParameterSet, public TQ::ColourFilterMembers
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
