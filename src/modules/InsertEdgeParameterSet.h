#pragma once
#include "modules/ClipBoundParameterSet.h"
#include "prm/NumericParameter.h"

namespace TQ {

/// The parameters of the soft edge, in text order.
struct InsertEdgeMembers {
    Prm::NumericParameter<float> EdgeWidthBottom{true, "EdgeWidthBottom", 0.0f, 0.0f, 1.0f, Prm::InterpolationLinear,
                                                 Prm::ExtrapolationHold};
    Prm::NumericParameter<float> EdgeWidthTop{true, "EdgeWidthTop", 0.0f, 0.0f, 1.0f, Prm::InterpolationLinear,
                                              Prm::ExtrapolationHold};
    Prm::NumericParameter<float> EdgeWidthLeft{true, "EdgeWidthLeft", 0.0f, 0.0f, 1.0f, Prm::InterpolationLinear,
                                               Prm::ExtrapolationHold};
    Prm::NumericParameter<float> EdgeWidthRight{true, "EdgeWidthRight", 0.0f, 0.0f, 1.0f, Prm::InterpolationLinear,
                                                Prm::ExtrapolationHold};
};

} // namespace TQ

/// The soft edge of an inserted image, "Edge": a width for each side, as a fraction from 0 to 1. It names
/// no clip: `rescale` and `removeReferencesToClip` do nothing.
class TQ_InsertEdgeParameterSet : public TQ::ClipBoundParameterSet, public TQ::InsertEdgeMembers
{
public:
    TQ_InsertEdgeParameterSet();
    TQ_InsertEdgeParameterSet(TQ_InsertEdgeParameterSet const& other);
    TQ_InsertEdgeParameterSet& operator=(TQ_InsertEdgeParameterSet const& other);
    ~TQ_InsertEdgeParameterSet() override;

private:
    void init();
};
