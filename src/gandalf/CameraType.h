#pragma once
/// Lens models of a camera. The numbers are stored in saved projects. 10 and 11 are reserved and have
/// no model.

#ifdef __cplusplus
extern "C" {
#endif

typedef enum {
    GAN_LINEAR_CAMERA = 0,                 ///< pinhole, no distortion
    GAN_RADIAL_DISTORTION_1 = 1,           ///< radial, factor 1 + K1 r^2
    GAN_RADIAL_DISTORTION_2 = 2,           ///< radial, factor 1 + K1 r^2 + K2 r^4
    GAN_RADIAL_DISTORTION_3 = 3,           ///< radial, factor 1 + K1 r^2 + K2 r^4 + K3 r^6
    GAN_RADIAL_DISTORTION_1_INV = 4,       ///< inverse radial, one coefficient
    GAN_STEREOGRAPHIC_CAMERA = 5,          ///< fish-eye, stereographic
    GAN_EQUIDISTANT_CAMERA = 6,            ///< fish-eye, equidistant
    GAN_SINE_LAW_CAMERA = 7,               ///< fish-eye, sine law
    GAN_EQUI_SOLID_ANGLE_CAMERA = 8,       ///< fish-eye, equi-solid-angle
    GAN_XY_DISTORTION_4 = 9,               ///< anamorphic, separate x and y terms
    GAN_RESERVED_CAMERA_10 = 10,
    GAN_RESERVED_CAMERA_11 = 11,
    GAN_CUBIC_BSPLINE_CAMERA = 12,         ///< cubic B-spline displacement field of 17 x 17 weights
    GAN_CUBIC_BSPLINE_CAMERA_INV = 13,     ///< its inverse
    GAN_RADIAL_DISTORTION_2_INV = 14,      ///< inverse radial, two coefficients
    GAN_DISTORTION_MAP = 15,               ///< direct and inverse distortion map images
    /* Saved text may hold any number: these widen the range to all of int. */
    GAN_CAMERA_TYPE_MIN_ENUM = -0x7FFFFFFF - 1,
    GAN_CAMERA_TYPE_MAX_ENUM = 0x7FFFFFFF
} Gan_CameraType;

#ifdef __cplusplus
}
#endif
