#include "modules/ColourParameterSet.h"

#include "prm/text/ParameterLine.h"

TQ_ColourParams::TQ_ColourParams() : Prm::ParameterSet(QStringLiteral("ColourBand"), nullptr)
{
    init();
}

TQ_ColourParams::TQ_ColourParams(TQ_ColourParams const& other)
    : Prm::ParameterSet(QStringLiteral("ColourBand"), nullptr), TQ::Table::ColourBandParameters(other)
{
    init();
}

TQ_ColourParams& TQ_ColourParams::operator=(TQ_ColourParams const& other)
{
    if (this == &other)
        return *this;
    Prm::ParameterSet::operator=(other);
    TQ::Table::ColourBandParameters::operator=(other);
    setScriptName(other.qstrScriptName());
    return *this;
}

TQ_ColourParams::~TQ_ColourParams() = default;

void TQ_ColourParams::init()
{
    for (Prm::ParameterWithoutType* parameter : {&Hue, &Saturation, &GainBalance, &TintBalance, &Contrast, &Brightness})
        addParameter(parameter);
}

TQ_ColourParameterSet::TQ_ColourParameterSet() : TQ::ClipBoundParameterSet(QStringLiteral("Colour"))
{
    init();
}

TQ_ColourParameterSet::TQ_ColourParameterSet(TQ_ColourParameterSet const& other)
    : TQ::ClipBoundParameterSet(QStringLiteral("Colour")), TQ::Table::ColourParameters(other)
{
    init();
}

TQ_ColourParameterSet& TQ_ColourParameterSet::operator=(TQ_ColourParameterSet const& other)
{
    bAssignSet<TQ::Table::ColourParameters>(other, {});
    return *this;
}

TQ_ColourParameterSet::~TQ_ColourParameterSet() = default;

void TQ_ColourParameterSet::init()
{
    vAddParameters({&InputClipID, &OutputClipID, &Render});
    for (TQ_ColourParams& band : bands)
        childSets.append(&band);
}

void TQ_ColourParameterSet::removeReferencesToClip(unsigned int clipId)
{
    vForgetClips({&InputClipID, &OutputClipID}, clipId);
}

