#pragma once
#include "modules/ClipBoundParameterSet.h"
#include "modules/ColourFilterParameterSet.h"
#include "modules/InsertBlurParameterSet.h"
#include "modules/InsertCompositeParameterSet.h"
#include "modules/InsertEdgeParameterSet.h"
#include "modules/InsertOffsetParameterSet.h"
#include "modules/InsertROIParameterSet.h"
#include "modules/LuminanceEffectsParameterSet.h"
#include "prm/NumericParameter.h"

class TQ_BaseClipInfoContainer;

namespace TQ {

/// The insert set's own parameters, in text order, with the moved "Render" after "Rendered": all that an
/// assignment of the set carries over.
struct InsertMembers {
    Prm::Parameter<unsigned int> InputClipID{false, "InputClipID", 1u, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<unsigned int> InsertClipID{false, "InsertClipID", 0u, Prm::InterpolationStep,
                                              Prm::ExtrapolationHold};
    Prm::NumericParameter<bool> InsertPremultiplied{true, "InsertPremultiplied", false, false, true,
                                                    Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<unsigned int> MatteClipID{false, "MatteClipID", 0u, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<bool> RenderSurfaceMatte{false, "RenderSurfaceMatte", false, Prm::InterpolationStep,
                                            Prm::ExtrapolationHold};
    Prm::Parameter<unsigned int> SurfaceMatteClipID{false, "SurfaceMatteClipID", 0u, Prm::InterpolationStep,
                                                    Prm::ExtrapolationHold};
    Prm::Parameter<unsigned int> AlphaInputClipID{false, "AlphaInputClipID", 0u, Prm::InterpolationStep,
                                                  Prm::ExtrapolationHold};
    Prm::Parameter<unsigned int> AlphaInsertClipID{false, "AlphaInsertClipID", 0u, Prm::InterpolationStep,
                                                   Prm::ExtrapolationHold};
    Prm::Parameter<unsigned int> OutputClipID{false, "OutputClipID", 0u, Prm::InterpolationStep,
                                              Prm::ExtrapolationHold};
    Prm::Parameter<bool> Rendered{true, "Rendered", true, Prm::InterpolationUnset, Prm::ExtrapolationUnset};
    ClipBoundParameterSet::MovedParameterHandle Render = ClipBoundParameterSet::newMovedParameter("Render");
    Prm::Parameter<bool> TrackOnRender{true, "TrackOnRender", false, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<QString> URL{true, "URL", QString(""), Prm::InterpolationStep, Prm::ExtrapolationHold};
};

} // namespace TQ

/// The insert module, "Insert": the clips around an inserted image and, as child sets in this order of
/// the text, its region of interest, compositing, blur, offset, edge, luminance effects and colour filter.
///
/// A copy copies everything, the children and the container pointer included (its ROI coordinates still
/// read the source's "InsertClipID", so the source should outlive the copy). An assignment carries only
/// the set's own parameters and the moved "Render": the children and the container stay as they were.
class TQ_InsertParameterSet : public TQ::ClipBoundParameterSet, public TQ::InsertMembers
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
