#include "prm/curve/CubeRoots.h"

#include <cmath>

namespace {

double dCubic(double const* c, double s)
{
    return ((s + c[2]) * s + c[1]) * s + c[0];
}

// Two Newton steps take the closed-form root to full precision where the formula loses digits.
double dPolish(double const* c, double s)
{
    for (int i = 0; i < 2; ++i) {
        double const dSlope = (3.0 * s + 2.0 * c[2]) * s + c[1];
        if (dSlope == 0.0)
            break;
        double const dNext = s - dCubic(c, s) / dSlope;
        if (!std::isfinite(dNext) || std::fabs(dCubic(c, dNext)) > std::fabs(dCubic(c, s)))
            break;
        s = dNext;
    }
    return s;
}

} // namespace

int cuberoots(double const* c, double (*roots)[2])
{
    if (!std::isfinite(c[0]) || !std::isfinite(c[1]) || !std::isfinite(c[2]))
        return 0;
    double const a = c[2];
    double const q = (a * a - 3.0 * c[1]) / 9.0;
    double const r = (2.0 * a * a * a - 9.0 * a * c[1] + 27.0 * c[0]) / 54.0;
    double const q3 = q * q * q;
    double const shift = a / 3.0;
    int n = 0;
    if (r * r < q3) {
        double const theta = std::acos(r / std::sqrt(q3));
        double const m = -2.0 * std::sqrt(q);
        double const twoPi = 6.283185307179586;
        roots[n++][0] = m * std::cos(theta / 3.0) - shift;
        roots[n++][0] = m * std::cos((theta + twoPi) / 3.0) - shift;
        roots[n++][0] = m * std::cos((theta - twoPi) / 3.0) - shift;
    } else {
        double const big = std::cbrt(std::fabs(r) + std::sqrt(r * r - q3));
        double const u = r > 0.0 ? -big : big;
        double const v = (u == 0.0) ? 0.0 : q / u;
        roots[n++][0] = (u + v) - shift;
        // The complex pair becomes a real double root when its imaginary part vanishes.
        if (u != 0.0 && std::fabs(u - v) <= 1e-9 * std::fabs(u))
            roots[n++][0] = -0.5 * (u + v) - shift;
    }
    for (int i = 0; i < n; ++i) {
        roots[i][0] = dPolish(c, roots[i][0]);
        roots[i][1] = 0.0;
    }
    return n;
}
