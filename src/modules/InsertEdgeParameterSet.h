#pragma once
#include "modules/ParameterTable.h"
#include "prm/NumericParameter.h"

namespace TQ::Table {

/// The parameters of the soft edge, in text order.
struct InsertEdgeParameters {
    Numeric<float> EdgeWidthBottom{Keyed, "EdgeWidthBottom", 0.0f, 0.0f, 1.0f, Linear, Hold};
    Numeric<float> EdgeWidthTop{Keyed, "EdgeWidthTop", 0.0f, 0.0f, 1.0f, Linear, Hold};
    Numeric<float> EdgeWidthLeft{Keyed, "EdgeWidthLeft", 0.0f, 0.0f, 1.0f, Linear, Hold};
    Numeric<float> EdgeWidthRight{Keyed, "EdgeWidthRight", 0.0f, 0.0f, 1.0f, Linear, Hold};
};

} // namespace TQ::Table

/// The soft edge of an inserted image, "Edge": a width for each side, as a fraction from 0 to 1. It names
/// no clip: `rescale` and `removeReferencesToClip` do nothing.
class TQ_InsertEdgeParameterSet : public TQ::ClipBoundParameterSet, public TQ::Table::InsertEdgeParameters
{
public:
    TQ_InsertEdgeParameterSet();
    TQ_InsertEdgeParameterSet(TQ_InsertEdgeParameterSet const& other);
    TQ_InsertEdgeParameterSet& operator=(TQ_InsertEdgeParameterSet const& other);
    ~TQ_InsertEdgeParameterSet() override;

private:
    void init();
};
