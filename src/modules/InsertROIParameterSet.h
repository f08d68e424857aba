#pragma once
#include "modules/ParameterTable.h"
#include "prm/NumericParameter.h"

#include <QPointer>

class TQ_BaseClipInfoContainer;

namespace TQ {

/// A coordinate stored as a fraction of a clip's frame and shown in that clip's pixels: times the frame
/// width for an X coordinate (`bHorizontal`), times the frame height for a Y coordinate, twice the height
/// when the clip is interlaced. The clip is the one `clipIdParameter` names at the time.
///
/// Neither pointer is owned. The clip parameter is watched from construction or assignment on, so a copy
/// that outlives the parameter it reads shows its values unscaled; set it through `vSetClipIdParameter` to
/// keep that. The container must outlive this parameter. With clip id 0, no container or no such clip,
/// the value shows unscaled.
class ROIParameter : public Prm::NumericParameter<float>
{
public:
    ROIParameter(bool bKeyframed, char const* name, float value, float minimum, float maximum,
                 Prm::Interpolation interpolation, Prm::Extrapolation extrapolation,
                 Prm::Parameter<unsigned int>* clipIdParameter, TQ_BaseClipInfoContainer* clipContainer,
                 bool bHorizontal);
    /// Copies the base, the limits and the three fields.
    ROIParameter(ROIParameter const& other);
    /// The base's assignment (limits included), then the three fields.
    ROIParameter& operator=(ROIParameter const& other);
    ~ROIParameter() override;

    float value2Display(float value, float time) const override;
    float display2Value(float value, float time) const override;
    /// Names the clip through `clipIdParameter` (null: no clip) and watches it.
    void vSetClipIdParameter(Prm::Parameter<unsigned int>* clipIdParameter);

    Prm::Parameter<unsigned int>* clipIdParameter;
    TQ_BaseClipInfoContainer* clipContainer;
    bool bHorizontal;

private:
    /// Null once `clipIdParameter` is destroyed.
    QPointer<QObject> clipIdGuard;

    /// Pixels per unit of the stored value at `time`.
    float fScale(float time) const;
};

} // namespace TQ

namespace TQ::Table {

/// The parameters of the region of interest, in text order.
struct InsertROIParameters {
    InsertROIParameters(Parameter<unsigned int>* clipIdParameter, TQ_BaseClipInfoContainer* clipContainer);

    ROIParameter ROIX1;
    ROIParameter ROIY1;
    ROIParameter ROIX2;
    ROIParameter ROIY2;
};

} // namespace TQ::Table

/// The region of interest of an inserted image, "ROI": two corners as fractions of the frame of the clip
/// that the insert set's "InsertClipID" names. It names no clip of its own: `rescale` and
/// `removeReferencesToClip` do nothing.
///
/// Copies and assignments carry each coordinate's clip parameter and container pointers over unchanged,
/// so a copy still reads the clip parameter of the set it was copied from.
class TQ_InsertROIParameterSet : public TQ::ClipBoundParameterSet, public TQ::Table::InsertROIParameters
{
public:
    using ROIParameter = TQ::ROIParameter;

    /// `clipIdParameter` names the clip whose frame the coordinates are fractions of; neither pointer is
    /// owned.
    TQ_InsertROIParameterSet(Prm::Parameter<unsigned int>* clipIdParameter, TQ_BaseClipInfoContainer* clipContainer);
    TQ_InsertROIParameterSet(TQ_InsertROIParameterSet const& other);
    TQ_InsertROIParameterSet& operator=(TQ_InsertROIParameterSet const& other);
    ~TQ_InsertROIParameterSet() override;

private:
    void init();
};
