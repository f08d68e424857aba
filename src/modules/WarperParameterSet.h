#pragma once
#include "gandalf/BSpline.h"
#include "modules/CopyDepartures.h"
#include "modules/ParameterTable.h"
#include "prm/NumericParameter.h"

namespace TQ {

/// The warper's 17 x 17 grid of two-dimensional B-spline weights: 578 keyframed float parameters
/// "Weight-<row>-<column>X" and "...Y", each from -100 to 100, linear, holding their ends.
///
/// A copy builds a fresh grid and assigns each cell from the source (values, keys, names and limits, but no
/// master link). Assigning a grid changes nothing: a warper set's assignment leaves its weights alone.
class WarperWeightGrid
{
public:
    static int const iSize = GAN_CUBIC_BSPLINE_GRID_SIZE;

    struct Cell {
        Prm::NumericParameter<float> X;
        Prm::NumericParameter<float> Y;
    };

    WarperWeightGrid();
    WarperWeightGrid(WarperWeightGrid const& other);
    WarperWeightGrid& operator=(WarperWeightGrid const&) { return *this; }

    /// The weights at `time`, each clamped to its limits.
    Gan_CubicBSplineWeights weights(float time) const;
    /// Sets every weight at `time` (a key when keyframed), each narrowed to float and clamped.
    void setWeights(Gan_CubicBSplineWeights const& weights, float time);

    /// Row by row, column by column.
    Cell cells[iSize][iSize];
};

} // namespace TQ

namespace TQ::Table {

/// The warper's parameters, in member order: the moved "Render" after "Rendered", a flag that nothing
/// reads after "ApplyEdgeLock", the weight grid last.
struct WarperParameters {
    Parameter<unsigned int> InputClipID = clipReference("InputClipID", 1);
    Parameter<unsigned int> LayerClipID = clipReference("LayerClipID", 0);
    Parameter<unsigned int> OutputClipID = clipReference("OutputClipID", 0);
    Parameter<bool> Rendered{Keyed, "Rendered", true, Prm::InterpolationUnset, Prm::ExtrapolationUnset};
    Moved Render = moved("Render");
    Numeric<unsigned int> CubicBSplineLevel{Unkeyed, "CubicBSplineLevel", 4u, 0u, 4u, Step, Hold};
    Parameter<bool> ApplyMatteToSource{Unkeyed, "ApplyMatteToSource", true, Step, Hold};
    Parameter<bool> ApplyMatteToDestination{Unkeyed, "ApplyMatteToDestination", false, Step, Hold};
    Parameter<bool> UseAlphaOfInputClip{Unkeyed, "UseAlphaOfInputClip", false, Step, Hold};
    Parameter<bool> UseAlphaOfWarpClip{Unkeyed, "UseAlphaOfWarpClip", false, Step, Hold};
    Parameter<bool> ApplyEdgeLock{Unkeyed, "ApplyEdgeLock", false, Step, Hold};
    /// Never registered, copied, assigned or read; kept for the layout saved projects were made with.
    NotCopied<Parameter<bool>> UnusedFlag;
    Parameter<bool> WarpInputClip{Unkeyed, "WarpInputClip", true, Step, Hold};
    WarperWeightGrid Weights;
};

} // namespace TQ::Table

/// The warper module, "Warper": its clips, matte and alpha switches, and a B-spline warp given by the
/// weight grid. "CubicBSplineLevel" (0 to 4) is hidden.
///
/// A copy copies everything; an assignment carries the named parameters and the moved "Render" but leaves
/// the target's weights as they were.
class TQ_WarperParameterSet : public TQ::ClipBoundParameterSet, public TQ::Table::WarperParameters
{
public:
    TQ_WarperParameterSet();
    TQ_WarperParameterSet(TQ_WarperParameterSet const& other);
    TQ_WarperParameterSet& operator=(TQ_WarperParameterSet const& other);
    ~TQ_WarperParameterSet() override;

    /// Forgets "InputClipID", "LayerClipID" and "OutputClipID", in that order.
    void removeReferencesToClip(unsigned int clipId) override;

private:
    void init();
};
