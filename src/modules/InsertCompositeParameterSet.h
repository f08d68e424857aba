#pragma once
#include "modules/ClipBoundParameterSet.h"
#include "prm/NumericParameter.h"

namespace TQ {

/// The parameters of compositing an insert, in text order.
struct InsertCompositeMembers {
    Prm::Parameter<unsigned int> LayerClipID{false, "LayerClipID", 0u, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::NumericParameter<bool> ApplyAlphaOfInsert{false, "ApplyAlphaOfInsert", true, false, true,
                                                   Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::NumericParameter<bool> InvertAlphaOfInsert{false, "InvertAlphaOfInsert", false, false, true,
                                                    Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::NumericParameter<bool> ApplyAlphaOfBackground{false, "ApplyAlphaOfBackground", false, false, true,
                                                       Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::NumericParameter<bool> InvertAlphaOfBackground{false, "InvertAlphaOfBackground", false, false, true,
                                                        Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::NumericParameter<bool> ApplyLayerMatte{false, "ApplyLayerMatte", false, false, true, Prm::InterpolationStep,
                                                Prm::ExtrapolationHold};
    Prm::NumericParameter<bool> invertLayerMatte{false, "invertLayerMatte", false, false, true,
                                                 Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::NumericParameter<float> IntensityAll{true, "IntensityAll", 1.0f, 0.0f, 100.0f, Prm::InterpolationLinear,
                                              Prm::ExtrapolationHold};
    Prm::NumericParameter<float> IntensityRed{true, "IntensityRed", 1.0f, 0.0f, 100.0f, Prm::InterpolationLinear,
                                              Prm::ExtrapolationHold};
    Prm::NumericParameter<float> IntensityGreen{true, "IntensityGreen", 1.0f, 0.0f, 100.0f, Prm::InterpolationLinear,
                                                Prm::ExtrapolationHold};
    Prm::NumericParameter<float> IntensityBlue{true, "IntensityBlue", 1.0f, 0.0f, 100.0f, Prm::InterpolationLinear,
                                               Prm::ExtrapolationHold};
    Prm::NumericParameter<float> IntensityAlpha{true, "IntensityAlpha", 1.0f, 0.0f, 100.0f, Prm::InterpolationLinear,
                                                Prm::ExtrapolationHold};
    Prm::NumericParameter<float> ErodeAlpha{true, "ErodeAlpha", 0.0f, 0.0f, 100.0f, Prm::InterpolationLinear,
                                            Prm::ExtrapolationHold};
};

} // namespace TQ

/// How an inserted image is composited, "Composite": the layer clip, the alpha and matte switches and the
/// per-channel gains ("IntensityAll" shows as "Gain", "IntensityAlpha" as "Opacity").
class TQ_InsertCompositeParameterSet : public TQ::ClipBoundParameterSet, public TQ::InsertCompositeMembers
{
public:
    TQ_InsertCompositeParameterSet();
    TQ_InsertCompositeParameterSet(TQ_InsertCompositeParameterSet const& other);
    TQ_InsertCompositeParameterSet& operator=(TQ_InsertCompositeParameterSet const& other);
    ~TQ_InsertCompositeParameterSet() override;

    /// Forgets "LayerClipID".
    void removeReferencesToClip(unsigned int clipId) override;

private:
    void init();
};
