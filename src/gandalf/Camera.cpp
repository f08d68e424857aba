#include "gandalf/Camera.h"

namespace {

Gan_Bool bFail(int* error)
{
    if (error)
        *error = 1;
    return GAN_FALSE;
}

Gan_Bool bProjectNone(Gan_Camera const*, Gan_Vector3 const*, Gan_Vector3*, void*, void*, void*, int* error)
{
    return bFail(error);
}

Gan_Bool bBackprojectNone(Gan_Camera const*, Gan_Vector3 const*, Gan_Vector3*, void*, int* error)
{
    return bFail(error);
}

}  // namespace

extern "C" Gan_Bool gan_camera_is_valid(Gan_Camera const*)
{
    return GAN_FALSE;
}

extern "C" Gan_Bool gan_camera_internalize(Gan_Camera* camera)
{
    if (!camera)
        return GAN_FALSE;
    camera->point_project = bProjectNone;
    camera->point_backproject = bBackprojectNone;
    return GAN_FALSE;
}
