#pragma once
/// A camera: focal lengths, image centre, image-plane coordinate and one lens model, with the two point
/// functions that the model installs.
///
/// Coordinates and units
/// - A 3-D point (X, Y, Z), Z != 0, has the undistorted normalised coordinates xu = X / Z, yu = Y / Z
///   (no unit). Only these ratios are used: a point behind the camera projects like its mirror image.
/// - A lens model turns (xu, yu) into distorted normalised coordinates (xd, yd). r^2 = xu^2 + yu^2 is
///   the undistorted radius squared, rd^2 = xd^2 + yd^2 the distorted one.
/// - Pixels: u = fx xd + x0, v = fy yd + y0. Pixel (col, row) covers [col, col + 1) x [row, row + 1), so
///   its centre is (col + 0.5, row + 0.5). fx and fy are focal lengths in pixels, x0 and y0 the centre.
/// - Homogeneous image points: projection gives (u, v, zh); an image point (x, y, z), z != 0, is the
///   pixel (x zh / z, y zh / z). Back-projection gives the ray point (xu, yu, 1).
///
/// Lens models by `type` (coefficients in `d`, slot 1 is `d[0]`):
/// - 0, linear: xd = xu, yd = yu. Every point is in its domain.
/// - 1, 2, 3, radial: (xd, yd) = (xu, yu) (1 + d0 r^2 + d1 r^4 + d2 r^6), with one, two or three
///   coefficients (the others are not read). Domain: the radii from 0 to r over which the distorted radius
///   r (1 + ...) strictly grows, so that each distorted point has one undistorted point. Back-projection
///   inverts the radius by Newton's method.
/// - 4 and 14, inverse radial: (xu, yu) = (xd, yd) (1 + d0 rd^2 (+ d1 rd^4)), one or two coefficients.
///   Back-projection is closed form; projection solves the radius by Newton's method. Domain: the
///   distorted radii over which rd (1 + ...) strictly grows.
/// - 5 to 8, fish-eye, with theta = atan(r) the angle from the axis, in radians: rd = 2 tan(theta / 2)
///   (5, stereographic), rd = theta (6, equidistant), rd = sin theta (7, sine law), rd = 2 sin(theta / 2)
///   (8, equi-solid-angle). The direction is kept: (xd, yd) = (xu, yu) rd / r. Projection accepts every
///   point; back-projection accepts rd below the value at theta = pi / 2 (2, pi / 2, 1, sqrt 2), both
///   closed form.
/// - 9, anamorphic: xd = xu (1 + d0 xu^2 + d1 yu^2), yd = yu (1 + d2 xu^2 + d3 yu^2). Domain: the points
///   (xu, yu) whose box [-|xu|, |xu|] x [-|yu|, |yu|] has, everywhere, a Jacobian with positive diagonal
///   and positive determinant (the map is one-to-one on that box). Back-projection by Newton's method.
/// - 12, cubic B-spline displacement: in pixel offsets from the centre, pu = (fx xu, fy yu) and
///   pd = (fx xd, fy yd), pd = pu + D(pu). D is the uniform cubic B-spline whose control points are the
///   17 x 17 `weights` (pixels; `weight[i][j].x` and `.y`, row i along y, column j along x), placed at
///   offsets (-zh + j zh / 8, -zh + i zh / 8): the grid spans [-zh, zh] in both directions, which with
///   zh = half the frame width covers the frame. Near the border the outer control points repeat, and
///   past the grid D keeps its value at the border, so every point is in the domain (needs zh > 0).
///   Back-projection by Newton's method. Keep the field's slope below 1 (neighbouring weights differ by
///   less than zh / 8): where it folds the plane over, a point has several inverses or none.
/// - 13, its inverse: the same field applied to the distorted offset, pu = pd + D(pd). Projection by
///   Newton's method.
/// - 15, distortion map images: `map.direct` gives, at each pixel of the undistorted frame, the distorted
///   pixel (channel 0 x, channel 1 y, in pixels, absolute); `map.inverse` gives the undistorted pixel at
///   each pixel of the distorted frame. Both are `GAN_VECTOR_FIELD_2D` images of `GAN_FLOAT`, read
///   bilinearly with samples at the pixel centres; between the outer centres and the frame edge the
///   outer two samples are extended linearly. Domain: the image's frame [0, width] x [0, height].
///   The images are not owned by the camera and must outlive it.
/// - 10, 11 and any other number: no model; both point functions fail.
///
/// Failures: every point function returns GAN_FALSE, leaves the output untouched and, when `error` is
/// not null, stores a non-zero code in it (0 on success) for: a null camera or point, a point with a
/// non-finite coordinate or z = 0 (Z = 0 for projection), a camera with a non-finite field, a zero focal
/// length or a zero image-plane coordinate, a null or malformed image or weight table, a point outside the
/// model's domain, or an inverse that does not converge. An inverse by Newton's method succeeds only
/// when its result is within 1e-9 pixel of the exact one (and its image within 1e-9 pixel of the input);
/// the iteration count is capped. A weight of the grid that is not finite fails the points that read
/// it; `gan_camera_internalize` checks them all. The functions never write to the error trace (they
/// run per point), allocate nothing and read nothing outside the images or the weight table. They
/// are thread-safe.
#include "gandalf/BSpline.h"
#include "gandalf/CameraType.h"
#include "gandalf/Common.h"
#include "gandalf/Image.h"
#include "gandalf/Matrix.h"

#ifdef __cplusplus
extern "C" {
#endif

struct Gan_Camera;

/// Projects the 3-D point `in` to the homogeneous image point `out` (u, v, zh). `in` and `out` may be
/// the same vector. The three reserved arguments are not read; pass null.
typedef Gan_Bool (*Gan_CameraPointProjectFunc)(struct Gan_Camera const* camera, Gan_Vector3 const* in,
                                               Gan_Vector3* out, void* reserved1, void* reserved2,
                                               void* reserved3, int* error);

/// Back-projects the homogeneous image point `in` to the ray point `out` (xu, yu, 1). `in` and `out` may
/// be the same vector. The reserved argument is not read; pass null.
typedef Gan_Bool (*Gan_CameraPointBackprojectFunc)(struct Gan_Camera const* camera, Gan_Vector3 const* in,
                                                   Gan_Vector3* out, void* reserved, int* error);

/// The two images of a distortion map camera. They share their place with distortion slots 1 and 2.
typedef struct Gan_CameraMaps {
    Gan_Image* direct;   ///< undistorted pixel to distorted pixel; not owned
    Gan_Image* inverse;  ///< distorted pixel to undistorted pixel; not owned
} Gan_CameraMaps;

/// A camera. Plain data, copyable bytewise; it owns nothing. Fill the fields, then call
/// `gan_camera_internalize` to install the point functions. Each field is also reachable under the
/// capitalised name the camera parameters are saved under (`Fx`, `Fy`, `X0`, `Y0`, `Z`).
typedef struct Gan_Camera {
    Gan_CameraType type;
    union { double fx; double Fx; };  ///< horizontal focal length, pixels
    union { double fy; double Fy; };  ///< vertical focal length, pixels (rows)
    union { double x0; double X0; };  ///< image centre, pixels
    union { double y0; double Y0; };
    union { double zh; double Z; };   ///< image-plane coordinate: third coordinate of projected points
    union {
        double d[4];         ///< distortion coefficients, slots 1 to 4
        Gan_CameraMaps map;  ///< type 15: the two images, over slots 1 and 2
    };
    Gan_CubicBSplineWeights* weights;      ///< types 12 and 13: the displacement grid; not owned
    Gan_CubicBSplineWeights* weights_aux;  ///< kept for the owner of `weights`; no model reads it
    Gan_CameraPointProjectFunc point_project;
    Gan_CameraPointBackprojectFunc point_backproject;
} Gan_Camera;

/// Installs the point functions of `camera->type` (for a type without a model, functions that always
/// fail). Returns GAN_TRUE when the camera is ready for use: a known model, finite fields, non-zero
/// focal lengths and image-plane coordinate, finite coefficients of its model, and the images or weight
/// table it needs. On GAN_FALSE the functions are installed all the same and fail on every point, until
/// the fields are corrected. A null camera gives GAN_FALSE and nothing else.
Gan_Bool gan_camera_internalize(Gan_Camera* camera);

/// Whether the camera's fields are valid for its model, as `gan_camera_internalize` judges them.
Gan_Bool gan_camera_is_valid(Gan_Camera const* camera);

#ifdef __cplusplus
}
#endif
