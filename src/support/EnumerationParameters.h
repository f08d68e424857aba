#pragma once
/// Parameters over the enumerations of this folder (and over the Gandalf types whose text operators it
/// gives): keyframed ones for the module enumerations, static and virtual ones for the clip settings.
/// EnumerationParameters.cpp instantiates them; a new type is one line in its list.
#include "prm/Parameter.h"
#include "prm/basic/VirtualParameter.h"
#include "support/Enumerations.h"

/// Calls `X(T)` once per enumeration that `Prm::Parameter<T>` is instantiated for here.
#define TQ_FOR_EACH_ENUMERATION_PARAMETER_TYPE(X)                                                           \
    X(_TrackModel)                                                                                          \
    X(_DISTORTION_ALGORITHM)                                                                                \
    X(TQ_BlendMode)                                                                                         \
    X(TQ_MATTE_SUBTYPE)                                                                                     \
    X(TQ_REMOVESOURCE_MODE)                                                                                 \
    X(TQ_ILLUMINATION_MODEL)                                                                                \
    X(TQ_FILL_ALGORITHM)                                                                                    \
    X(TQ_LUMINANCE_MODEL)

/// Calls `X(T)` once per type that `Prm::StaticParameter<T>` and `Prm::VirtualParameter<T>` are
/// instantiated for here.
#define TQ_FOR_EACH_ENUMERATION_STATIC_PARAMETER_TYPE(X)                                                    \
    X(_TQ_BOOL)                                                                                             \
    X(_TQ_CLIP_MODE)                                                                                        \
    X(_TQ_COLORSPACE)                                                                                       \
    X(_TQ_INTERLACE_MODE)                                                                                   \
    X(_TQ_PROXY_SCALE)                                                                                      \
    X(Gan_ImageFormat)                                                                                      \
    X(Gan_Type)

TQ_FOR_EACH_ENUMERATION_PARAMETER_TYPE(TQ_EXTERN_PARAMETER)
TQ_FOR_EACH_ENUMERATION_STATIC_PARAMETER_TYPE(TQ_EXTERN_STATIC_PARAMETER)
