#include "camera/Camera.h"

#include "clip/BaseClipInfo.h"

namespace TQ {

namespace {

bool bFieldBased(_TQ_INTERLACE_MODE mode)
{
    return mode == TQ_INTERLACE_FIELDS_1 || mode == TQ_INTERLACE_FIELDS_2;
}

/// Mode 1 starts with the upper field on even frames, mode 2 on odd ones.
bool bSecondField(_TQ_INTERLACE_MODE mode, unsigned int frame)
{
    bool const bOdd = (frame & 1u) != 0;
    return (mode == TQ_INTERLACE_FIELDS_1 && bOdd) || (mode == TQ_INTERLACE_FIELDS_2 && !bOdd);
}

} // namespace

Gan_Camera Camera::toGanCamera(QSize const& size, double filmBackWidth, double pixelAspectRatio, bool fieldBased,
                               bool secondField) const
{
    double const w = size.width();
    double const h = size.height();
    Gan_Camera camera = {};
    camera.type = distortionActive ? type : GAN_LINEAR_CAMERA;
    camera.x0 = imageCentreX * w;
    camera.y0 = imageCentreY * h;
    camera.fx = focalDistance * w / filmBackWidth;
    camera.fy = camera.fx * pixelAspectRatio;
    camera.zh = w * 0.5;
    if (distortionActive) {
        switch (type) {
        case GAN_RADIAL_DISTORTION_1:
        case GAN_RADIAL_DISTORTION_1_INV:
            camera.d[0] = radialK1;
            break;
        case GAN_RADIAL_DISTORTION_2:
            camera.d[0] = radialK1;
            camera.d[1] = radialK2;
            break;
        case GAN_XY_DISTORTION_4:
            camera.d[0] = cxx;
            camera.d[1] = cxy;
            camera.d[2] = cyx;
            camera.d[3] = cyy;
            break;
        case GAN_DISTORTION_MAP:
            camera.map.direct = directMap.get();
            camera.map.inverse = inverseMap.get();
            break;
        default:
            break;
        }
    }
    if (fieldBased) {
        camera.fy *= 0.5;
        if (secondField)
            camera.y0 += 0.5;
    }
    gan_camera_internalize(&camera);
    return camera;
}

Gan_Camera Camera::toGanCamera(unsigned int frame, TQ_BaseClipInfo const& clip) const
{
    bool const fieldBased = bFieldBased(clip.eInterlaceMode);
    bool const secondField = fieldBased && bSecondField(clip.eInterlaceMode, frame);
    return toGanCamera(clip.getFrameSize(), clip.filmType.filmBackWidth, clip.PixelAspectRatio, fieldBased,
                       secondField);
}

void Camera::update(Gan_Camera* camera, unsigned int frame, TQ_BaseClipInfo const* clip)
{
    if (!camera || !clip)
        return;
    double y = camera->y0;
    if (bSecondField(clip->eInterlaceMode, frame))
        y -= 0.5;
    double const width = clip->FrameWidth;
    imageCentreX = static_cast<float>(camera->x0 / width);
    imageCentreY = static_cast<float>(y / clip->FrameHeight);
    focalDistance = static_cast<float>(camera->fx * clip->filmType.filmBackWidth / width);
    if (!distortionActive || type < GAN_RADIAL_DISTORTION_1 || type > GAN_XY_DISTORTION_4)
        return;
    switch (type) {
    case GAN_RADIAL_DISTORTION_1:
    case GAN_RADIAL_DISTORTION_1_INV:
        radialK1 = static_cast<float>(camera->d[0]);
        break;
    case GAN_RADIAL_DISTORTION_2:
        radialK1 = static_cast<float>(camera->d[0]);
        radialK2 = static_cast<float>(camera->d[1]);
        break;
    case GAN_XY_DISTORTION_4:
        cxx = static_cast<float>(camera->d[0]);
        cxy = static_cast<float>(camera->d[1]);
        cyx = static_cast<float>(camera->d[2]);
        cyy = static_cast<float>(camera->d[3]);
        break;
    default:
        break;
    }
}

} // namespace TQ
