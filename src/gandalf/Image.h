#pragma once
/// Images: a block of pixels of one format and channel type, and the header of an image file.
#include "gandalf/Common.h"

#ifdef __cplusplus
extern "C" {
#endif

/// A `height` x `width` image whose rows follow each other, `stride` bytes apart. The image owns
/// `pix_data` when it was made by `gan_image_alloc`.
typedef struct Gan_Image {
    Gan_ImageFormat format;
    Gan_Type type;
    unsigned long height, width;
    unsigned long stride;  ///< bytes from one row to the next
    void* pix_data;
} Gan_Image;

/// Number of channels of a pixel of `format`, 0 for the undefined format.
unsigned int gan_image_format_channels(Gan_ImageFormat format);

/// A new zero-filled image, or null for an undefined format or type, a size that overflows, or no memory.
/// Free it with `gan_image_free`. A distortion map is `GAN_VECTOR_FIELD_2D` of `GAN_FLOAT`.
Gan_Image* gan_image_alloc(Gan_ImageFormat format, Gan_Type type, unsigned long height, unsigned long width);

/// Frees an image made by `gan_image_alloc`, pixels included. Null is allowed.
void gan_image_free(Gan_Image* image);

/// Address of the first channel of pixel (`row`, `col`), or null outside the image.
void* gan_image_get_pixptr(Gan_Image const* image, unsigned long row, unsigned long col);

/// Header of an image file: what is known of it before its pixels are read. Plain data, copyable bytewise.
typedef struct Gan_ImageHeaderInfo {
    Gan_ImageFormat file_format;
    Gan_Type type;
    unsigned int height, width;
    double gamma;
    unsigned int compression;
    unsigned int bits_per_channel;
} Gan_ImageHeaderInfo;

/// Resets `header` to an image of `format` and `type` with no size, gamma 1 and no compression.
void gan_initialise_image_header_info(Gan_ImageHeaderInfo* header, Gan_ImageFormat format, Gan_Type type);

#ifdef __cplusplus
}
#endif
