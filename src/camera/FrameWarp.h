#pragma once
#include "gandalf/BSpline.h"
#include "gandalf/Camera.h"
#include "gandalf/Matrix.h"

#include <QPointF>

class QTextStream;

namespace TQ {

/// One frame's mapping of points from one image to another: a homography with an optional lens camera on
/// each side. The back-projection camera takes a point out of the source image's distorted space before
/// the homography, the projection camera puts it into the destination image's distorted space after it.
///
/// A plain value without a base and without virtual functions; the fields are public because
/// `TQ::ParameterisedFrameWarp` reads and writes them directly. The warp owns the two weights buffers that
/// stand in `ptProjectionWeights` and `ptBackprojectionWeights` and deletes them when it dies. Copies are
/// deep: a copy gets buffers of its own, and a camera of the copy that used the source's buffer uses the
/// copy's.
///
/// The mappings are const and change only the point they are given: any number of threads may map
/// points through one warp at once, as long as nothing sets it meanwhile. They allocate nothing, report
/// nothing and throw nothing; a failed mapping leaves the point as each function states.
class FrameWarp {
public:
    /// Persisted as the "Type" of a `TQ::ParameterisedFrameWarp`. The library stores and streams the
    /// number only and names no value; 0 is the initial value.
    enum _Type : int {};

    /// Every field zero: both flags false, null weights, zero cameras and zero matrices. Such a warp must
    /// be filled by `vSetAttributes` or `TQ::ParameterisedFrameWarp::populateFrameWarp` before it maps.
    FrameWarp();
    /// Deep: the copy owns buffers of its own (see the class comment).
    FrameWarp(FrameWarp const& other);
    /// Deep, as the copy constructor; the buffers held before are freed.
    FrameWarp& operator=(FrameWarp const& other);
    /// Deletes both weights buffers.
    ~FrameWarp();

    /// Fills the whole warp.
    ///
    /// The cameras are copied flat and the matrix is kept as given in `tHomographyAsGiven`. A matrix
    /// without an inverse leaves the identity in `tHomography` and `tInverseHomography`. Each camera flag
    /// ends up true whatever is passed: false, or true with a camera that is not linear, switches the
    /// camera on. A camera on the weight grid (types 12 and 13) gets the warp's buffer as its weights,
    /// allocated here when its weights argument is null, and the grid is copied into that buffer unless
    /// it already lives there. Ownership of both weights arguments passes to the warp in every case;
    /// buffers held before the call are not freed, so a caller who sets a warp again passes them back
    /// in or takes them out first.
    void vSetAttributes(unsigned int uiClipID, int iLayerID, unsigned int uiAttribute1, unsigned int uiAttribute2,
                        bool bUseBackprojectionCamera, Gan_Camera const& tBackprojectionCamera,
                        Gan_CubicBSplineWeights* ptBackprojectionWeights, Gan_Matrix33 const& tHomography,
                        bool bUseProjectionCamera, Gan_Camera const& tProjectionCamera,
                        Gan_CubicBSplineWeights* ptProjectionWeights);

    /// Maps `p` forwards: back-projection camera, `tHomography`, projection camera (or, without one, the
    /// scaling to the projection camera's image plane). When the back-projection fails `p` stays as that
    /// camera left it; when the projection fails, or the product has z equal to zero, `p` is restored.
    void vWarpPoint(Gan_Vector3& p) const;
    /// The forward mapping of (x, y) on the back-projection camera's image plane.
    void vWarpPoint(Gan_Vector2& p) const;
    void vWarpPoint(double& x, double& y) const;
    /// Computed in double precision and narrowed back.
    void vWarpPoint(float& x, float& y) const;
    /// `p` points at two floats, x then y.
    void vWarpPoint(float* p) const;

    /// Maps `p` backwards: the projection camera's back-projection, `tInverseHomography`, the
    /// back-projection camera's projection (or the scaling to its image plane). Any failure, and a zero z
    /// at the end, restores `p`.
    void vUnwarpPoint(Gan_Vector3& p) const;
    /// The backward mapping of (x, y) on the projection camera's image plane.
    void vUnwarpPoint(double& x, double& y) const;
    void vUnwarpPoint(float& x, float& y) const;

    /// The forward mapping of `pt`, taken at float precision, with each coordinate of the result narrowed
    /// to float and truncated toward zero to a whole number (NaN and values outside int give INT_MIN).
    QPointF getPointWarped(QPointF const& pt) const;

    unsigned int uiClipID;
    unsigned int uiAttribute1;
    unsigned int uiAttribute2;
    /// Negative for no layer.
    int iLayerID;
    bool bUseBackprojectionCamera;
    Gan_Camera tBackprojectionCamera;
    Gan_Matrix33 tHomography;
    /// Computed once per `vSetAttributes`; `populateFrameWarp` leaves it alone.
    Gan_Matrix33 tInverseHomography;
    bool bUseProjectionCamera;
    Gan_Camera tProjectionCamera;
    /// The matrix exactly as `vSetAttributes` received it, singular or not; for callers outside.
    Gan_Matrix33 tHomographyAsGiven;
    /// Owned, or null.
    Gan_CubicBSplineWeights* ptProjectionWeights;
    /// Owned, or null.
    Gan_CubicBSplineWeights* ptBackprojectionWeights;

private:
    /// Deletes both buffers (one buffer in both fields once) and nulls the fields.
    void vFreeWeights();
    /// Makes this warp a deep copy of `other`, which is not this warp.
    void vCopyFrom(FrameWarp const& other);
};

// Beside the type, so that argument-dependent lookup finds them from the parameter templates.
/// Writes the value as a decimal int.
QTextStream& operator<<(QTextStream& stream, FrameWarp::_Type const& value);
/// Reads a decimal unsigned int and keeps it as it stands, whether or not it names anything.
QTextStream& operator>>(QTextStream& stream, FrameWarp::_Type& value);

} // namespace TQ
