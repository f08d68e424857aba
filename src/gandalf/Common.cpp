#include "gandalf/Common.h"

extern "C" {

unsigned int gan_sqr_ui(unsigned int x)
{
    return x * x;
}

void gan_copy_array_d(double const* source, unsigned long sourceStride, unsigned long count,
                      double* destination, unsigned long destinationStride)
{
    for (unsigned long i = 0; i < count; ++i)
        destination[i * destinationStride] = source[i * sourceStride];
}

size_t gan_type_sizeof(Gan_Type type)
{
    switch (type) {
    case GAN_CHAR: case GAN_UCHAR: case GAN_BOOL: return 1;
    case GAN_SHORT: case GAN_USHORT: case GAN_INT16: case GAN_UINT16: return 2;
    case GAN_INT: case GAN_UINT: case GAN_FLOAT: case GAN_INT32: case GAN_UINT32: return 4;
    case GAN_LONG: case GAN_ULONG: case GAN_DOUBLE: case GAN_INT64: return 8;
    case GAN_POINTER: return sizeof(void*);
    default: return 0; // undefined, and numbers that name no type
    }
}

} // extern "C"
