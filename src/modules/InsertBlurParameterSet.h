#pragma once
#include "modules/ClipBoundParameterSet.h"
#include "prm/NumericParameter.h"

namespace TQ {

/// The parameters of blurring an insert, in member order (the text starts with "SmoothedInsertClipID").
struct InsertBlurMembers {
    Prm::NumericParameter<bool> ApplyAntialiasing{true, "ApplyAntialiasing", true, false, true,
                                                  Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::NumericParameter<float> AntialiasingGain{true, "AntialiasingGain", 1.0f, 0.5f, 3.0f,
                                                  Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<bool> ApplyFocusBlur{true, "ApplyFocusBlur", false, false, true, Prm::InterpolationStep,
                                               Prm::ExtrapolationHold};
    Prm::NumericParameter<float> FocusBlur{true, "FocusBlur", 0.5f, 0.1f, 100.0f, Prm::InterpolationLinear,
                                           Prm::ExtrapolationHold};
    Prm::NumericParameter<bool> ApplyMotionBlur{true, "ApplyMotionBlur", false, false, true, Prm::InterpolationStep,
                                                Prm::ExtrapolationHold};
    Prm::NumericParameter<float> MotionBlur{true, "MotionBlur", 0.25f, 0.0f, 10.0f, Prm::InterpolationLinear,
                                            Prm::ExtrapolationHold};
    Prm::NumericParameter<bool> ApplyEdgeEnhancement{true, "ApplyEdgeEnhancement", false, false, true,
                                                     Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::NumericParameter<float> EdgeEnhancement{true, "EdgeEnhancement", 0.25f, 0.0f, 10.0f,
                                                 Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::Parameter<unsigned int> SmoothedInsertClipID{false, "SmoothedInsertClipID", 0u, Prm::InterpolationStep,
                                                      Prm::ExtrapolationHold};
    Prm::Parameter<float> AntialiasingMaskStandardDeviationX{true, "AntialiasingMaskStandardDeviationX", 0.0f,
                                                             Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<float> AntialiasingMaskStandardDeviationY{true, "AntialiasingMaskStandardDeviationY", 0.0f,
                                                             Prm::InterpolationStep, Prm::ExtrapolationHold};
};

} // namespace TQ

/// The blurs of an inserted image, "Blur": antialiasing, focus blur, motion blur and edge enhancement, and
/// the clip that holds the smoothed insert.
class TQ_InsertBlurParameterSet : public TQ::ClipBoundParameterSet, public TQ::InsertBlurMembers
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
