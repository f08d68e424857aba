#include "modules/InsertCompositeParameterSet.h"

#include <QCoreApplication>

TQ_InsertCompositeParameterSet::TQ_InsertCompositeParameterSet()
    : TQ::ClipBoundParameterSet(QStringLiteral("Composite"))
{
    init();
}

TQ_InsertCompositeParameterSet::TQ_InsertCompositeParameterSet(TQ_InsertCompositeParameterSet const& other)
    : TQ::ClipBoundParameterSet(QStringLiteral("Composite")), TQ::Table::InsertCompositeParameters(other)
{
    init();
}

TQ_InsertCompositeParameterSet& TQ_InsertCompositeParameterSet::operator=(TQ_InsertCompositeParameterSet const& other)
{
    bAssignSet<TQ::Table::InsertCompositeParameters>(other, {});
    return *this;
}

TQ_InsertCompositeParameterSet::~TQ_InsertCompositeParameterSet() = default;

void TQ_InsertCompositeParameterSet::init()
{
    vAddParameters({&LayerClipID, &ApplyAlphaOfInsert, &InvertAlphaOfInsert, &ApplyAlphaOfBackground,
                    &InvertAlphaOfBackground, &ApplyLayerMatte, &invertLayerMatte, &IntensityAll, &IntensityRed,
                    &IntensityGreen, &IntensityBlue, &IntensityAlpha, &ErodeAlpha});
    IntensityAll.setDisplayName(QCoreApplication::translate("Parameter", "Gain"));
    IntensityAlpha.setDisplayName(QCoreApplication::translate("Parameter", "Opacity"));
}

void TQ_InsertCompositeParameterSet::removeReferencesToClip(unsigned int clipId)
{
    forgetClip(LayerClipID, clipId);
}
