#include "modules/LayerParameterSet.h"

TQ_LayerParameterSet::TQ_LayerParameterSet(TQ_BaseClipInfoContainer*)
    : TQ::ClipBoundParameterSet(QStringLiteral("Basic"))
{
    init();
}

TQ_LayerParameterSet::TQ_LayerParameterSet(TQ_LayerParameterSet const& other)
    : TQ::ClipBoundParameterSet(QStringLiteral("Basic")), TQ::Table::LayerParameters(other)
{
    init();
}

TQ_LayerParameterSet& TQ_LayerParameterSet::operator=(TQ_LayerParameterSet const& other)
{
    bAssignSet<TQ::Table::LayerParameters>(other, {&Hidden, &Locked});
    return *this;
}

TQ_LayerParameterSet::~TQ_LayerParameterSet() = default;

void TQ_LayerParameterSet::init()
{
    vAddParameters({&Active, &LinkToTracker, &SelectionLinkedToTrack, &LinkToAdjustedTrack, &EdgeWidthToApply,
                    &InPoint, &OutPoint, &BlendMode, &Invert, &MotionBlurMatte, &ShutterAngle, &ShutterPhase,
                    &MotionBlurQuality});
    vListMovedParameters({&Hidden, &Locked});
    vHide({&LinkToTracker, &SelectionLinkedToTrack, &LinkToAdjustedTrack, &EdgeWidthToApply, &InPoint, &OutPoint,
           &BlendMode, &Invert},
          true);
}
