#pragma once
#include "clip/FrameOffsetParameter.h"
#include "modules/CopyDepartures.h"
#include "modules/ParameterTable.h"

namespace TQ::Table {

/// The remove module's members in text order: clips, mode, the frame range it draws from, fill options.
/// The two frame-offset ranges and `clipContainer` get the set's container from its constructor.
struct RemoveParameters {
    Parameter<unsigned int> InputClipID = clipReference("InputClipID", 1);
    Parameter<unsigned int> CleanplateClipID = clipReference("CleanplateClipID", 0);
    Parameter<unsigned int> OutputClipID = clipReference("OutputClipID", 0);
    Parameter<TQ_REMOVESOURCE_MODE> RemoveMode{Unkeyed, "RemoveMode", TQ_REMOVESOURCE_MODE_DEFAULT, Step, Hold};
    Moved Render = moved("Render");
    /// Never registered, copied, assigned or read; kept for the layout saved projects were made with.
    TQ::NotCopied<Parameter<bool>> UnusedFlag;
    Numeric<unsigned int> BlendWidth{Keyed, "BlendWidth", 0, 0, 100, Step, Hold};
    PrmFrameOffset InputRangeMin{Keyed, "InputRangeMin", 0, 0, LargestUInt, Linear, Hold, nullptr};
    PrmFrameOffset InputRangeMax{Keyed, "InputRangeMax", LargestUInt, 0, LargestUInt, Linear, Hold, nullptr};
    Numeric<unsigned int> InputRangeBefore{Keyed, "InputRangeBefore", LargestUInt, 0, LargestUInt, Step, Hold};
    Numeric<unsigned int> InputRangeAfter{Keyed, "InputRangeAfter", LargestUInt, 0, LargestUInt, Step, Hold};
    Numeric<unsigned int> InputRangeStep{Keyed, "InputRangeStep", 1, 1, 100, Step, Hold};
    Parameter<bool> UseOpticalFlow{Keyed, "UseOpticalFlow", false, Step, Hold};
    Parameter<bool> UseFloodFill{Keyed, "UseFloodFill", false, Step, Hold};
    Parameter<TQ_ILLUMINATION_MODEL> IlluminationModel{Keyed, "IlluminationModel", TQ_ILLUMINATION_MODEL_DEFAULT,
                                                       Step, Hold};
    Numeric<float> InterpolatedSmoothingLevel{Keyed, "InterpolatedSmoothingLevel", 0.1, 0, 1, Step, Hold};
    Numeric<float> FloodFillSmoothingLevel{Keyed, "FloodFillSmoothingLevel", 0.1, 0, 1, Step, Hold};
    /// Not owned.
    TQ_BaseClipInfoContainer* clipContainer = nullptr;
};

} // namespace TQ::Table

/// Settings of the remove module, named "Remove". Copies and assignments cover every named member, the
/// container pointers included, and share the moved "Render" with their source.
class TQ_RemoveParameterSet : public TQ::ClipBoundParameterSet, public TQ::Table::RemoveParameters
{
public:
    /// `container` is not owned and must outlive the set; the frame ranges show frames through clip 1's
    /// offset in it.
    explicit TQ_RemoveParameterSet(TQ_BaseClipInfoContainer* container);
    TQ_RemoveParameterSet(TQ_RemoveParameterSet const& other);
    TQ_RemoveParameterSet& operator=(TQ_RemoveParameterSet const& other);
    ~TQ_RemoveParameterSet() override;

    /// Forgets `clipId` in "InputClipID", "CleanplateClipID" and "OutputClipID".
    void removeReferencesToClip(unsigned int clipId) override;

private:
    void init();
};
