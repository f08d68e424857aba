#pragma once
#include "camera/FrameWarp.h"
#include "camera/ParameterisedGanCamera.h"
#include "prm/NumericParameter.h"
#include "prm/Parameter.h"
#include "prm/set/ParameterSet.h"
#include "prm/basic/VirtualParameter.h"

TQ_EXTERN_STATIC_PARAMETER(TQ::FrameWarp::_Type)

namespace TQ {

/// A `TQ::FrameWarp` kept over time: a parameter set with an empty name whose keyframed parameters hold,
/// per frame, the layer, the clip, both camera flags, both cameras (as the child sets
/// "BackprojectionCamera" and "ProjectionCamera", both with the script name "GanCamera") and the nine
/// homography entries, so that a warp can be saved, read back and evaluated at any time.
///
/// The script names are persisted and stay as they are: the homography family is spelt "HomograpyXX" and
/// so on, and the entry of row 3, column 3 shares the script name "HomograpyZX" with row 3, column 1.
/// All nine entries default to 0, so the default matrix is the zero matrix. "Type" is a plain member
/// streamed through a virtual parameter that the set owns; neither conversion touches it. Not copyable.
class ParameterisedFrameWarp : public Prm::ParameterSet {
public:
    ParameterisedFrameWarp();
    ParameterisedFrameWarp(ParameterisedFrameWarp const&) = delete;
    ParameterisedFrameWarp& operator=(ParameterisedFrameWarp const&) = delete;
    ~ParameterisedFrameWarp() override;

    /// Keys `warp` at `time`: layer (a negative layer as 4294967295), clip, flags, cameras and
    /// `tHomography` (not the matrix as given), each entry clamped to its limits. The attributes, the
    /// inverse and the weights pointers are not kept.
    void setFromFrameWarp(FrameWarp const& warp, float time);
    /// Writes the values at `time` straight into the fields of `warp`: layer (4294967295 as -1), clip,
    /// flags as stored, cameras and `tHomography`. Nothing else is touched: the inverse, the matrix as
    /// given, the attributes and the weights pointers keep what they held, and the flags are not forced
    /// on. A camera on the weight grid gets the grid only when it already points at a table. The
    /// cameras' point functions stay as they were: call `gan_camera_internalize` on a camera whose model
    /// changed or that was never made ready (until then it fails every point), and pass the values on to
    /// `vSetAttributes` to bring the inverse up to date before unwarping.
    void populateFrameWarp(FrameWarp& warp, float time) const;
    /// Deletes every key of the layer, the clip, the flags and the homography; the static values, the
    /// cameras and "Type" stay.
    void reset();

    Prm::NumericParameter<unsigned int> LayerID;
    Prm::Parameter<unsigned int> ClipID;
    Prm::Parameter<bool> UseBackprojectionCamera;
    TQ_ParameterisedGanCamera BackprojectionCamera;
    Prm::Parameter<bool> UseProjectionCamera;
    TQ_ParameterisedGanCamera ProjectionCamera;
    /// Row by row: XX, XY, XZ, YX, YY, YZ, ZX, ZY, and ZZ under the script name "HomograpyZX".
    Prm::NumericParameter<double> Homography[9];
    FrameWarp::_Type Type;

private:
    /// The parameters of this set itself, in text order.
    QVector<Prm::ParameterWithoutType*> keyedParameters();
};

} // namespace TQ
