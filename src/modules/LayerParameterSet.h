#pragma once
#include "modules/ParameterTable.h"

class TQ_BaseClipInfoContainer;

namespace TQ::Table {

/// One layer's members in text order: activity, track link, range, blend mode and motion blur.
struct LayerParameters {
    // 0 or 1 rather than a bool: the engines sum it over layers.
    Numeric<unsigned char> Active{Keyed, "Active", 1, 0, 1, Step, Hold};
    Moved Hidden = moved("Hidden");
    Moved Locked = moved("Locked");
    Parameter<bool> LinkToTracker{Unkeyed, "LinkToTracker", true, Step, Hold};
    // -1: linked to no selection.
    Numeric<int> SelectionLinkedToTrack{Unkeyed, "SelectionLinkedToTrack", -1, -1, LargestInt, Step, Hold};
    Parameter<bool> LinkToAdjustedTrack{Unkeyed, "LinkToAdjustedTrack", false, Step, Hold};
    Numeric<float> EdgeWidthToApply{Unkeyed, "EdgeWidthToApply", 3, -100, 100, Step, Hold};
    Numeric<unsigned int> InPoint{Unkeyed, "In Point", LargestUInt, 0, LargestUInt, Step, Hold};
    Numeric<unsigned int> OutPoint{Unkeyed, "Out Point", LargestUInt, 0, LargestUInt, Step, Hold};
    Parameter<TQ_BlendMode> BlendMode{Unkeyed, "BlendMode", TQ_BLEND_MODE_DEFAULT, Step, Hold};
    Parameter<bool> Invert{Unkeyed, "Invert", false, Step, Hold};
    Numeric<unsigned char> MotionBlurMatte{Keyed, "MotionBlurMatte", 0, 0, 1, Step, Hold};
    Numeric<float> ShutterAngle{Keyed, "Shutter angle", 180, 0, 360, Linear, Hold};
    Numeric<float> ShutterPhase{Keyed, "Shutter phase", 0, -180, 180, Linear, Hold};
    Numeric<float> MotionBlurQuality{Keyed, "Motion blur quality", 0.25, 0, 5, Linear, Hold};
};

} // namespace TQ::Table

/// Settings of one layer, named "Basic". Names no clip, so it forgets and rescales nothing. Copies and
/// assignments cover every member and share the moved "Hidden" and "Locked" with their source.
class TQ_LayerParameterSet : public TQ::ClipBoundParameterSet, public TQ::Table::LayerParameters
{
public:
    /// The container is not used and not kept.
    explicit TQ_LayerParameterSet(TQ_BaseClipInfoContainer* container);
    TQ_LayerParameterSet(TQ_LayerParameterSet const& other);
    TQ_LayerParameterSet& operator=(TQ_LayerParameterSet const& other);
    ~TQ_LayerParameterSet() override;

private:
    void init();
};
