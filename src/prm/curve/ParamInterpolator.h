#pragma once
#include "prm/curve/Cache.h"

namespace Prm {

template <class T> class Parameter;

/// Untyped face of a custom interpolation method, so that the untyped numeric view can hand one out.
class ParamInterpolatorBase {
public:
    virtual ~ParamInterpolatorBase();
};

/// A custom interpolation method: the value strictly between key `index` and the next one. Kept by
/// shared pointer in the parameter's list; the library never defines one.
template <class T>
class ParamInterpolator : public ParamInterpolatorBase {
public:
    virtual T interpolate(Parameter<T> const& parameter, unsigned int index, float time, Cache* cache) const = 0;
};

/// Untyped face of a custom extrapolation method. `bSupportsNoKeys` says the method also gives a value
/// when the parameter has no keys.
class ParamExtrapolatorBase {
public:
    virtual ~ParamExtrapolatorBase();
    bool bSupportsNoKeys = false;
};

/// A custom extrapolation method: the value beyond an end (`bBefore` true before the first key). Kept by
/// plain pointer, not owned by the parameter.
template <class T>
class ParamExtrapolator : public ParamExtrapolatorBase {
public:
    virtual T extrapolate(Parameter<T> const& parameter, bool bBefore, float time, Cache* cache) const = 0;
};

} // namespace Prm
