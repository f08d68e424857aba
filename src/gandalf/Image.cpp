#include "gandalf/Image.h"

#include <cstdlib>
#include <limits>
#include <new>

extern "C" {

unsigned int gan_image_format_channels(Gan_ImageFormat format)
{
    switch (format) {
    case GAN_GREY_LEVEL_IMAGE: return 1;
    case GAN_GREY_LEVEL_ALPHA_IMAGE: case GAN_VECTOR_FIELD_2D: case GAN_YUV422: return 2;
    case GAN_RGB_COLOUR_IMAGE: case GAN_BGR_COLOUR_IMAGE: case GAN_VECTOR_FIELD_3D: return 3;
    case GAN_RGB_COLOUR_ALPHA_IMAGE: case GAN_BGR_COLOUR_ALPHA_IMAGE: case GAN_RGBX: case GAN_RGBAS:
    case GAN_YUVX444: case GAN_YUVA444: return 4;
    default: return 0; // undefined, and numbers that name no format
    }
}

Gan_Image* gan_image_alloc(Gan_ImageFormat format, Gan_Type type, unsigned long height, unsigned long width)
{
    unsigned long const pixelBytes = gan_image_format_channels(format) * gan_type_sizeof(type);
    if (pixelBytes == 0)
        return nullptr;
    unsigned long const maxBytes = std::numeric_limits<unsigned long>::max();
    if (width != 0 && pixelBytes > maxBytes / width)
        return nullptr;
    unsigned long const stride = pixelBytes * width;
    if (height != 0 && stride > maxBytes / height)
        return nullptr;
    auto* image = new (std::nothrow) Gan_Image{format, type, height, width, stride, nullptr};
    if (!image)
        return nullptr;
    if (stride * height > 0) {
        image->pix_data = std::calloc(height, stride);
        if (!image->pix_data) {
            delete image;
            return nullptr;
        }
    }
    return image;
}

void gan_image_free(Gan_Image* image)
{
    if (!image)
        return;
    std::free(image->pix_data);
    delete image;
}

void* gan_image_get_pixptr(Gan_Image const* image, unsigned long row, unsigned long col)
{
    if (!image || !image->pix_data || row >= image->height || col >= image->width)
        return nullptr;
    unsigned long const pixelBytes = gan_image_format_channels(image->format) * gan_type_sizeof(image->type);
    return static_cast<char*>(image->pix_data) + row * image->stride + col * pixelBytes;
}

void gan_initialise_image_header_info(Gan_ImageHeaderInfo* header, Gan_ImageFormat format, Gan_Type type)
{
    if (!header)
        return;
    *header = Gan_ImageHeaderInfo{format, type, 0, 0, 1.0, 0, static_cast<unsigned int>(8 * gan_type_sizeof(type))};
}

} // extern "C"
