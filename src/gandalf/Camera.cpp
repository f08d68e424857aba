#include "gandalf/Camera.h"

#include "gandalf/Error.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

namespace {

/// Accuracy that every inverse must reach, in pixels.
constexpr double kdTolerancePixels = 1e-9;
constexpr int kiMaxIterations = 64;
constexpr double kdHalfPi = 1.57079632679489661923;
constexpr double kdSqrt2 = 1.41421356237309504880;

struct Point2 {
    double x, y;
};

bool bFinite(double d)
{
    return std::isfinite(d);
}

bool bFinite(Point2 const& p)
{
    return bFinite(p.x) && bFinite(p.y);
}

Gan_Bool bFail(int* error, int iCode)
{
    if (error)
        *error = iCode;
    return GAN_FALSE;
}

Gan_Bool bSucceed(int* error)
{
    if (error)
        *error = 0;
    return GAN_TRUE;
}

bool bIntrinsicsValid(Gan_Camera const& camera)
{
    return bFinite(camera.fx) && bFinite(camera.fy) && bFinite(camera.x0) && bFinite(camera.y0) &&
           bFinite(camera.zh) && camera.fx != 0.0 && camera.fy != 0.0 && camera.zh != 0.0;
}

bool bCoefficientsFinite(Gan_Camera const& camera, int iCount)
{
    return std::all_of(camera.d, camera.d + iCount, [](double d) { return bFinite(d); });
}

/// 1e-9 pixel in normalised coordinates.
double dNormalisedTolerance(Gan_Camera const& camera)
{
    return kdTolerancePixels / std::max(std::fabs(camera.fx), std::fabs(camera.fy));
}

// ---------------------------------------------------------------------------------------------------
// Small polynomial helpers for the domain tests

/// Minimum of a0 + a1 t + a2 t^2 over [lo, hi].
double dMinQuadratic(double a0, double a1, double a2, double lo, double hi)
{
    auto const value = [&](double t) { return a0 + t * (a1 + t * a2); };
    double dMin = std::min(value(lo), value(hi));
    if (a2 != 0.0) {
        double const t = -a1 / (2.0 * a2);
        if (t > lo && t < hi)
            dMin = std::min(dMin, value(t));
    }
    return dMin;
}

/// Minimum of 1 + a1 s + a2 s^2 + a3 s^3 over [0, hi]: at an end or where the derivative vanishes.
double dMinCubicFromOne(double a1, double a2, double a3, double hi)
{
    auto const value = [&](double s) { return 1.0 + s * (a1 + s * (a2 + s * a3)); };
    double dMin = std::min(1.0, value(hi));
    auto const consider = [&](double s) {
        if (s > 0.0 && s < hi)
            dMin = std::min(dMin, value(s));
    };
    // derivative a1 + 2 a2 s + 3 a3 s^2
    if (a3 == 0.0) {
        if (a2 != 0.0)
            consider(-a1 / (2.0 * a2));
    } else {
        double const disc = a2 * a2 - 3.0 * a1 * a3;
        if (disc >= 0.0) {
            double const root = std::sqrt(disc);
            consider((-a2 + root) / (3.0 * a3));
            consider((-a2 - root) / (3.0 * a3));
        }
    }
    return dMin;
}

// ---------------------------------------------------------------------------------------------------
// Radial polynomial r (1 + c1 r^2 + c2 r^4 + c3 r^6) and its inverse

struct RadialPolynomial {
    double c1, c2, c3;

    double dFactor(double s) const { return 1.0 + s * (c1 + s * (c2 + s * c3)); }
    /// Derivative of the radius map at r, with s = r^2.
    double dSlope(double s) const { return 1.0 + s * (3.0 * c1 + s * (5.0 * c2 + s * 7.0 * c3)); }
    /// Whether the radius map strictly grows over [0, sqrt(s)].
    bool bIncreasingUpTo(double s) const { return dMinCubicFromOne(3.0 * c1, 5.0 * c2, 7.0 * c3, s) > 0.0; }

    /// The radius r of the growing branch with r (1 + ...) = target, to `tolerance` both in r and in
    /// the image of r.
    bool bSolve(double target, double tolerance, double& r) const
    {
        double x = target;
        for (int i = 0; i < kiMaxIterations; ++i) {
            double const s = x * x;
            double const slope = dSlope(s);
            if (!(slope > 0.0)) {  // past a fold: fall back towards the centre
                x *= 0.5;
                continue;
            }
            double const step = (x * dFactor(s) - target) / slope;
            x = x - step < 0.0 ? 0.5 * x : x - step;
            if (!(std::fabs(step) > std::max(1e-2 * tolerance, 4.0 * DBL_EPSILON * x)))
                break;
        }
        double const s = x * x;
        double const residual = std::fabs(x * dFactor(s) - target);
        double const slope = dSlope(s);
        if (!(x >= 0.0 && bFinite(x) && slope > 0.0 && residual <= tolerance &&
              residual <= tolerance * slope && bIncreasingUpTo(s)))
            return false;
        r = x;
        return true;
    }
};

RadialPolynomial radialOf(Gan_Camera const& camera, int iCount)
{
    return {camera.d[0], iCount > 1 ? camera.d[1] : 0.0, iCount > 2 ? camera.d[2] : 0.0};
}

/// Scales `p` by `factor`, the ratio of its new radius to its old one.
bool bScaled(Point2 const& p, double factor, Point2& out)
{
    Point2 const q{p.x * factor, p.y * factor};
    if (!bFinite(q))
        return false;
    out = q;
    return true;
}

/// Moves `p` to the radius that the polynomial maps to its own radius.
bool bSolvedRadius(RadialPolynomial const& poly, Point2 const& p, double tolerance, Point2& out)
{
    double const from = std::hypot(p.x, p.y);
    double to = 0.0;
    if (!bFinite(from) || !poly.bSolve(from, tolerance, to))
        return false;
    return bScaled(p, from > 0.0 ? to / from : 1.0, out);
}

/// Applies the polynomial's factor to `p`, inside the growing branch.
bool bApplyRadial(RadialPolynomial const& poly, Point2 const& p, Point2& out)
{
    double const s = p.x * p.x + p.y * p.y;
    return bFinite(s) && poly.bIncreasingUpTo(s) && bScaled(p, poly.dFactor(s), out);
}

// ---------------------------------------------------------------------------------------------------
// The models. Each has bValid (fields usable), bDistort ((xu, yu) to (xd, yd)) and bUndistort.

struct Linear {
    static bool bValid(Gan_Camera const&) { return true; }
    static bool bDistort(Gan_Camera const&, Point2 const& u, Point2& d)
    {
        d = u;
        return true;
    }
    static bool bUndistort(Gan_Camera const&, Point2 const& d, Point2& u)
    {
        u = d;
        return true;
    }
};

template <int N>
struct Radial {
    static bool bValid(Gan_Camera const& camera) { return bCoefficientsFinite(camera, N); }
    static bool bDistort(Gan_Camera const& camera, Point2 const& u, Point2& d)
    {
        return bApplyRadial(radialOf(camera, N), u, d);
    }
    static bool bUndistort(Gan_Camera const& camera, Point2 const& d, Point2& u)
    {
        return bSolvedRadius(radialOf(camera, N), d, dNormalisedTolerance(camera), u);
    }
};

template <int N>
struct InverseRadial {
    static bool bValid(Gan_Camera const& camera) { return bCoefficientsFinite(camera, N); }
    static bool bDistort(Gan_Camera const& camera, Point2 const& u, Point2& d)
    {
        return bSolvedRadius(radialOf(camera, N), u, dNormalisedTolerance(camera), d);
    }
    static bool bUndistort(Gan_Camera const& camera, Point2 const& d, Point2& u)
    {
        return bApplyRadial(radialOf(camera, N), d, u);
    }
};

/// Fish-eye: the distorted radius as a function of the angle from the axis, and its inverse below
/// the angle pi / 2.
template <double (*Radius)(double), double (*Angle)(double), double (*Limit)()>
struct FishEye {
    static bool bValid(Gan_Camera const&) { return true; }
    static bool bDistort(Gan_Camera const&, Point2 const& u, Point2& d)
    {
        double const r = std::hypot(u.x, u.y);
        return bFinite(r) && bScaled(u, r > 0.0 ? Radius(std::atan(r)) / r : 1.0, d);
    }
    static bool bUndistort(Gan_Camera const&, Point2 const& d, Point2& u)
    {
        double const rd = std::hypot(d.x, d.y);
        if (!(rd < Limit()))
            return false;
        return bScaled(d, rd > 0.0 ? std::tan(Angle(rd)) / rd : 1.0, u);
    }
};

double dStereographic(double theta) { return 2.0 * std::tan(0.5 * theta); }
double dStereographicAngle(double rd) { return 2.0 * std::atan(0.5 * rd); }
double dStereographicLimit() { return 2.0; }
double dEquidistant(double theta) { return theta; }
double dEquidistantLimit() { return kdHalfPi; }
double dSineLaw(double theta) { return std::sin(theta); }
double dSineLawAngle(double rd) { return std::asin(rd); }
double dSineLawLimit() { return 1.0; }
double dEquiSolidAngle(double theta) { return 2.0 * std::sin(0.5 * theta); }
double dEquiSolidAngleAngle(double rd) { return 2.0 * std::asin(0.5 * rd); }
double dEquiSolidAngleLimit() { return kdSqrt2; }

using Stereographic = FishEye<dStereographic, dStereographicAngle, dStereographicLimit>;
using Equidistant = FishEye<dEquidistant, dEquidistant, dEquidistantLimit>;
using SineLaw = FishEye<dSineLaw, dSineLawAngle, dSineLawLimit>;
using EquiSolidAngle = FishEye<dEquiSolidAngle, dEquiSolidAngleAngle, dEquiSolidAngleLimit>;

// ---------------------------------------------------------------------------------------------------
// Two-dimensional Newton's method

/// A map's value at a point and its Jacobian (row-major).
struct Linearisation {
    Point2 value;
    double j[2][2];
};

/// Solves map(p) = target from `start`. Succeeds when the residual and the correction that Newton's
/// method would still make are both within `tolerance` in each coordinate. A step that does not reduce
/// the residual is halved.
template <class Map>
bool bNewton2(Map const& map, Point2 const& target, Point2 const& start, double tolerance, Point2& result)
{
    auto const correction = [&](Point2 const& p, Point2& residual, Point2& step) {
        Linearisation const l = map(p);
        residual = {l.value.x - target.x, l.value.y - target.y};
        double const det = l.j[0][0] * l.j[1][1] - l.j[0][1] * l.j[1][0];
        step = {(l.j[1][1] * residual.x - l.j[0][1] * residual.y) / det,
                (l.j[0][0] * residual.y - l.j[1][0] * residual.x) / det};
        return det != 0.0 && bFinite(step) && bFinite(residual);
    };
    auto const size = [](Point2 const& v) { return std::max(std::fabs(v.x), std::fabs(v.y)); };
    Point2 p = start, residual{}, step{};
    if (!correction(p, residual, step))
        return false;
    for (int i = 0; i < kiMaxIterations && size(step) > std::max(1e-2 * tolerance, 4.0 * DBL_EPSILON * size(p));
         ++i) {
        Point2 next{}, nextResidual{}, nextStep{};
        double scale = 1.0;
        for (; scale > 1e-6; scale *= 0.5) {
            next = {p.x - scale * step.x, p.y - scale * step.y};
            if (correction(next, nextResidual, nextStep) && size(nextResidual) <= size(residual))
                break;
        }
        if (!(scale > 1e-6))
            break;
        p = next;
        residual = nextResidual;
        step = nextStep;
    }
    if (size(residual) > tolerance || size(step) > tolerance)
        return false;
    result = p;
    return true;
}

// ---------------------------------------------------------------------------------------------------
// Anamorphic model

struct Anamorphic {
    static bool bValid(Gan_Camera const& camera) { return bCoefficientsFinite(camera, 4); }

    static Linearisation linearise(Gan_Camera const& camera, Point2 const& u)
    {
        double const *c = camera.d, xx = u.x * u.x, yy = u.y * u.y;
        return {{u.x * (1.0 + c[0] * xx + c[1] * yy), u.y * (1.0 + c[2] * xx + c[3] * yy)},
                {{1.0 + 3.0 * c[0] * xx + c[1] * yy, 2.0 * c[1] * u.x * u.y},
                 {2.0 * c[2] * u.x * u.y, 1.0 + c[2] * xx + 3.0 * c[3] * yy}}};
    }

    /// Whether the Jacobian has a positive diagonal and determinant all over the box of `u`.
    static bool bInDomain(Gan_Camera const& camera, Point2 const& u)
    {
        double const *c = camera.d, X = u.x * u.x, Y = u.y * u.y;
        auto const diagonalsPositive = [&](double x, double y) {
            return 1.0 + 3.0 * c[0] * x + c[1] * y > 0.0 && 1.0 + c[2] * x + 3.0 * c[3] * y > 0.0;
        };
        if (!bFinite(X) || !bFinite(Y) || !diagonalsPositive(X, 0.0) || !diagonalsPositive(0.0, Y) ||
            !diagonalsPositive(X, Y))
            return false;
        // determinant 1 + p x + q y + a x^2 + b x y + e y^2 over [0, X] x [0, Y]
        double const p = 3.0 * c[0] + c[2], q = c[1] + 3.0 * c[3], a = 3.0 * c[0] * c[2];
        double const b = 9.0 * c[0] * c[3] - 3.0 * c[1] * c[2], e = 3.0 * c[1] * c[3];
        double dMin = std::min({dMinQuadratic(1.0, p, a, 0.0, X), dMinQuadratic(1.0, q, e, 0.0, Y),
                                dMinQuadratic(1.0 + q * Y + e * Y * Y, p + b * Y, a, 0.0, X),
                                dMinQuadratic(1.0 + p * X + a * X * X, q + b * X, e, 0.0, Y)});
        double const det = 4.0 * a * e - b * b;
        if (det != 0.0) {
            double const x = (b * q - 2.0 * e * p) / det, y = (b * p - 2.0 * a * q) / det;
            if (x > 0.0 && x < X && y > 0.0 && y < Y)
                dMin = std::min(dMin, 1.0 + p * x + q * y + a * x * x + b * x * y + e * y * y);
        }
        return dMin > 0.0;
    }

    static bool bDistort(Gan_Camera const& camera, Point2 const& u, Point2& d)
    {
        if (!bInDomain(camera, u))
            return false;
        Point2 const q = linearise(camera, u).value;
        if (!bFinite(q))
            return false;
        d = q;
        return true;
    }

    static bool bUndistort(Gan_Camera const& camera, Point2 const& d, Point2& u)
    {
        auto const map = [&](Point2 const& p) { return linearise(camera, p); };
        Point2 solved{};
        if (!bNewton2(map, d, d, dNormalisedTolerance(camera), solved) || !bInDomain(camera, solved))
            return false;
        u = solved;
        return true;
    }
};

// ---------------------------------------------------------------------------------------------------
// Cubic B-spline displacement grid

constexpr int kiGridSpans = GAN_CUBIC_BSPLINE_GRID_SIZE - 1;

/// Uniform cubic B-spline basis at t in [0, 1] and its derivative.
void vBasis(double t, double b[4], double db[4])
{
    double const s = 1.0 - t, tt = t * t;
    b[0] = s * s * s / 6.0;
    b[1] = (3.0 * tt * t - 6.0 * tt + 4.0) / 6.0;
    b[2] = (-3.0 * tt * t + 3.0 * tt + 3.0 * t + 1.0) / 6.0;
    b[3] = tt * t / 6.0;
    db[0] = -0.5 * s * s;
    db[1] = 0.5 * (3.0 * tt - 4.0 * t);
    db[2] = 0.5 * (-3.0 * tt + 2.0 * t + 1.0);
    db[3] = 0.5 * tt;
}

/// Span of a grid coordinate: the first of its four control points (before clamping) and the
/// parameter within the span. Offsets past the grid read as its edge.
int iSpan(double offset, double zh, double& t)
{
    double const g = offset / zh;
    double const k = ((g > -1.0 ? std::min(g, 1.0) : -1.0) + 1.0) * 0.5 * kiGridSpans;
    int const span = std::min(static_cast<int>(k), kiGridSpans - 1);
    t = k - span;
    return span - 1;
}

/// p + D(p) and its Jacobian, with p an offset from the centre in pixels.
Linearisation gridMap(Gan_CubicBSplineWeights const& weights, double zh, Point2 const& p)
{
    double tx = 0.0, ty = 0.0, bx[4], dbx[4], by[4], dby[4];
    int const col = iSpan(p.x, zh, tx), row = iSpan(p.y, zh, ty);
    vBasis(tx, bx, dbx);
    vBasis(ty, by, dby);
    bool const insideX = std::fabs(p.x) <= zh, insideY = std::fabs(p.y) <= zh;
    double const scale = 0.5 * kiGridSpans / zh;
    Linearisation l{{p.x, p.y}, {{1.0, 0.0}, {0.0, 1.0}}};
    for (int i = 0; i < 4; ++i) {
        Gan_Vector2 const* line = weights.weight[std::clamp(row + i, 0, kiGridSpans)];
        for (int j = 0; j < 4; ++j) {
            Gan_Vector2 const& w = line[std::clamp(col + j, 0, kiGridSpans)];
            double const b = by[i] * bx[j];
            double const bdx = insideX ? by[i] * dbx[j] * scale : 0.0;
            double const bdy = insideY ? dby[i] * bx[j] * scale : 0.0;
            l.value.x += b * w.x;
            l.value.y += b * w.y;
            l.j[0][0] += bdx * w.x;
            l.j[0][1] += bdy * w.x;
            l.j[1][0] += bdx * w.y;
            l.j[1][1] += bdy * w.y;
        }
    }
    return l;
}

/// The grid models in pixel offsets: `Forward` tells whether projection applies the field (12) or
/// inverts it (13).
template <bool Forward>
struct Grid {
    static bool bValid(Gan_Camera const& camera) { return camera.weights && camera.zh > 0.0; }

    static bool bApply(Gan_Camera const& camera, Point2 const& p, Point2& out)
    {
        Point2 const q = gridMap(*camera.weights, camera.zh, p).value;
        if (!bFinite(q))
            return false;
        out = q;
        return true;
    }

    static bool bInvert(Gan_Camera const& camera, Point2 const& q, Point2& out)
    {
        auto const map = [&](Point2 const& p) { return gridMap(*camera.weights, camera.zh, p); };
        Point2 const shifted = map(q).value;
        Point2 const start{2.0 * q.x - shifted.x, 2.0 * q.y - shifted.y};
        Point2 p{};
        if (!bFinite(start) || !bNewton2(map, q, start, kdTolerancePixels, p))
            return false;
        out = p;
        return true;
    }

    static bool bPixels(Gan_Camera const& camera, Point2 const& p, bool bApplyField, Point2& out)
    {
        Point2 const offset{camera.fx * p.x, camera.fy * p.y};
        Point2 moved{};
        if (!(bApplyField ? bApply(camera, offset, moved) : bInvert(camera, offset, moved)))
            return false;
        out = {moved.x / camera.fx, moved.y / camera.fy};
        return true;
    }

    static bool bDistort(Gan_Camera const& camera, Point2 const& u, Point2& d)
    {
        return bPixels(camera, u, Forward, d);
    }
    static bool bUndistort(Gan_Camera const& camera, Point2 const& d, Point2& u)
    {
        return bPixels(camera, d, !Forward, u);
    }
};

// ---------------------------------------------------------------------------------------------------
// Distortion map images

bool bMapValid(Gan_Image const* image)
{
    return image && image->format == GAN_VECTOR_FIELD_2D && image->type == GAN_FLOAT && image->pix_data &&
           image->width > 0 && image->height > 0 && image->stride % sizeof(float) == 0 &&
           image->stride / (2 * sizeof(float)) >= image->width;
}

/// First of the two samples and the weight of the second, for a coordinate in [0, size]; the outer
/// two samples extend linearly to the edge.
unsigned long ulCell(double coordinate, unsigned long size, double& t)
{
    if (size < 2) {
        t = 0.0;
        return 0;
    }
    double const a = coordinate - 0.5;
    unsigned long const first = a <= 0.0 ? 0 : std::min(static_cast<unsigned long>(a), size - 2);
    t = a - static_cast<double>(first);
    return first;
}

/// The image's value at pixel point `p`, bilinear.
bool bSampleMap(Gan_Image const* image, Point2 const& p, Point2& out)
{
    if (!bMapValid(image) || !(p.x >= 0.0 && p.x <= static_cast<double>(image->width) && p.y >= 0.0 &&
                               p.y <= static_cast<double>(image->height)))
        return false;
    double tx = 0.0, ty = 0.0;
    unsigned long const col = ulCell(p.x, image->width, tx), row = ulCell(p.y, image->height, ty);
    unsigned long const col2 = std::min(col + 1, image->width - 1), row2 = std::min(row + 1, image->height - 1);
    auto const pixel = [&](unsigned long r, unsigned long c) {
        return static_cast<float const*>(image->pix_data) + (r * image->stride) / sizeof(float) + 2 * c;
    };
    Point2 q{};
    double* const channels[2] = {&q.x, &q.y};
    for (int k = 0; k < 2; ++k) {
        double const top = pixel(row, col)[k] + tx * (pixel(row, col2)[k] - pixel(row, col)[k]);
        double const bottom = pixel(row2, col)[k] + tx * (pixel(row2, col2)[k] - pixel(row2, col)[k]);
        *channels[k] = top + ty * (bottom - top);
    }
    if (!bFinite(q))
        return false;
    out = q;
    return true;
}

struct DistortionMap {
    static bool bValid(Gan_Camera const& camera)
    {
        return bMapValid(camera.map.direct) && bMapValid(camera.map.inverse);
    }

    static bool bThroughMap(Gan_Camera const& camera, Gan_Image const* image, Point2 const& p, Point2& out)
    {
        Point2 pixel{};
        if (!bSampleMap(image, {camera.fx * p.x + camera.x0, camera.fy * p.y + camera.y0}, pixel))
            return false;
        out = {(pixel.x - camera.x0) / camera.fx, (pixel.y - camera.y0) / camera.fy};
        return true;
    }

    static bool bDistort(Gan_Camera const& camera, Point2 const& u, Point2& d)
    {
        return bThroughMap(camera, camera.map.direct, u, d);
    }
    static bool bUndistort(Gan_Camera const& camera, Point2 const& d, Point2& u)
    {
        return bThroughMap(camera, camera.map.inverse, d, u);
    }
};

/// The reserved and unknown types.
struct NoModel {
    static bool bValid(Gan_Camera const&) { return false; }
    static bool bDistort(Gan_Camera const&, Point2 const&, Point2&) { return false; }
    static bool bUndistort(Gan_Camera const&, Point2 const&, Point2&) { return false; }
};

// ---------------------------------------------------------------------------------------------------
// The point functions

bool bPointValid(Gan_Vector3 const& p)
{
    return bFinite(p.x) && bFinite(p.y) && bFinite(p.z) && p.z != 0.0;
}

template <class Model>
Gan_Bool bProject(Gan_Camera const* camera, Gan_Vector3 const* in, Gan_Vector3* out, void*, void*, void*,
                  int* error)
{
    if (!camera || !in || !out || !bIntrinsicsValid(*camera) || !Model::bValid(*camera) || !bPointValid(*in))
        return bFail(error, GAN_ERROR_ILLEGAL_ARGUMENT);
    Point2 const u{in->x / in->z, in->y / in->z};
    Point2 d{};
    if (!bFinite(u) || !Model::bDistort(*camera, u, d))
        return bFail(error, GAN_ERROR_FAILURE);
    Gan_Vector3 const p{camera->fx * d.x + camera->x0, camera->fy * d.y + camera->y0, camera->zh};
    if (!bFinite(p.x) || !bFinite(p.y))
        return bFail(error, GAN_ERROR_FAILURE);
    *out = p;
    return bSucceed(error);
}

template <class Model>
Gan_Bool bBackproject(Gan_Camera const* camera, Gan_Vector3 const* in, Gan_Vector3* out, void*, int* error)
{
    if (!camera || !in || !out || !bIntrinsicsValid(*camera) || !Model::bValid(*camera) || !bPointValid(*in))
        return bFail(error, GAN_ERROR_ILLEGAL_ARGUMENT);
    double const scale = camera->zh / in->z;
    Point2 const d{(in->x * scale - camera->x0) / camera->fx, (in->y * scale - camera->y0) / camera->fy};
    Point2 u{};
    if (!bFinite(d) || !Model::bUndistort(*camera, d, u))
        return bFail(error, GAN_ERROR_FAILURE);
    *out = {u.x, u.y, 1.0};
    return bSucceed(error);
}

struct ModelEntry {
    Gan_CameraPointProjectFunc project;
    Gan_CameraPointBackprojectFunc backproject;
    bool (*bValid)(Gan_Camera const&);
};

template <class Model>
constexpr ModelEntry entry()
{
    return {bProject<Model>, bBackproject<Model>, Model::bValid};
}

ModelEntry modelOf(Gan_CameraType type)
{
    switch (type) {
    case GAN_LINEAR_CAMERA: return entry<Linear>();
    case GAN_RADIAL_DISTORTION_1: return entry<Radial<1>>();
    case GAN_RADIAL_DISTORTION_2: return entry<Radial<2>>();
    case GAN_RADIAL_DISTORTION_3: return entry<Radial<3>>();
    case GAN_RADIAL_DISTORTION_1_INV: return entry<InverseRadial<1>>();
    case GAN_RADIAL_DISTORTION_2_INV: return entry<InverseRadial<2>>();
    case GAN_STEREOGRAPHIC_CAMERA: return entry<Stereographic>();
    case GAN_EQUIDISTANT_CAMERA: return entry<Equidistant>();
    case GAN_SINE_LAW_CAMERA: return entry<SineLaw>();
    case GAN_EQUI_SOLID_ANGLE_CAMERA: return entry<EquiSolidAngle>();
    case GAN_XY_DISTORTION_4: return entry<Anamorphic>();
    case GAN_CUBIC_BSPLINE_CAMERA: return entry<Grid<true>>();
    case GAN_CUBIC_BSPLINE_CAMERA_INV: return entry<Grid<false>>();
    case GAN_DISTORTION_MAP: return entry<DistortionMap>();
    default: return entry<NoModel>();
    }
}

bool bWeightsFinite(Gan_Camera const& camera)
{
    if (camera.type != GAN_CUBIC_BSPLINE_CAMERA && camera.type != GAN_CUBIC_BSPLINE_CAMERA_INV)
        return true;
    Gan_Vector2 const* first = &camera.weights->weight[0][0];
    return std::all_of(first, first + GAN_CUBIC_BSPLINE_GRID_SIZE * GAN_CUBIC_BSPLINE_GRID_SIZE,
                       [](Gan_Vector2 const& w) { return bFinite(w.x) && bFinite(w.y); });
}

}  // namespace

extern "C" Gan_Bool gan_camera_is_valid(Gan_Camera const* camera)
{
    return camera && bIntrinsicsValid(*camera) && modelOf(camera->type).bValid(*camera) &&
                   bWeightsFinite(*camera)
               ? GAN_TRUE
               : GAN_FALSE;
}

extern "C" Gan_Bool gan_camera_internalize(Gan_Camera* camera)
{
    if (!camera)
        return GAN_FALSE;
    ModelEntry const model = modelOf(camera->type);
    camera->point_project = model.project;
    camera->point_backproject = model.backproject;
    return gan_camera_is_valid(camera);
}
