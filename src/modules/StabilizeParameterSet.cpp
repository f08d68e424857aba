#include "modules/StabilizeParameterSet.h"

TQ_StabilizeParameterSet::TQ_StabilizeParameterSet(TQ_BaseClipInfoContainer* container)
    : TQ::ClipBoundParameterSet(QStringLiteral("Stabilize"))
{
    FirstFrameToStabilize.clipContainer = container;
    LastFrameToStabilize.clipContainer = container;
    clipContainer = container;
    init();
}

TQ_StabilizeParameterSet::TQ_StabilizeParameterSet(TQ_StabilizeParameterSet const& other)
    : TQ::ClipBoundParameterSet(QStringLiteral("Stabilize")), TQ::Table::StabilizeParameters(other)
{
    init();
}

TQ_StabilizeParameterSet& TQ_StabilizeParameterSet::operator=(TQ_StabilizeParameterSet const& other)
{
    if (bAssignSet<TQ::Table::StabilizeParameters>(other, {&Render})) {
        // A frame offset's own assignment leaves its container alone.
        FirstFrameToStabilize.clipContainer = other.FirstFrameToStabilize.clipContainer;
        LastFrameToStabilize.clipContainer = other.LastFrameToStabilize.clipContainer;
    }
    return *this;
}

TQ_StabilizeParameterSet::~TQ_StabilizeParameterSet() = default;

void TQ_StabilizeParameterSet::init()
{
    vAddParameters({&InputClipID, &StabilizeClipID, &OutputClipID, &FixedFrames, &ApplyToWholeImage,
                    &ApplyMatteInComposite, &ApplyCrop, &FirstFrameToStabilize, &LastFrameToStabilize, &XTranslation,
                    &YTranslation, &Rotation, &Zoom, &XShear, &YShear, &XForeshortening, &YForeshortening, &All,
                    &SmoothingFrames, &MaximumSmoothing, &BorderAutoFill, &FillFromBackground, &AutoFillFrameRange,
                    &BorderApplyIlluminationModel, &BorderApplyBlending, &FrameAutoFitShift, &FrameAutoFitZoom,
                    &ApplyEdgeEnhancement, &EdgeEnhancement});
    vListMovedParameters({&Render});
}

void TQ_StabilizeParameterSet::removeReferencesToClip(unsigned int clipId)
{
    vForgetClips({&InputClipID, &StabilizeClipID, &OutputClipID}, clipId);
}
