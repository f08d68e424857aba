#pragma once
/// The library's own enumerations and their text form.
///
/// Every enumeration is int-sized (a fixed underlying type, so any int read from text is a valid value) and
/// goes to text as its decimal value: written through QTextStream::operator<<(int), read through
/// QTextStream::operator>>(unsigned int&) and stored as it stands, without checking that it names an
/// enumerator. Code compares these values by number; the enumerator names below are only conveniences.
/// The same operators are given here for Gandalf's Gan_CameraType, Gan_Type and Gan_ImageFormat.
/// TQ::FrameWarp::_Type and its operators live with their class.
///
/// Nine of the types can travel in a QVariant (see the end of this header): each registers its metatype
/// under a fixed name the first time its id is asked for, e.g. by QVariant::fromValue or qMetaTypeId.

#include "gandalf/CameraType.h"
#include "gandalf/Common.h"

#include <QMetaType>

class QTextStream;

/// What a clip shows outside its own range; names in _TQ_CLIP_MODE_NAME.
enum _TQ_CLIP_MODE : int {
    TQ_CLIP_MODE_DONT_REPEAT = 0,
    TQ_CLIP_MODE_REPEAT = 1,
    TQ_CLIP_MODE_LOOP = 2,
    TQ_CLIP_MODE_PING_PONG = 3
};

enum _TQ_COLORSPACE : int {
    TQ_COLORSPACE_GAMMA = 0,
    TQ_COLORSPACE_LOGARITHMIC = 1,
    TQ_COLORSPACE_PANALOG = 2
};

/// 0 and 13 count each file as a frame, 1 and 2 are field-based (double height, double frame count),
/// 3 to 12 are pulldown layouts.
enum _TQ_INTERLACE_MODE : int {
    TQ_INTERLACE_NONE = 0,
    TQ_INTERLACE_FIELDS_1 = 1,
    TQ_INTERLACE_FIELDS_2 = 2,
    TQ_INTERLACE_PULLDOWN_FIRST = 3,
    TQ_INTERLACE_PULLDOWN_LAST = 12,
    TQ_INTERLACE_LAST = 13
};

enum _TQ_PROXY_SCALE : int { TQ_PROXY_SCALE_DEFAULT = 0 };

enum _TQ_BOOL : int { TQ_FALSE = 0, TQ_TRUE = 1 };

enum _DISTORTION_ALGORITHM : int { DISTORTION_ALGORITHM_DEFAULT = 0 };

enum _TrackModel : int { TRACK_MODEL_DEFAULT = 0 };

enum TQ_LUMINANCE_MODEL : int { TQ_LUMINANCE_MODEL_DEFAULT = 0 };

enum TQ_FILL_ALGORITHM : int { TQ_FILL_ALGORITHM_DEFAULT = 0 };

enum TQ_ILLUMINATION_MODEL : int { TQ_ILLUMINATION_MODEL_DEFAULT = 0 };

enum TQ_REMOVESOURCE_MODE : int { TQ_REMOVESOURCE_MODE_DEFAULT = 0 };

enum TQ_MATTE_SUBTYPE : int { TQ_MATTE_SUBTYPE_DEFAULT = 0 };

/// A layer's blend setting as persisted; unrelated to the blend mode registry's AEBlendModeID.
enum TQ_BlendMode : int { TQ_BLEND_MODE_DEFAULT = 0 };

enum _TQ_CONTOUR_TYPE : int { TQ_CONTOUR_TYPE_DEFAULT = 0 };

enum PIXELLATION_FILTER_TYPE : int { PIXELLATION_FILTER_TYPE_DEFAULT = 0 };

enum _TQ_MOTION_INIT : int { TQ_MOTION_INIT_DEFAULT = 0 };

/// Argument of the host's GL enable/disable callbacks; it has no text form.
enum _TQ_RENDER_STYLE : int { TQ_RENDER_STYLE_DEFAULT = 0 };

/// Declares the text operators of one enumeration: write as decimal int, read as decimal unsigned int.
/// Both return the stream.
#define TQ_DECLARE_ENUM_STREAM_OPERATORS(E)                                                              \
    QTextStream& operator<<(QTextStream& stream, E const& value);                                        \
    QTextStream& operator>>(QTextStream& stream, E& value);

TQ_DECLARE_ENUM_STREAM_OPERATORS(_TQ_CLIP_MODE)
TQ_DECLARE_ENUM_STREAM_OPERATORS(_TQ_COLORSPACE)
TQ_DECLARE_ENUM_STREAM_OPERATORS(_TQ_INTERLACE_MODE)
TQ_DECLARE_ENUM_STREAM_OPERATORS(_TQ_PROXY_SCALE)
TQ_DECLARE_ENUM_STREAM_OPERATORS(_TQ_BOOL)
TQ_DECLARE_ENUM_STREAM_OPERATORS(_DISTORTION_ALGORITHM)
TQ_DECLARE_ENUM_STREAM_OPERATORS(_TrackModel)
TQ_DECLARE_ENUM_STREAM_OPERATORS(TQ_LUMINANCE_MODEL)
TQ_DECLARE_ENUM_STREAM_OPERATORS(TQ_FILL_ALGORITHM)
TQ_DECLARE_ENUM_STREAM_OPERATORS(TQ_ILLUMINATION_MODEL)
TQ_DECLARE_ENUM_STREAM_OPERATORS(TQ_REMOVESOURCE_MODE)
TQ_DECLARE_ENUM_STREAM_OPERATORS(TQ_MATTE_SUBTYPE)
TQ_DECLARE_ENUM_STREAM_OPERATORS(TQ_BlendMode)
TQ_DECLARE_ENUM_STREAM_OPERATORS(_TQ_CONTOUR_TYPE)
TQ_DECLARE_ENUM_STREAM_OPERATORS(PIXELLATION_FILTER_TYPE)
TQ_DECLARE_ENUM_STREAM_OPERATORS(_TQ_MOTION_INIT)
TQ_DECLARE_ENUM_STREAM_OPERATORS(Gan_CameraType)
TQ_DECLARE_ENUM_STREAM_OPERATORS(Gan_Type)
TQ_DECLARE_ENUM_STREAM_OPERATORS(Gan_ImageFormat)

#undef TQ_DECLARE_ENUM_STREAM_OPERATORS

/// Metatype of one enumeration, registered on the first call of qt_metatype_id() (id 0 until then)
/// under the name given in EnumerationMetaTypes.cpp. First calls must not race.
#define TQ_DECLARE_ENUM_METATYPE(E)                                                                      \
    template <>                                                                                          \
    struct QMetaTypeId<E> {                                                                              \
        enum { Defined = 1 };                                                                            \
        static int qt_metatype_id();                                                                     \
    };

TQ_DECLARE_ENUM_METATYPE(Gan_CameraType)      // "Gan_CameraType"
TQ_DECLARE_ENUM_METATYPE(_TrackModel)         // "TrackModel"
TQ_DECLARE_ENUM_METATYPE(TQ_LUMINANCE_MODEL)  // "TQ_LUMINANCE_MODEL"
TQ_DECLARE_ENUM_METATYPE(TQ_FILL_ALGORITHM)   // "TQ_FILL_ALGORITHM"
TQ_DECLARE_ENUM_METATYPE(TQ_ILLUMINATION_MODEL) // "TQ_ILLUMINATION_MODEL"
TQ_DECLARE_ENUM_METATYPE(TQ_REMOVESOURCE_MODE) // "TQ_REMOVESOURCE_MODE"
TQ_DECLARE_ENUM_METATYPE(TQ_MATTE_SUBTYPE)    // "TQ_MATTE_SUBTYPE"
TQ_DECLARE_ENUM_METATYPE(TQ_BlendMode)        // "TQ_BlendMode"
TQ_DECLARE_ENUM_METATYPE(_DISTORTION_ALGORITHM) // "DISTORTION_ALGORITHM"

#undef TQ_DECLARE_ENUM_METATYPE
