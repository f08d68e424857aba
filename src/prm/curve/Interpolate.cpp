#include "prm/curve/Interpolate.h"

namespace Prm {

namespace detail {

bool bBezierAt(double tL, double vL, double tN, double vN, IType const& record, double time, double& result)
{
    // Time and value as cubics in the curve parameter s; find s for the time, then evaluate the value.
    double const C = 3.0 * record.dOutTime;
    double const B = 3.0 * ((tN + record.dInTime) - (tL + record.dOutTime)) - C;
    double const A = (tN - tL) - C - B;
    double const coefficients[3] = {(tL - time) / A, C / A, B / A};
    double const G = 3.0 * record.dOutValue;
    double const E = 3.0 * ((vN + record.dInValue) - (vL + record.dOutValue)) - G;
    double const F = (vN - vL) - G - E;
    double roots[3][2] = {{0.0, 0.0}, {0.0, 0.0}, {0.0, 0.0}};
    int const iCount = cuberoots(coefficients, roots);
    for (int i = 0; i < iCount && i < 3; ++i) {
        double const s = roots[i][0];
        if (0.0 < s && s < 1.0) {
            result = (F * s * s * s + E * s * s) + G * s + vL;
            return true;
        }
    }
    return false;
}

} // namespace detail

} // namespace Prm
