#include "modules/RemoveParameterSet.h"

TQ_RemoveParameterSet::TQ_RemoveParameterSet(TQ_BaseClipInfoContainer* container)
    : TQ::ClipBoundParameterSet(QStringLiteral("Remove"))
{
    InputRangeMin.clipContainer = container;
    InputRangeMax.clipContainer = container;
    clipContainer = container;
    init();
}

TQ_RemoveParameterSet::TQ_RemoveParameterSet(TQ_RemoveParameterSet const& other)
    : TQ::ClipBoundParameterSet(QStringLiteral("Remove")), TQ::Table::RemoveParameters(other)
{
    init();
}

TQ_RemoveParameterSet& TQ_RemoveParameterSet::operator=(TQ_RemoveParameterSet const& other)
{
    if (bAssignSet<TQ::Table::RemoveParameters>(other, {&Render})) {
        // A frame offset's own assignment leaves its container alone.
        InputRangeMin.clipContainer = other.InputRangeMin.clipContainer;
        InputRangeMax.clipContainer = other.InputRangeMax.clipContainer;
    }
    return *this;
}

TQ_RemoveParameterSet::~TQ_RemoveParameterSet() = default;

void TQ_RemoveParameterSet::init()
{
    vAddParameters({&InputClipID, &CleanplateClipID, &OutputClipID, &RemoveMode, &BlendWidth, &InputRangeMin,
                    &InputRangeMax, &InputRangeBefore, &InputRangeAfter, &InputRangeStep, &UseOpticalFlow,
                    &UseFloodFill, &IlluminationModel, &InterpolatedSmoothingLevel, &FloodFillSmoothingLevel});
    vListMovedParameters({&Render});
}

void TQ_RemoveParameterSet::removeReferencesToClip(unsigned int clipId)
{
    vForgetClips({&InputClipID, &CleanplateClipID, &OutputClipID}, clipId);
}
