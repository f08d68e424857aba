#pragma once
#include "gandalf/BSpline.h"
#include "modules/ClipBoundParameterSet.h"
#include "modules/CopyDepartures.h"
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

/// The warper's parameters, in member order: the moved "Render" after "Rendered", a flag that nothing
/// reads after "ApplyEdgeLock", the weight grid last.
struct WarperMembers {
    Prm::Parameter<unsigned int> InputClipID{false, "InputClipID", 1u, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<unsigned int> LayerClipID{false, "LayerClipID", 0u, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<unsigned int> OutputClipID{false, "OutputClipID", 0u, Prm::InterpolationStep,
                                              Prm::ExtrapolationHold};
    Prm::Parameter<bool> Rendered{true, "Rendered", true, Prm::InterpolationUnset, Prm::ExtrapolationUnset};
    ClipBoundParameterSet::MovedParameterHandle Render = ClipBoundParameterSet::newMovedParameter("Render");
    Prm::NumericParameter<unsigned int> CubicBSplineLevel{false, "CubicBSplineLevel", 4u, 0u, 4u,
                                                          Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<bool> ApplyMatteToSource{false, "ApplyMatteToSource", true, Prm::InterpolationStep,
                                            Prm::ExtrapolationHold};
    Prm::Parameter<bool> ApplyMatteToDestination{false, "ApplyMatteToDestination", false, Prm::InterpolationStep,
                                                 Prm::ExtrapolationHold};
    Prm::Parameter<bool> UseAlphaOfInputClip{false, "UseAlphaOfInputClip", false, Prm::InterpolationStep,
                                             Prm::ExtrapolationHold};
    Prm::Parameter<bool> UseAlphaOfWarpClip{false, "UseAlphaOfWarpClip", false, Prm::InterpolationStep,
                                            Prm::ExtrapolationHold};
    Prm::Parameter<bool> ApplyEdgeLock{false, "ApplyEdgeLock", false, Prm::InterpolationStep, Prm::ExtrapolationHold};
    NotCopied<Prm::Parameter<bool>> unusedFlag;
    Prm::Parameter<bool> WarpInputClip{false, "WarpInputClip", true, Prm::InterpolationStep, Prm::ExtrapolationHold};
    WarperWeightGrid Weights;
};

} // namespace TQ

/// The warper module, "Warper": its clips, matte and alpha switches, and a B-spline warp given by the
/// weight grid. "CubicBSplineLevel" (0 to 4) is hidden.
///
/// A copy copies everything; an assignment carries the named parameters and the moved "Render" but leaves
/// the target's weights as they were.
class TQ_WarperParameterSet : public TQ::ClipBoundParameterSet, public TQ::WarperMembers
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
