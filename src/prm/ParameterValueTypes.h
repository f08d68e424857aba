#pragma once
/// The value types of `Prm::Parameter<T>` (and of its edits), as lists for explicit instantiation.
#include "support/Enumerations.h"

#include <QString>

/// Calls `X(T)` once per numeric value type (the types of `Prm::NumericParameter<T>`).
#define TQ_FOR_EACH_NUMERIC_VALUE_TYPE(X)                                                                    \
    X(bool)                                                                                                 \
    X(unsigned char)                                                                                        \
    X(int)                                                                                                  \
    X(unsigned int)                                                                                         \
    X(float)                                                                                                \
    X(double)

/// Calls `X(T)` once per enumeration value type.
#define TQ_FOR_EACH_ENUM_VALUE_TYPE(X)                                                                       \
    X(_TrackModel)                                                                                          \
    X(_DISTORTION_ALGORITHM)                                                                                \
    X(TQ_BlendMode)                                                                                         \
    X(TQ_MATTE_SUBTYPE)                                                                                     \
    X(TQ_REMOVESOURCE_MODE)                                                                                 \
    X(TQ_ILLUMINATION_MODEL)                                                                                \
    X(TQ_FILL_ALGORITHM)                                                                                    \
    X(TQ_LUMINANCE_MODEL)                                                                                   \
    X(Gan_CameraType)

/// Calls `X(T)` once per value type of `Prm::Parameter<T>`.
#define TQ_FOR_EACH_VALUE_TYPE(X)                                                                            \
    TQ_FOR_EACH_NUMERIC_VALUE_TYPE(X)                                                                        \
    X(QString)                                                                                              \
    TQ_FOR_EACH_ENUM_VALUE_TYPE(X)
