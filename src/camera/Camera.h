#pragma once
#include "gandalf/Camera.h"

#include <QSize>
#include <boost/shared_ptr.hpp>

struct Gan_Image;
class TQ_BaseClipInfo;

namespace TQ {

/// One frame's camera in a form that does not depend on the clip: focal length in the film back's unit,
/// image centre as fractions of the frame, and the lens model's coefficients. A Gandalf camera for a given
/// clip and frame is made from it on demand, and brought back with `update`.
///
/// A plain value; copies share the two distortion map images. A default value is a linear camera with
/// every number 0 and no images. Nothing throws.
class Camera {
public:
    Gan_CameraType type = GAN_LINEAR_CAMERA;
    float focalDistance = 0.0f;
    /// Fraction of the frame width.
    float imageCentreX = 0.0f;
    /// Fraction of the frame height.
    float imageCentreY = 0.0f;
    /// When false the lens model is ignored and the camera is linear.
    bool distortionActive = false;
    float radialK1 = 0.0f;
    float radialK2 = 0.0f;
    float cxx = 0.0f;
    float cxy = 0.0f;
    float cyx = 0.0f;
    float cyy = 0.0f;
    /// The distortion map images of the distortion map model; null when there are none.
    boost::shared_ptr<Gan_Image> directMap;
    boost::shared_ptr<Gan_Image> inverseMap;

    /// The Gandalf camera for a frame of `size` pixels on a film back `filmBackWidth` wide, internalised.
    /// For field-based footage (`fieldBased`) the rows of one field are half as tall, so Fy is halved, and
    /// the second field sits half a row lower. The distortion map model gets the raw image pointers: this
    /// camera must outlive the result. A zero width or film back gives non-finite or zero values, unguarded.
    Gan_Camera toGanCamera(QSize const& size, double filmBackWidth, double pixelAspectRatio, bool fieldBased,
                           bool secondField) const;
    /// The same for `frame` of `clip`: its size, film back, pixel aspect ratio and field layout (modes 1
    /// and 2 are field-based; the second field is an odd frame in mode 1 and an even one in mode 2).
    Gan_Camera toGanCamera(unsigned int frame, TQ_BaseClipInfo const& clip) const;
    /// Takes the centre, focal length and the coefficients of this camera's model back from `camera`, which
    /// is taken to be of the same model; `type`, `distortionActive` and the images stay. A null `camera`
    /// or `clip` changes nothing.
    void update(Gan_Camera* camera, unsigned int frame, TQ_BaseClipInfo const* clip);
};

} // namespace TQ
