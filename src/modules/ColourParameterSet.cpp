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

bool TQ_ColourParameterSet::bStreamIn(QString const& line)
{
    int const dot = line.indexOf(QLatin1Char('.'));
    QString const rest = line.mid(dot + 1);
    int const fieldDot = rest.indexOf(QLatin1Char('.'));
    if (dot <= 0 || fieldDot <= 0 || line.leftRef(dot) != bands[0].qstrScriptName())
        return TQ::ClipBoundParameterSet::bStreamIn(line);
    QVector<Prm::ParameterWithoutType*> const parameters = bands[0].parameterList();
    int const position = parameters.indexOf(bands[0].findParameter(rest.left(fieldDot)));
    Prm::TextField const field = Prm::eTextField(rest.mid(fieldDot + 1));
    if (position >= 0 && field != Prm::TextField::Unknown) {
        // Lines of one band come in the order of its parameters, then of their fields; only keys repeat.
        int const order = position * 8 + static_cast<int>(field);
        bool const bFits = order > iLastBandLine || (order == iLastBandLine && field == Prm::TextField::Keyframes);
        if (!bFits)
            iReadingBand = (iReadingBand + 1) % 4;
        iLastBandLine = order;
    }
    return bands[iReadingBand].bStreamIn(rest);
}
