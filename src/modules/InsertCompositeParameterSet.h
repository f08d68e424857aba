#pragma once
#include "modules/ParameterTable.h"
#include "prm/NumericParameter.h"

namespace TQ::Table {

/// The parameters of compositing an insert, in text order.
struct InsertCompositeParameters {
    Parameter<unsigned int> LayerClipID = clipReference("LayerClipID", 0);
    Numeric<bool> ApplyAlphaOfInsert{Unkeyed, "ApplyAlphaOfInsert", true, false, true, Step, Hold};
    Numeric<bool> InvertAlphaOfInsert{Unkeyed, "InvertAlphaOfInsert", false, false, true, Step, Hold};
    Numeric<bool> ApplyAlphaOfBackground{Unkeyed, "ApplyAlphaOfBackground", false, false, true, Step, Hold};
    Numeric<bool> InvertAlphaOfBackground{Unkeyed, "InvertAlphaOfBackground", false, false, true, Step, Hold};
    Numeric<bool> ApplyLayerMatte{Unkeyed, "ApplyLayerMatte", false, false, true, Step, Hold};
    Numeric<bool> invertLayerMatte{Unkeyed, "invertLayerMatte", false, false, true, Step, Hold};
    Numeric<float> IntensityAll{Keyed, "IntensityAll", 1.0f, 0.0f, 100.0f, Linear, Hold};
    Numeric<float> IntensityRed{Keyed, "IntensityRed", 1.0f, 0.0f, 100.0f, Linear, Hold};
    Numeric<float> IntensityGreen{Keyed, "IntensityGreen", 1.0f, 0.0f, 100.0f, Linear, Hold};
    Numeric<float> IntensityBlue{Keyed, "IntensityBlue", 1.0f, 0.0f, 100.0f, Linear, Hold};
    Numeric<float> IntensityAlpha{Keyed, "IntensityAlpha", 1.0f, 0.0f, 100.0f, Linear, Hold};
    Numeric<float> ErodeAlpha{Keyed, "ErodeAlpha", 0.0f, 0.0f, 100.0f, Linear, Hold};
};

} // namespace TQ::Table

/// How an inserted image is composited, "Composite": the layer clip, the alpha and matte switches and the
/// per-channel gains ("IntensityAll" shows as "Gain", "IntensityAlpha" as "Opacity").
class TQ_InsertCompositeParameterSet : public TQ::ClipBoundParameterSet, public TQ::Table::InsertCompositeParameters
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
