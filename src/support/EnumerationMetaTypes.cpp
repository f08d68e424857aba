#include "support/Enumerations.h"

// The id lives in a function-local static, 0 until the first call registers the type. The pointer
// argument -1 tells Qt not to look the type up through QMetaTypeId again, which would recurse here.
#define TQ_DEFINE_ENUM_METATYPE(E, name)                                                                 \
    int QMetaTypeId<E>::qt_metatype_id()                                                                 \
    {                                                                                                    \
        static QBasicAtomicInt metatypeId = Q_BASIC_ATOMIC_INITIALIZER(0);                               \
        if (int const id = metatypeId.loadAcquire())                                                     \
            return id;                                                                                   \
        int const newId = qRegisterMetaType<E>(name, reinterpret_cast<E*>(quintptr(-1)));                \
        metatypeId.storeRelease(newId);                                                                  \
        return newId;                                                                                    \
    }

TQ_DEFINE_ENUM_METATYPE(Gan_CameraType, "Gan_CameraType")
// These two drop their leading underscore on purpose: the names are part of the saved interface.
TQ_DEFINE_ENUM_METATYPE(_TrackModel, "TrackModel")
TQ_DEFINE_ENUM_METATYPE(_DISTORTION_ALGORITHM, "DISTORTION_ALGORITHM")
TQ_DEFINE_ENUM_METATYPE(TQ_LUMINANCE_MODEL, "TQ_LUMINANCE_MODEL")
TQ_DEFINE_ENUM_METATYPE(TQ_FILL_ALGORITHM, "TQ_FILL_ALGORITHM")
TQ_DEFINE_ENUM_METATYPE(TQ_ILLUMINATION_MODEL, "TQ_ILLUMINATION_MODEL")
TQ_DEFINE_ENUM_METATYPE(TQ_REMOVESOURCE_MODE, "TQ_REMOVESOURCE_MODE")
TQ_DEFINE_ENUM_METATYPE(TQ_MATTE_SUBTYPE, "TQ_MATTE_SUBTYPE")
TQ_DEFINE_ENUM_METATYPE(TQ_BlendMode, "TQ_BlendMode")
