#pragma once
#include "modules/ClipBoundParameterSet.h"
#include "prm/NumericParameter.h"
#include "prm/ParameterSet.h"

namespace TQ {

/// The controls of one colour band, in text order; the only module parameters that extrapolate linearly.
struct ColourBandMembers {
    Prm::NumericParameter<float> Hue{true, "Hue", 0.0f, 0.0f, 6.3f, Prm::InterpolationLinear,
                                     Prm::ExtrapolationLinear};
    Prm::NumericParameter<float> Saturation{true, "Saturation", 1.0f, 0.0f, 5.0f, Prm::InterpolationLinear,
                                            Prm::ExtrapolationLinear};
    Prm::NumericParameter<float> GainBalance{true, "GainBalance", 0.0f, 0.0f, 1.0f, Prm::InterpolationLinear,
                                             Prm::ExtrapolationLinear};
    Prm::NumericParameter<float> TintBalance{true, "TintBalance", 0.0f, 0.0f, 1.0f, Prm::InterpolationLinear,
                                             Prm::ExtrapolationLinear};
    Prm::NumericParameter<float> Contrast{true, "Contrast", 1.0f, 0.0f, 1.0f, Prm::InterpolationLinear,
                                          Prm::ExtrapolationLinear};
    Prm::NumericParameter<float> Brightness{true, "Brightness", 1.0f, 0.0f, 1.0f, Prm::InterpolationLinear,
                                            Prm::ExtrapolationLinear};
};

} // namespace TQ

/// One band of colour controls, "ColourBand": hue, saturation, gain and tint balance, contrast and
/// brightness. Names no clip, so it is a plain parameter set. Copies and assignments cover all six.
class TQ_ColourParams : public Prm::ParameterSet, public TQ::ColourBandMembers
{
public:
    TQ_ColourParams();
    TQ_ColourParams(TQ_ColourParams const& other);
    TQ_ColourParams& operator=(TQ_ColourParams const& other);
    ~TQ_ColourParams() override;

private:
    void init();
};

namespace TQ {

/// The colour module's clips, its live "Render" switch and its four bands, in text order.
struct ColourMembers {
    Prm::Parameter<unsigned int> InputClipID{false, "InputClipID", 1u, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<unsigned int> OutputClipID{false, "OutputClipID", 0u, Prm::InterpolationStep,
                                              Prm::ExtrapolationHold};
    Prm::Parameter<bool> Render{false, "Render", true, Prm::InterpolationStep, Prm::ExtrapolationHold};
    /// All named "ColourBand": the text tells them apart by order alone.
    TQ_ColourParams bands[4];
};

} // namespace TQ

/// The colour module, "Colour": input and output clips, "Render" and four colour bands as child sets.
/// Copies and assignments cover everything, the bands included.
///
/// The bands share one name, so reading tells them apart by order: each band wrote one block of lines in
/// the order of its parameters and their fields, and a line that no longer fits the current block opens
/// the next band's (after the last band, the first again, so a text can be read twice).
class TQ_ColourParameterSet : public TQ::ClipBoundParameterSet, public TQ::ColourMembers
{
public:
    TQ_ColourParameterSet();
    TQ_ColourParameterSet(TQ_ColourParameterSet const& other);
    TQ_ColourParameterSet& operator=(TQ_ColourParameterSet const& other);
    ~TQ_ColourParameterSet() override;

    /// Forgets "InputClipID", then "OutputClipID".
    void removeReferencesToClip(unsigned int clipId) override;
    /// A band's line to the band whose block it continues; any other line as the base reads it.
    bool bStreamIn(QString const& line) override;

private:
    void init();

    // Reading state of the bands' blocks; each set object starts its own.
    int iReadingBand = 0;
    int iLastBandLine = -1;
};
