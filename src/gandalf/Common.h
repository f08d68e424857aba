#pragma once
/// Basic types and helpers of the vision primitives: a C-compatible subset written for this library.
#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef enum { GAN_FALSE = 0, GAN_TRUE = 1 } Gan_Bool;

/// Pixel data types. The numbers are part of saved projects: 1 is 8-bit, 3 is 16-bit, 8 is float,
/// 17 means undefined.
typedef enum {
    GAN_CHAR = 0, GAN_UCHAR = 1, GAN_SHORT = 2, GAN_USHORT = 3, GAN_INT = 4, GAN_UINT = 5,
    GAN_LONG = 6, GAN_ULONG = 7, GAN_FLOAT = 8, GAN_DOUBLE = 9, GAN_BOOL = 10, GAN_POINTER = 11,
    GAN_INT16 = 12, GAN_UINT16 = 13, GAN_INT32 = 14, GAN_UINT32 = 15, GAN_INT64 = 16,
    GAN_UNDEFINED_TYPE = 17,
    /* Saved text may hold any number: these widen the range to all of int. */
    GAN_TYPE_MIN_ENUM = -0x7FFFFFFF - 1, GAN_TYPE_MAX_ENUM = 0x7FFFFFFF
} Gan_Type;

/// Image formats (channel layouts). 13 means undefined; a two-channel vector field of floats serves as
/// a distortion map.
typedef enum {
    GAN_GREY_LEVEL_IMAGE = 0, GAN_GREY_LEVEL_ALPHA_IMAGE = 1, GAN_RGB_COLOUR_IMAGE = 2,
    GAN_RGB_COLOUR_ALPHA_IMAGE = 3, GAN_BGR_COLOUR_IMAGE = 4, GAN_BGR_COLOUR_ALPHA_IMAGE = 5,
    GAN_VECTOR_FIELD_2D = 6, GAN_VECTOR_FIELD_3D = 7, GAN_RGBX = 8, GAN_RGBAS = 9, GAN_YUVX444 = 10,
    GAN_YUVA444 = 11, GAN_YUV422 = 12, GAN_UNDEFINED_IMAGE_FORMAT = 13,
    /* Saved text may hold any number: these widen the range to all of int. */
    GAN_IMAGE_FORMAT_MIN_ENUM = -0x7FFFFFFF - 1, GAN_IMAGE_FORMAT_MAX_ENUM = 0x7FFFFFFF
} Gan_ImageFormat;

/// Square of an unsigned integer (wraps modulo 2^32 like any unsigned product).
unsigned int gan_sqr_ui(unsigned int x);

/// Copies `count` doubles from `source` (every `sourceStride`-th element) to `destination` (every
/// `destinationStride`-th). The ranges must not overlap.
void gan_copy_array_d(double const* source, unsigned long sourceStride, unsigned long count,
                      double* destination, unsigned long destinationStride);

/// Bytes per pixel of one channel of `type`, 0 for an undefined type.
size_t gan_type_sizeof(Gan_Type type);

#ifdef __cplusplus
}
#endif
