#pragma once
#include "prm/curve/Cache.h"
#include "prm/curve/CubeRoots.h"
#include "prm/curve/Interpolation.h"
#include "prm/KeyframeData.h"
#include "prm/ValueConversion.h"

#include <QVector>

namespace Prm {

/// The value at `time` inside the segment that starts at key `index`, for the segment kind `kind` (4 counts
/// as step). Arithmetic is in `double`, converted back once; a key's own value is returned unconverted.
/// No keys, an unknown kind, an index without a segment, or a Bezier time without a curve parameter in
/// (0, 1) give the zero value of `T`. Allocates nothing.
template <class T>
T Interpolate(QVector<KeyframeData<T>> const& keys, QVector<IType> const& records, Interpolation kind, float time,
              int index, Cache* cache);

/// The value at `time` beyond an end of the curve (`bBefore`: before the first key) for the rule `rule`
/// (3 counts as hold; linear with one key holds). Unknown rules give the zero value of `T`.
template <class T>
T Extrapolate(QVector<KeyframeData<T>> const& keys, QVector<IType> const& records, Extrapolation rule, float time,
              bool bBefore, Cache* cache);

namespace detail {

/// The Bezier segment from key `index` to the next at `time`; false when no root lies in (0, 1).
bool bBezierAt(double tL, double vL, double tN, double vN, IType const& record, double time, double& result);

} // namespace detail

template <class T>
T Interpolate(QVector<KeyframeData<T>> const& keys, QVector<IType> const& records, Interpolation kind, float time,
              int index, Cache*)
{
    int const n = keys.size();
    if (n == 0 || index < 0 || index >= n)
        return T();
    if (kind == InterpolationCustomFirst)
        kind = InterpolationStep;
    KeyframeData<T> const& left = keys[index];
    if (kind == InterpolationStep)
        return left.tValue;
    if (kind == InterpolationLinear) {
        if (index == n - 1)
            return left.tValue;
        KeyframeData<T> const& right = keys[index + 1];
        double const tL = left.fTime;
        double const vL = dToDouble(left.tValue);
        double const slope = (dToDouble(right.tValue) - vL) / (double(right.fTime) - tL);
        return tFromDouble<T>((double(time) - tL) * slope + vL);
    }
    if (kind == InterpolationBezier && index + 1 < n && index < records.size()) {
        KeyframeData<T> const& right = keys[index + 1];
        double result = 0.0;
        if (detail::bBezierAt(left.fTime, dToDouble(left.tValue), right.fTime, dToDouble(right.tValue),
                              records[index], time, result))
            return tFromDouble<T>(result);
    }
    return T();
}

template <class T>
T Extrapolate(QVector<KeyframeData<T>> const& keys, QVector<IType> const& records, Extrapolation rule, float time,
              bool bBefore, Cache* cache)
{
    int const n = keys.size();
    if (n == 0)
        return T();
    if (rule == ExtrapolationCustomFirst || (rule == ExtrapolationLinear && n < 2))
        rule = ExtrapolationHold;
    KeyframeData<T> const& end = bBefore ? keys[0] : keys[n - 1];
    if (rule == ExtrapolationHold)
        return end.tValue;
    int const segment = bBefore ? 0 : n - 2;
    if (rule != ExtrapolationLinear || segment >= records.size())
        return T();
    IType const& record = records[segment];
    double const tE = end.fTime;
    double const vE = dToDouble(end.tValue);
    double tP = 0.0;
    double vP = 0.0;
    switch (record.eType) {
    case InterpolationBezier:
        tP = bBefore ? tE + record.dOutTime : tE + record.dInTime;
        vP = bBefore ? vE + record.dOutValue : vE + record.dInValue;
        break;
    case InterpolationLinear: {
        KeyframeData<T> const& neighbour = bBefore ? keys[1] : keys[n - 2];
        tP = neighbour.fTime;
        vP = dToDouble(neighbour.tValue);
        break;
    }
    case InterpolationStep:
        return end.tValue;
    default: {
        // Sample the end segment a tenth of the way in; the span is taken in float, as key times are.
        float const fSpan = bBefore ? keys[1].fTime - end.fTime : keys[n - 2].fTime - end.fTime;
        tP = tE + 0.1 * double(fSpan);
        vP = dToDouble(Interpolate<T>(keys, records, record.eType, float(tP), segment, cache));
        break;
    }
    }
    return tFromDouble<T>((double(time) - tE) * ((vP - vE) / (tP - tE)) + vE);
}

} // namespace Prm

/// Instantiates both curve methods for one value type; part of `TQ_INSTANTIATE_NUMERIC_PARAMETER`.
#define TQ_INSTANTIATE_CURVE(T)                                                                             \
    template T Prm::Interpolate<T>(QVector<Prm::KeyframeData<T>> const&, QVector<Prm::IType> const&,        \
                                   Prm::Interpolation, float, int, Prm::Cache*);                            \
    template T Prm::Extrapolate<T>(QVector<Prm::KeyframeData<T>> const&, QVector<Prm::IType> const&,        \
                                   Prm::Extrapolation, float, bool, Prm::Cache*);
