#pragma once
/// The fifteen value types of static and virtual parameters, with the stream operators their text
/// needs. TQ::FrameWarp::_Type joins once its class exists.
#include "gandalf/Common.h"
#include "prm/text/StreamOperators.h"
#include "support/Enumerations.h"

#include <QString>

/// Calls `X(T)` once per value type of `Prm::StaticParameter<T>`.
#define TQ_FOR_EACH_STATIC_PARAMETER_TYPE(X)                                                                \
    X(unsigned int)                                                                                         \
    X(int)                                                                                                  \
    X(float)                                                                                                \
    X(double)                                                                                               \
    X(bool)                                                                                                 \
    X(unsigned char)                                                                                        \
    X(QString)                                                                                              \
    X(_TQ_BOOL)                                                                                             \
    X(_TQ_CLIP_MODE)                                                                                        \
    X(_TQ_COLORSPACE)                                                                                       \
    X(_TQ_INTERLACE_MODE)                                                                                   \
    X(_TQ_PROXY_SCALE)                                                                                      \
    X(Gan_ImageFormat)                                                                                      \
    X(Gan_Type)
