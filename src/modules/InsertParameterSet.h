#pragma once
#include "modules/ColourFilterParameterSet.h"
#include "modules/InsertBlurParameterSet.h"
#include "modules/InsertCompositeParameterSet.h"
#include "modules/InsertEdgeParameterSet.h"
#include "modules/InsertOffsetParameterSet.h"
#include "modules/InsertROIParameterSet.h"
#include "modules/LuminanceEffectsParameterSet.h"
#include "modules/ParameterTable.h"
#include "prm/NumericParameter.h"

class TQ_BaseClipInfoContainer;

namespace TQ::Table {

/// The insert set's own parameters, in text order, with the moved "Render" after "Rendered": all that an
/// assignment of the set carries over.
struct InsertParameters {
    Parameter<unsigned int> InputClipID = clipReference("InputClipID", 1);
    Parameter<unsigned int> InsertClipID = clipReference("InsertClipID", 0);
    Numeric<bool> InsertPremultiplied{Keyed, "InsertPremultiplied", false, false, true, Step, Hold};
    Parameter<unsigned int> MatteClipID = clipReference("MatteClipID", 0);
    Parameter<bool> RenderSurfaceMatte{Unkeyed, "RenderSurfaceMatte", false, Step, Hold};
    Parameter<unsigned int> SurfaceMatteClipID = clipReference("SurfaceMatteClipID", 0);
    Parameter<unsigned int> AlphaInputClipID = clipReference("AlphaInputClipID", 0);
    Parameter<unsigned int> AlphaInsertClipID = clipReference("AlphaInsertClipID", 0);
    Parameter<unsigned int> OutputClipID = clipReference("OutputClipID", 0);
    Parameter<bool> Rendered{Keyed, "Rendered", true, Prm::InterpolationUnset, Prm::ExtrapolationUnset};
    Moved Render = moved("Render");
    Parameter<bool> TrackOnRender{Keyed, "TrackOnRender", false, Step, Hold};
    Parameter<QString> URL{Keyed, "URL", QString(""), Step, Hold};
};

} // namespace TQ::Table

/// The insert module, "Insert": the clips around an inserted image and, as child sets in this order of
/// the text, its region of interest, compositing, blur, offset, edge, luminance effects and colour filter.
///
/// A copy copies everything, the children and the container pointer included (its ROI coordinates still
/// read the source's "InsertClipID", so the source should outlive the copy). An assignment carries only
/// the set's own parameters and the moved "Render": the children and the container stay as they were.
class TQ_InsertParameterSet : public TQ::ClipBoundParameterSet, public TQ::Table::InsertParameters
{
public:
    /// `clipContainer` is not owned; the ROI coordinates look their clip up in it.
    explicit TQ_InsertParameterSet(TQ_BaseClipInfoContainer* clipContainer);
    TQ_InsertParameterSet(TQ_InsertParameterSet const& other);
    TQ_InsertParameterSet& operator=(TQ_InsertParameterSet const& other);
    ~TQ_InsertParameterSet() override;

    /// Scales the keys of the Blur child's "FocusBlur".
    void rescale(float factor, float unused) override;
    /// Forgets the set's own seven clip references, then those of Composite, Blur, Luminance and
    /// ColourFilter.
    void removeReferencesToClip(unsigned int clipId) override;

    TQ_InsertROIParameterSet ROI;
    TQ_InsertCompositeParameterSet Composite;
    TQ_InsertBlurParameterSet Blur;
    TQ_InsertOffsetParameterSet Offset;
    TQ_InsertEdgeParameterSet Edge;
    TQ_LuminanceEffectsParameterSet Luminance;
    TQ_ColourFilterParameterSet ColourFilter;
    TQ_BaseClipInfoContainer* clipContainer;

private:
    void init();
};
