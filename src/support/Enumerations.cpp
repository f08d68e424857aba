#include "support/Enumerations.h"

#include <QTextStream>

// Written as int, read as unsigned int: negative values are not expected, and what is read is kept as it
// stands. The unsigned-to-int conversion wraps (well defined since C++20, and what g++ and clang do).
#define TQ_DEFINE_ENUM_STREAM_OPERATORS(E)                                                               \
    QTextStream& operator<<(QTextStream& stream, E const& value)                                         \
    {                                                                                                    \
        return stream << static_cast<int>(value);                                                        \
    }                                                                                                    \
    QTextStream& operator>>(QTextStream& stream, E& value)                                               \
    {                                                                                                    \
        unsigned int uiRead = 0;                                                                         \
        stream >> uiRead;                                                                                \
        value = static_cast<E>(static_cast<int>(uiRead));                                                \
        return stream;                                                                                   \
    }

TQ_DEFINE_ENUM_STREAM_OPERATORS(_TQ_CLIP_MODE)
TQ_DEFINE_ENUM_STREAM_OPERATORS(_TQ_COLORSPACE)
TQ_DEFINE_ENUM_STREAM_OPERATORS(_TQ_INTERLACE_MODE)
TQ_DEFINE_ENUM_STREAM_OPERATORS(_TQ_PROXY_SCALE)
TQ_DEFINE_ENUM_STREAM_OPERATORS(_TQ_BOOL)
TQ_DEFINE_ENUM_STREAM_OPERATORS(_DISTORTION_ALGORITHM)
TQ_DEFINE_ENUM_STREAM_OPERATORS(_TrackModel)
TQ_DEFINE_ENUM_STREAM_OPERATORS(TQ_LUMINANCE_MODEL)
TQ_DEFINE_ENUM_STREAM_OPERATORS(TQ_FILL_ALGORITHM)
TQ_DEFINE_ENUM_STREAM_OPERATORS(TQ_ILLUMINATION_MODEL)
TQ_DEFINE_ENUM_STREAM_OPERATORS(TQ_REMOVESOURCE_MODE)
TQ_DEFINE_ENUM_STREAM_OPERATORS(TQ_MATTE_SUBTYPE)
TQ_DEFINE_ENUM_STREAM_OPERATORS(TQ_BlendMode)
TQ_DEFINE_ENUM_STREAM_OPERATORS(_TQ_CONTOUR_TYPE)
TQ_DEFINE_ENUM_STREAM_OPERATORS(PIXELLATION_FILTER_TYPE)
TQ_DEFINE_ENUM_STREAM_OPERATORS(_TQ_MOTION_INIT)
// Gandalf's enumerations declare sentinels at INT_MIN and INT_MAX, so any int is one of their values.
TQ_DEFINE_ENUM_STREAM_OPERATORS(Gan_CameraType)
TQ_DEFINE_ENUM_STREAM_OPERATORS(Gan_Type)
TQ_DEFINE_ENUM_STREAM_OPERATORS(Gan_ImageFormat)
