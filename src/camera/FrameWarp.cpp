#include "camera/FrameWarp.h"

#include "gandalf/Common.h"
#include "prm/ValueConversion.h"

#include <QTextStream>

#include <memory>

namespace TQ {

namespace {

// A camera never made ready has no point functions; calling it counts as a failed call.
bool bBackproject(Gan_Camera const& camera, Gan_Vector3& p)
{
    return camera.point_backproject && camera.point_backproject(&camera, &p, &p, nullptr, nullptr) != 0;
}

bool bProject(Gan_Camera const& camera, Gan_Vector3& p)
{
    return camera.point_project && camera.point_project(&camera, &p, &p, nullptr, nullptr, nullptr, nullptr) != 0;
}

// Scales `p` onto the image plane at `imagePlane`; false when z is zero (a NaN z goes on).
bool bOntoImagePlane(Gan_Vector3& p, double imagePlane)
{
    if (p.z == 0.0)
        return false;
    double const s = imagePlane / p.z;
    p.x *= s;
    p.y *= s;
    p.z = imagePlane;
    return true;
}

bool bUsesWeightGrid(Gan_CameraType type)
{
    return type == GAN_CUBIC_BSPLINE_CAMERA || type == GAN_CUBIC_BSPLINE_CAMERA_INV;
}

// Switches a camera on unless it is already on and linear, and gives a camera on the weight grid the
// warp's own buffer. `given` is the caller's camera, which may be `stored` itself.
void vSettleCamera(bool& bUse, Gan_Camera& stored, Gan_Camera const& given, Gan_CubicBSplineWeights*& owned)
{
    if (bUse && given.type == GAN_LINEAR_CAMERA)
        return;
    bUse = true;
    if (!bUsesWeightGrid(given.type))
        return;
    if (!owned)
        owned = new Gan_CubicBSplineWeights();
    stored.weights = owned;
    stored.weights_aux = nullptr;
    // A camera without a grid has nothing to copy; the buffer keeps what it holds.
    if (given.weights && given.weights != owned)
        gan_copy_array_d(&given.weights->weight[0][0].x, 1, 2 * gan_sqr_ui(GAN_CUBIC_BSPLINE_GRID_SIZE),
                         &owned->weight[0][0].x, 1);
}

// Maps (x, y) on the image plane at `z` through `map`, in double precision.
template <class T, class Map>
void vMapPair(T& x, T& y, double z, Map map)
{
    Gan_Vector3 p{x, y, z};
    map(p);
    x = static_cast<T>(p.x);
    y = static_cast<T>(p.y);
}

Gan_CubicBSplineWeights* ptDuplicate(Gan_CubicBSplineWeights const* weights)
{
    return weights ? new Gan_CubicBSplineWeights(*weights) : nullptr;
}

} // namespace

FrameWarp::FrameWarp()
    : uiClipID(0), uiAttribute1(0), uiAttribute2(0), iLayerID(0), bUseBackprojectionCamera(false),
      tBackprojectionCamera(), tHomography(), tInverseHomography(), bUseProjectionCamera(false), tProjectionCamera(),
      tHomographyAsGiven(), ptProjectionWeights(nullptr), ptBackprojectionWeights(nullptr)
{
}

FrameWarp::FrameWarp(FrameWarp const& other) : FrameWarp()
{
    vCopyFrom(other);
}

FrameWarp& FrameWarp::operator=(FrameWarp const& other)
{
    if (this != &other)
        vCopyFrom(other);
    return *this;
}

void FrameWarp::vCopyFrom(FrameWarp const& other)
{
    // The new buffers exist before anything changes, so a failed allocation leaves this warp as it was.
    bool const bShared = other.ptBackprojectionWeights == other.ptProjectionWeights;
    std::unique_ptr<Gan_CubicBSplineWeights> projection(ptDuplicate(other.ptProjectionWeights));
    std::unique_ptr<Gan_CubicBSplineWeights> backprojection(bShared ? nullptr
                                                                    : ptDuplicate(other.ptBackprojectionWeights));
    vFreeWeights();
    uiClipID = other.uiClipID;
    uiAttribute1 = other.uiAttribute1;
    uiAttribute2 = other.uiAttribute2;
    iLayerID = other.iLayerID;
    bUseBackprojectionCamera = other.bUseBackprojectionCamera;
    tBackprojectionCamera = other.tBackprojectionCamera;
    tHomography = other.tHomography;
    tInverseHomography = other.tInverseHomography;
    bUseProjectionCamera = other.bUseProjectionCamera;
    tProjectionCamera = other.tProjectionCamera;
    tHomographyAsGiven = other.tHomographyAsGiven;
    ptProjectionWeights = projection.release();
    ptBackprojectionWeights = bShared ? ptProjectionWeights : backprojection.release();
    // A camera that used a buffer of the other warp uses this warp's copy of it.
    for (Gan_Camera* camera : {&tBackprojectionCamera, &tProjectionCamera}) {
        if (!camera->weights)
            continue;
        if (camera->weights == other.ptProjectionWeights)
            camera->weights = ptProjectionWeights;
        else if (camera->weights == other.ptBackprojectionWeights)
            camera->weights = ptBackprojectionWeights;
    }
}

FrameWarp::~FrameWarp()
{
    vFreeWeights();
}

void FrameWarp::vFreeWeights()
{
    // One buffer passed for both cameras stands in both fields; it is deleted once.
    if (ptBackprojectionWeights == ptProjectionWeights)
        ptBackprojectionWeights = nullptr;
    delete ptProjectionWeights;
    ptProjectionWeights = nullptr;
    delete ptBackprojectionWeights;
    ptBackprojectionWeights = nullptr;
}

void FrameWarp::vSetAttributes(unsigned int uiClipIDIn, int iLayerIDIn, unsigned int uiAttribute1In,
                               unsigned int uiAttribute2In, bool bUseBackprojectionCameraIn,
                               Gan_Camera const& tBackprojectionCameraIn,
                               Gan_CubicBSplineWeights* ptBackprojectionWeightsIn, Gan_Matrix33 const& tHomographyIn,
                               bool bUseProjectionCameraIn, Gan_Camera const& tProjectionCameraIn,
                               Gan_CubicBSplineWeights* ptProjectionWeightsIn)
{
    // The arguments may be this warp's own fields (a populated warp set again). They are read where each
    // step stands, so a camera argument that is the stored camera already points at the warp's buffer
    // when the grid would be copied, and nothing is copied from the memory it pointed at before.
    uiClipID = uiClipIDIn;
    iLayerID = iLayerIDIn;
    uiAttribute1 = uiAttribute1In;
    uiAttribute2 = uiAttribute2In;
    bUseBackprojectionCamera = bUseBackprojectionCameraIn;
    tBackprojectionCamera = tBackprojectionCameraIn;
    ptBackprojectionWeights = ptBackprojectionWeightsIn;
    tHomography = tHomographyIn;
    tHomographyAsGiven = tHomographyIn;
    if (!gan_mat33_invert(&tHomography, &tInverseHomography, nullptr)) {
        tHomography = gan_mat33_ident_s();
        tInverseHomography = tHomography;
    }
    bUseProjectionCamera = bUseProjectionCameraIn;
    tProjectionCamera = tProjectionCameraIn;
    ptProjectionWeights = ptProjectionWeightsIn;
    vSettleCamera(bUseBackprojectionCamera, tBackprojectionCamera, tBackprojectionCameraIn, ptBackprojectionWeights);
    vSettleCamera(bUseProjectionCamera, tProjectionCamera, tProjectionCameraIn, ptProjectionWeights);
}

void FrameWarp::vWarpPoint(Gan_Vector3& p) const
{
    Gan_Vector3 const p0 = p;
    // Unlike the other failures, a failed back-projection leaves the point as the camera left it.
    if (bUseBackprojectionCamera && !bBackproject(tBackprojectionCamera, p))
        return;
    p = gan_mat33_multv3_s(&tHomography, &p);
    bool const bDone = bUseProjectionCamera ? bProject(tProjectionCamera, p)
                                            : bOntoImagePlane(p, tProjectionCamera.zh);
    if (!bDone)
        p = p0;
}

void FrameWarp::vWarpPoint(Gan_Vector2& p) const
{
    vWarpPoint(p.x, p.y);
}

void FrameWarp::vWarpPoint(double& x, double& y) const
{
    vMapPair(x, y, tBackprojectionCamera.zh, [this](Gan_Vector3& p) { vWarpPoint(p); });
}

void FrameWarp::vWarpPoint(float& x, float& y) const
{
    vMapPair(x, y, tBackprojectionCamera.zh, [this](Gan_Vector3& p) { vWarpPoint(p); });
}

void FrameWarp::vWarpPoint(float* p) const
{
    vWarpPoint(p[0], p[1]);
}

void FrameWarp::vUnwarpPoint(Gan_Vector3& p) const
{
    Gan_Vector3 const p0 = p;
    bool bDone = !bUseProjectionCamera || bBackproject(tProjectionCamera, p);
    if (bDone) {
        p = gan_mat33_multv3_s(&tInverseHomography, &p);
        bDone = bUseBackprojectionCamera ? bProject(tBackprojectionCamera, p)
                                         : bOntoImagePlane(p, tBackprojectionCamera.zh);
    }
    if (!bDone)
        p = p0;
}

void FrameWarp::vUnwarpPoint(double& x, double& y) const
{
    vMapPair(x, y, tProjectionCamera.zh, [this](Gan_Vector3& p) { vUnwarpPoint(p); });
}

void FrameWarp::vUnwarpPoint(float& x, float& y) const
{
    vMapPair(x, y, tProjectionCamera.zh, [this](Gan_Vector3& p) { vUnwarpPoint(p); });
}

QPointF FrameWarp::getPointWarped(QPointF const& pt) const
{
    Gan_Vector3 p{static_cast<float>(pt.x()), static_cast<float>(pt.y()), tBackprojectionCamera.zh};
    vWarpPoint(p);
    // Whole numbers on purpose: the fraction is dropped, not rounded.
    return QPointF(Prm::tFromDouble<int>(static_cast<float>(p.x)), Prm::tFromDouble<int>(static_cast<float>(p.y)));
}

QTextStream& operator<<(QTextStream& stream, FrameWarp::_Type const& value)
{
    return stream << static_cast<int>(value);
}

QTextStream& operator>>(QTextStream& stream, FrameWarp::_Type& value)
{
    unsigned int uiRead = 0;
    stream >> uiRead;
    value = static_cast<FrameWarp::_Type>(static_cast<int>(uiRead));
    return stream;
}

} // namespace TQ
