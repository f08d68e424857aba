#pragma once
#include "clip/FrameOffsetParameter.h"
#include "modules/CopyDepartures.h"
#include "modules/ParameterTable.h"

namespace TQ::Table {

/// The stabilize module's members in text order: clips, frame range, the motion components to remove,
/// smoothing, and how the frame is filled and fitted. The two frame-offset bounds and `clipContainer` get
/// the set's container from its constructor.
struct StabilizeParameters {
    Parameter<unsigned int> InputClipID = clipReference("InputClipID", 1);
    // Starts on the first clip, like the input.
    Parameter<unsigned int> StabilizeClipID = clipReference("StabilizeClipID", 1);
    Parameter<unsigned int> OutputClipID = clipReference("OutputClipID", 0);
    Parameter<bool> FixedFrames{Keyed, "FixedFrames", false, Step, Hold};
    Parameter<bool> ApplyToWholeImage{Unkeyed, "ApplyToWholeImage", true, Step, Hold};
    Parameter<bool> ApplyMatteInComposite{Unkeyed, "ApplyMatteInComposite", false, Step, Hold};
    Parameter<bool> ApplyCrop{Unkeyed, "ApplyCrop", false, Step, Hold};
    Moved Render = moved("Render");
    PrmFrameOffset FirstFrameToStabilize{Unkeyed, "FirstFrameToStabilize", 0, 0, LargestUInt, Step, Hold, nullptr};
    PrmFrameOffset LastFrameToStabilize{Unkeyed, "LastFrameToStabilize", LargestUInt, 0, LargestUInt, Step, Hold,
                                        nullptr};
    Parameter<bool> XTranslation{Unkeyed, "XTranslation", true, Step, Hold};
    Parameter<bool> YTranslation{Unkeyed, "YTranslation", true, Step, Hold};
    Parameter<bool> Rotation{Unkeyed, "Rotation", false, Step, Hold};
    Parameter<bool> Zoom{Unkeyed, "Zoom", false, Step, Hold};
    Parameter<bool> XShear{Unkeyed, "XShear", false, Step, Hold};
    Parameter<bool> YShear{Unkeyed, "YShear", false, Step, Hold};
    Parameter<bool> XForeshortening{Unkeyed, "XForeshortening", false, Step, Hold};
    Parameter<bool> YForeshortening{Unkeyed, "YForeshortening", false, Step, Hold};
    Parameter<bool> All{Unkeyed, "All", false, Step, Hold};
    Numeric<float> SmoothingFrames{Unkeyed, "SmoothingFrames", 10, 0, 50, Step, Hold};
    /// Assignment leaves it as it was in the target; a copy takes it.
    TQ::KeptOnAssignment<Parameter<bool>> MaximumSmoothing{Unkeyed, "MaximumSmoothing", false, Step, Hold};
    Parameter<bool> BorderAutoFill{Unkeyed, "BorderAutoFill", false, Step, Hold};
    Parameter<bool> FillFromBackground{Unkeyed, "FillFromBackground", false, Step, Hold};
    Numeric<unsigned int> AutoFillFrameRange{Keyed, "AutoFillFrameRange", 10, 1, LargestUInt, Step, Hold};
    Parameter<bool> BorderApplyIlluminationModel{Unkeyed, "BorderApplyIlluminationModel", false, Step, Hold};
    Parameter<bool> BorderApplyBlending{Unkeyed, "BorderApplyBlending", false, Step, Hold};
    Parameter<bool> FrameAutoFitShift{Unkeyed, "FrameAutoFitShift", false, Step, Hold};
    Parameter<bool> FrameAutoFitZoom{Unkeyed, "FrameAutoFitZoom", false, Step, Hold};
    Parameter<bool> ApplyEdgeEnhancement{Unkeyed, "ApplyEdgeEnhancement", false, Step, Hold};
    Numeric<float> EdgeEnhancement{Unkeyed, "EdgeEnhancement", 1, 0, 10, Step, Hold};
    /// Not owned.
    TQ_BaseClipInfoContainer* clipContainer = nullptr;
};

} // namespace TQ::Table

/// Settings of the stabilize module, named "Stabilize". Copies cover every member; assignment covers all
/// but "MaximumSmoothing". Both take the container pointers and share the moved "Render" with their
/// source.
class TQ_StabilizeParameterSet : public TQ::ClipBoundParameterSet, public TQ::Table::StabilizeParameters
{
public:
    /// `container` is not owned and must outlive the set; the two frame bounds show frames through clip
    /// 1's offset in it.
    explicit TQ_StabilizeParameterSet(TQ_BaseClipInfoContainer* container);
    TQ_StabilizeParameterSet(TQ_StabilizeParameterSet const& other);
    TQ_StabilizeParameterSet& operator=(TQ_StabilizeParameterSet const& other);
    ~TQ_StabilizeParameterSet() override;

    /// Forgets `clipId` in "InputClipID", "StabilizeClipID" and "OutputClipID".
    void removeReferencesToClip(unsigned int clipId) override;

private:
    void init();
};
