#pragma once
#include "modules/ParameterTable.h"
#include "prm/NumericParameter.h"
#include "prm/set/ParameterSet.h"

namespace TQ::Table {

/// The controls of one colour band, in text order; the only module parameters that extrapolate linearly.
struct ColourBandParameters {
    Numeric<float> Hue{Keyed, "Hue", 0.0f, 0.0f, 6.3f, Linear, Prm::ExtrapolationLinear};
    Numeric<float> Saturation{Keyed, "Saturation", 1.0f, 0.0f, 5.0f, Linear, Prm::ExtrapolationLinear};
    Numeric<float> GainBalance{Keyed, "GainBalance", 0.0f, 0.0f, 1.0f, Linear, Prm::ExtrapolationLinear};
    Numeric<float> TintBalance{Keyed, "TintBalance", 0.0f, 0.0f, 1.0f, Linear, Prm::ExtrapolationLinear};
    Numeric<float> Contrast{Keyed, "Contrast", 1.0f, 0.0f, 1.0f, Linear, Prm::ExtrapolationLinear};
    Numeric<float> Brightness{Keyed, "Brightness", 1.0f, 0.0f, 1.0f, Linear, Prm::ExtrapolationLinear};
};

} // namespace TQ::Table

/// One band of colour controls, "ColourBand": hue, saturation, gain and tint balance, contrast and
/// brightness. Names no clip, so it is a plain parameter set. Copies and assignments cover all six.
class TQ_ColourParams : public Prm::ParameterSet, public TQ::Table::ColourBandParameters
{
public:
    TQ_ColourParams();
    TQ_ColourParams(TQ_ColourParams const& other);
    TQ_ColourParams& operator=(TQ_ColourParams const& other);
    ~TQ_ColourParams() override;

private:
    void init();
};

namespace TQ::Table {

/// The colour module's clips, its live "Render" switch and its four bands, in text order.
struct ColourParameters {
    Parameter<unsigned int> InputClipID = clipReference("InputClipID", 1);
    Parameter<unsigned int> OutputClipID = clipReference("OutputClipID", 0);
    Parameter<bool> Render{Unkeyed, "Render", true, Step, Hold};
    /// All named "ColourBand": the text tells them apart by order alone.
    TQ_ColourParams bands[4];
};

} // namespace TQ::Table

/// The colour module, "Colour": input and output clips, "Render" and four colour bands as child sets.
/// Copies and assignments cover everything, the bands included.
///
/// The bands share one name, so reading tells them apart by order: each band wrote one block of lines in
/// the order of its parameters and their fields, and a line that no longer fits the current block opens
/// the next band's (after the last band, the first again, so a text can be read twice).
class TQ_ColourParameterSet : public TQ::ClipBoundParameterSet, public TQ::Table::ColourParameters
{
public:
    TQ_ColourParameterSet();
    TQ_ColourParameterSet(TQ_ColourParameterSet const& other);
    TQ_ColourParameterSet& operator=(TQ_ColourParameterSet const& other);
    ~TQ_ColourParameterSet() override;

    /// Forgets "InputClipID", then "OutputClipID".
    void removeReferencesToClip(unsigned int clipId) override;

private:
    void init();
};
