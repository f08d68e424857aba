#include "modules/InsertParameterSet.h"

TQ_InsertParameterSet::TQ_InsertParameterSet(TQ_BaseClipInfoContainer* container)
    : TQ::ClipBoundParameterSet(QStringLiteral("Insert")), ROI(&InsertClipID, container), clipContainer(container)
{
    init();
}

TQ_InsertParameterSet::TQ_InsertParameterSet(TQ_InsertParameterSet const& other)
    : TQ::ClipBoundParameterSet(QStringLiteral("Insert")), TQ::Table::InsertParameters(other), ROI(other.ROI),
      Composite(other.Composite), Blur(other.Blur), Offset(other.Offset), Edge(other.Edge),
      Luminance(other.Luminance), ColourFilter(other.ColourFilter), clipContainer(other.clipContainer)
{
    init();
}

TQ_InsertParameterSet& TQ_InsertParameterSet::operator=(TQ_InsertParameterSet const& other)
{
    bAssignSet<TQ::Table::InsertParameters>(other, {&Render});
    return *this;
}

TQ_InsertParameterSet::~TQ_InsertParameterSet() = default;

void TQ_InsertParameterSet::init()
{
    vAddParameters({&InputClipID, &InsertClipID, &InsertPremultiplied, &MatteClipID, &RenderSurfaceMatte,
                    &SurfaceMatteClipID, &AlphaInputClipID, &AlphaInsertClipID, &OutputClipID, &Rendered,
                    &TrackOnRender, &URL});
    vListMovedParameters({&Render});
    childSets << &ROI << &Composite << &Blur << &Offset << &Edge << &Luminance << &ColourFilter;
}

void TQ_InsertParameterSet::rescale(float factor, float unused)
{
    Blur.rescale(factor, unused);
}

void TQ_InsertParameterSet::removeReferencesToClip(unsigned int clipId)
{
    vForgetClips({&InputClipID, &InsertClipID, &MatteClipID, &SurfaceMatteClipID, &AlphaInputClipID,
                  &AlphaInsertClipID, &OutputClipID},
                 clipId);
    Composite.removeReferencesToClip(clipId);
    Blur.removeReferencesToClip(clipId);
    Luminance.removeReferencesToClip(clipId);
    ColourFilter.removeReferencesToClip(clipId);
}
