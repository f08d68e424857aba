#pragma once
#include <QtGlobal>

namespace Prm {

/// Kind of the curve segment that starts at a key. Values from 4 on select custom method n - 4.
enum Interpolation : int {
    InterpolationUnset = 0,
    InterpolationStep = 1,
    InterpolationLinear = 2,
    InterpolationBezier = 3,
    InterpolationCustomFirst = 4
};

/// Rule beyond an end of the curve. Values from 3 on select custom method n - 3.
enum Extrapolation : int {
    ExtrapolationUnset = 0,
    ExtrapolationHold = 1,
    ExtrapolationLinear = 2,
    ExtrapolationCustomFirst = 3
};

/// The record of the segment from one key to the next: its kind and both Bezier handles, as offsets from
/// their keys (the outgoing one from this key, the incoming one from the next), so that moving a key
/// carries its handles along. Only Bezier segments read the handles.
struct IType {
    Interpolation eType = InterpolationUnset;
    double dOutTime = 0.0;
    double dOutValue = 0.0;
    double dInTime = 0.0;
    double dInValue = 0.0;
};

} // namespace Prm

Q_DECLARE_TYPEINFO(Prm::IType, Q_PRIMITIVE_TYPE);
