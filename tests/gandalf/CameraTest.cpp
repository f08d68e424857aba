#include "gandalf/gandalf.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace {

// The lens formulas below are written from the textbook definitions, independently of the library.
struct P2 {
    double x, y;
};
using Formula = std::function<P2(P2)>;
double const kNaN = std::numeric_limits<double>::quiet_NaN();

Formula radial(double k1, double k2 = 0, double k3 = 0)
{
    return [=](P2 u) {
        double const r2 = u.x * u.x + u.y * u.y, f = 1 + k1 * r2 + k2 * r2 * r2 + k3 * r2 * r2 * r2;
        return P2{u.x * f, u.y * f};
    };
}

Formula fishEye(double (*radiusOfAngle)(double))
{
    return [radiusOfAngle](P2 u) {
        double const r = std::hypot(u.x, u.y), s = r == 0 ? 1 : radiusOfAngle(std::atan(r)) / r;
        return P2{u.x * s, u.y * s};
    };
}

double cubicBSpline(double s)
{
    s = std::fabs(s);
    return s < 1 ? 2.0 / 3 - s * s + s * s * s / 2 : s < 2 ? (2 - s) * (2 - s) * (2 - s) / 6 : 0;
}

/// The grid model on normalised points: control point m of 17 sits at offset -zh + m zh / 8, indices past
/// the grid repeat the edge, and the displacement is in pixels.
Formula gridFormula(std::shared_ptr<Gan_CubicBSplineWeights> w, double f, double zh)
{
    return [w, f, zh](P2 p) {
        auto const knot = [zh](double o) { return (std::fmin(std::fmax(o / zh, -1), 1) + 1) * 8; };
        double const kx = knot(p.x * f), ky = knot(p.y * f);
        P2 d{p.x * f, p.y * f};
        for (int i = -1; i <= 17; ++i)
            for (int j = -1; j <= 17; ++j) {
                Gan_Vector2 const& c = w->weight[std::clamp(i, 0, 16)][std::clamp(j, 0, 16)];
                double const b = cubicBSpline(ky - i) * cubicBSpline(kx - j);
                d.x += b * c.x;
                d.y += b * c.y;
            }
        return P2{d.x / f, d.y / f};
    };
}

/// A radial-looking field with a twist, `strength` pixels at the grid's corners.
std::shared_ptr<Gan_CubicBSplineWeights> gridWeights(double strength)
{
    auto w = std::make_shared<Gan_CubicBSplineWeights>();
    for (int i = 0; i < 17; ++i)
        for (int j = 0; j < 17; ++j) {
            double const x = (j - 8) / 8.0, y = (i - 8) / 8.0, r2 = x * x + y * y;
            w->weight[i][j] = {strength * (x * r2 / 2 + 0.1 * y), strength * (y * r2 / 2 - 0.1 * x)};
        }
    return w;
}

/// A distortion map image that scales pixels by `scale` about the centre; exact in float at these sizes.
std::shared_ptr<Gan_Image> scaleMap(unsigned long width, unsigned long height, double scale)
{
    std::shared_ptr<Gan_Image> image(gan_image_alloc(GAN_VECTOR_FIELD_2D, GAN_FLOAT, height, width), gan_image_free);
    for (unsigned long row = 0; row < height; ++row)
        for (unsigned long col = 0; col < width; ++col) {
            auto* pixel = static_cast<float*>(gan_image_get_pixptr(image.get(), row, col));
            pixel[0] = static_cast<float>(width / 2.0 + (col + 0.5 - width / 2.0) * scale);
            pixel[1] = static_cast<float>(height / 2.0 + (row + 0.5 - height / 2.0) * scale);
        }
    return image;
}

struct Lens {
    std::string name;
    Gan_CameraType type;
    double f; // focal length in pixels
    std::vector<double> d;
    Formula truth;       // the model's formula in its closed-form direction
    bool bTruthProjects; // truth maps undistorted to distorted (else the reverse)
    std::shared_ptr<Gan_CubicBSplineWeights> weights{};
    std::shared_ptr<Gan_Image> direct{}, inverse{};
    double width = 1920, height = 1080;
};

Gan_Camera cameraOf(Lens const& lens)
{
    Gan_Camera camera{lens.type, {lens.f}, {lens.f}, {lens.width / 2}, {lens.height / 2}, {lens.width / 2}, {},
                      lens.weights.get(), nullptr, nullptr, nullptr};
    std::copy(lens.d.begin(), lens.d.end(), camera.d);
    if (lens.direct)
        camera.map = {lens.direct.get(), lens.inverse.get()};
    return camera;
}

std::vector<Lens> lenses()
{
    std::vector<Lens> all;
    for (double sign : {-1.0, 1.0}) { // barrel, then pincushion
        std::string const kind = sign < 0 ? " barrel" : " pincushion";
        double const k1 = 0.2 * sign, k2 = 0.05, k3 = 0.02 * sign, c = 0.1 * sign;
        auto const w = gridWeights(40 * sign);
        std::vector<Lens> const ofSign{
            {"radial 1", GAN_RADIAL_DISTORTION_1, 1500, {k1}, radial(k1), true},
            {"radial 2", GAN_RADIAL_DISTORTION_2, 1500, {k1, k2}, radial(k1, k2), true},
            {"radial 3", GAN_RADIAL_DISTORTION_3, 1500, {k1, k2, k3}, radial(k1, k2, k3), true},
            // The inverse models' factor undistorts: a positive coefficient is barrel.
            {"inverse radial 1", GAN_RADIAL_DISTORTION_1_INV, 1500, {-0.3 * sign}, radial(-0.3 * sign), false},
            {"inverse radial 2", GAN_RADIAL_DISTORTION_2_INV, 1500, {-0.25 * sign, -0.05 * sign},
             radial(-0.25 * sign, -0.05 * sign), false},
            {"anamorphic", GAN_XY_DISTORTION_4, 1500, {c, c / 2, -c * 0.8, c * 1.2},
             [c](P2 u) {
                 return P2{u.x * (1 + c * u.x * u.x + c / 2 * u.y * u.y),
                           u.y * (1 - c * 0.8 * u.x * u.x + c * 1.2 * u.y * u.y)};
             },
             true},
            {"B-spline grid", GAN_CUBIC_BSPLINE_CAMERA, 1500, {}, gridFormula(w, 1500, 960), true, w},
            {"inverse B-spline grid", GAN_CUBIC_BSPLINE_CAMERA_INV, 1500, {}, gridFormula(w, 1500, 960), false, w}};
        for (Lens lens : ofSign) {
            lens.name += kind;
            all.push_back(lens);
        }
    }
    all.push_back({"linear", GAN_LINEAR_CAMERA, 1500, {}, [](P2 u) { return u; }, true});
    all.push_back({"stereographic", GAN_STEREOGRAPHIC_CAMERA, 800, {},
                   fishEye([](double t) { return 2 * std::tan(t / 2); }), true});
    all.push_back({"equidistant", GAN_EQUIDISTANT_CAMERA, 800, {}, fishEye([](double t) { return t; }), true});
    all.push_back({"sine law", GAN_SINE_LAW_CAMERA, 1200, {}, fishEye([](double t) { return std::sin(t); }), true});
    all.push_back({"equi-solid-angle", GAN_EQUI_SOLID_ANGLE_CAMERA, 800, {},
                   fishEye([](double t) { return 2 * std::sin(t / 2); }), true});
    // Maps: undistorted points spread out by 2 about the centre; the inverse brings them back.
    Lens map{"distortion map", GAN_DISTORTION_MAP, 50, {}, [](P2 d) { return P2{d.x / 2, d.y / 2}; }, false, {},
             scaleMap(64, 32, 2), scaleMap(64, 32, 0.5), 64, 32};
    all.push_back(map);
    return all;
}

Gan_Vector3 pixelOf(Gan_Camera const& camera, P2 d)
{
    return {camera.fx * d.x + camera.x0, camera.fy * d.y + camera.y0, camera.zh};
}

P2 normalised(Gan_Camera const& camera, Gan_Vector3 const& p)
{
    return {(p.x - camera.x0) / camera.fx, (p.y - camera.y0) / camera.fy};
}

} // namespace

TEST(Camera, EveryModelRoundTripsOverTheWholeFrameAndMatchesItsFormula)
{
    int constexpr steps = 24;
    for (Lens const& lens : lenses()) {
        SCOPED_TRACE(lens.name);
        Gan_Camera camera = cameraOf(lens);
        ASSERT_EQ(gan_camera_internalize(&camera), GAN_TRUE);
        double const tolerance = 1e-9 / camera.fx; // 1e-9 pixel in normalised units
        for (int i = 0; i <= steps; ++i)
            for (int j = 0; j <= steps; ++j) {
                // A grid of pixels over the frame, its edges and corners included, given with z = 2 zh.
                Gan_Vector3 const pixel{lens.width * j / steps, lens.height * i / steps, camera.zh};
                Gan_Vector3 ray{2 * pixel.x, 2 * pixel.y, 2 * camera.zh}, projected{};
                int error = -1;
                ASSERT_EQ(camera.point_backproject(&camera, &ray, &ray, nullptr, &error), GAN_TRUE)
                    << pixel.x << ", " << pixel.y;
                EXPECT_TRUE(error == 0 && ray.z == 1.0);
                Gan_Vector3 const point{ray.x * -3.5, ray.y * -3.5, -3.5};
                ASSERT_TRUE(camera.point_project(&camera, &point, &projected, nullptr, nullptr, nullptr, &error));
                EXPECT_LT(std::hypot(projected.x - pixel.x, projected.y - pixel.y), 1e-9);
                EXPECT_EQ(projected.z, camera.zh);
                Gan_Vector3 again = projected;
                ASSERT_EQ(camera.point_backproject(&camera, &again, &again, nullptr, nullptr), GAN_TRUE);
                EXPECT_LT(std::hypot(again.x - ray.x, again.y - ray.y), tolerance);
                // Against the formula, in whichever direction it is closed.
                P2 const truth = lens.truth(lens.bTruthProjects ? P2{ray.x, ray.y} : normalised(camera, pixel));
                P2 const want = lens.bTruthProjects ? normalised(camera, pixel) : P2{ray.x, ray.y};
                EXPECT_LT(std::hypot(truth.x - want.x, truth.y - want.y), tolerance);
            }
    }
}

TEST(Camera, PointsOutsideTheDomainAndBadInputFailWithoutTouchingTheOutput)
{
    auto const w = gridWeights(40);
    double const inf = std::numeric_limits<double>::infinity();
    struct Case {
        std::string name;
        Gan_CameraType type;
        std::vector<double> d;
        Gan_Vector3 undistorted; // projected: must fail (NaN z to skip)
        Gan_Vector3 distorted;   // back-projected: must fail (NaN z to skip)
        std::function<void(Gan_Camera&)> spoil{};
    };
    Gan_Vector3 const skip{0, 0, kNaN}, sound{1, 1, 10};
    std::vector<Case> const cases{
        // r (1 - 0.3 r^2) turns at r = 1.054, distorted radius 0.703; r (1 - r^6) at 0.723, 0.620
        {"radial 1 past the fold", GAN_RADIAL_DISTORTION_1, {-0.3}, {1.06, 0, 1}, {0.5, 0.51, 1}},
        {"radial 2 past the fold", GAN_RADIAL_DISTORTION_2, {0.2, -0.3}, {1.2, 0.5, 1}, {1.2, 0.5, 1}},
        {"radial 3 past the fold", GAN_RADIAL_DISTORTION_3, {0, 0, -1}, {0.8, 0, 1}, {0, 0.63, 1}},
        {"inverse radial 1 past the fold", GAN_RADIAL_DISTORTION_1_INV, {-0.3}, {0.71, 0, 1}, {0, 1.06, 1}},
        {"inverse radial 2 past the fold", GAN_RADIAL_DISTORTION_2_INV, {0.1, -0.5}, {2, 0, 1}, {-1.1, 0, 1}},
        {"stereographic past 90 degrees", GAN_STEREOGRAPHIC_CAMERA, {}, skip, {2, 0.01, 1}},
        {"equidistant past 90 degrees", GAN_EQUIDISTANT_CAMERA, {}, skip, {0, 1.5708, 1}},
        {"sine law past 90 degrees", GAN_SINE_LAW_CAMERA, {}, skip, {0.8, 0.6, 1}},
        {"equi-solid-angle past 90 degrees", GAN_EQUI_SOLID_ANGLE_CAMERA, {}, skip, {1, 1, 1}},
        // 1 - 0.9 x^2 vanishes at x = 1.054; y alone stays regular
        {"anamorphic past the fold", GAN_XY_DISTORTION_4, {-0.3, 0, 0, 0.1}, {1.1, 0.1, 1}, {0.71, 0, 1}},
        // diagonal 1 + y^2 and 1 + x^2, determinant 1 + x^2 + y^2 - 3 x^2 y^2
        {"anamorphic folded by the cross terms", GAN_XY_DISTORTION_4, {0, 1, 1, 0}, {1.3, -1.3, 1}, skip},
        {"reserved 10", GAN_RESERVED_CAMERA_10, {}, {0, 0, 1}, {0, 0, 1}},
        {"reserved 11", GAN_RESERVED_CAMERA_11, {}, {0, 0, 1}, {0, 0, 1}},
        {"unknown", static_cast<Gan_CameraType>(99), {}, {0, 0, 1}, {0, 0, 1}},
        {"negative", static_cast<Gan_CameraType>(-1), {}, {0, 0, 1}, {0, 0, 1}},
        // Bad input: a spoilt camera fails to internalise; a sound camera fails on a bad point.
        {"NaN coefficient", GAN_RADIAL_DISTORTION_2, {0.1, 0.01}, sound, sound, [](Gan_Camera& c) { c.d[1] = kNaN; }},
        {"infinite coefficient", GAN_RADIAL_DISTORTION_2, {0.1}, sound, sound, [inf](Gan_Camera& c) { c.d[0] = inf; }},
        {"zero focal length", GAN_RADIAL_DISTORTION_2, {0.1}, sound, sound, [](Gan_Camera& c) { c.fy = 0; }},
        {"NaN centre", GAN_RADIAL_DISTORTION_2, {0.1}, sound, sound, [](Gan_Camera& c) { c.x0 = kNaN; }},
        {"zero image plane", GAN_RADIAL_DISTORTION_2, {0.1}, sound, sound, [](Gan_Camera& c) { c.zh = 0; }},
        {"zero z", GAN_RADIAL_DISTORTION_2, {0.1}, {1, 1, 0}, {1, 1, 0}},
        {"NaN point", GAN_RADIAL_DISTORTION_2, {0.1}, {kNaN, 1, 10}, {1, kNaN, 10}},
        {"infinite point", GAN_RADIAL_DISTORTION_2, {0.1}, {1, -inf, 10}, {inf, 1, 10}},
        {"point overflowing on division", GAN_RADIAL_DISTORTION_2, {0.1}, {1e300, 1, 1e-300}, {1e300, 1, 1e-300}},
        {"null weights", GAN_CUBIC_BSPLINE_CAMERA, {}, sound, sound, [](Gan_Camera& c) { c.weights = nullptr; }},
        {"NaN weights", GAN_CUBIC_BSPLINE_CAMERA_INV, {}, sound, sound,
         [](Gan_Camera& c) { std::fill_n(&c.weights->weight[0][0].x, 578, kNaN); }},
        // Each map serves one direction: a bad direct map fails projection, a bad inverse map back-projection.
        {"null direct map", GAN_DISTORTION_MAP, {}, sound, skip, [](Gan_Camera& c) { c.map.direct = nullptr; }},
        {"null inverse map", GAN_DISTORTION_MAP, {}, skip, sound, [](Gan_Camera& c) { c.map.inverse = nullptr; }},
        {"map of the wrong format", GAN_DISTORTION_MAP, {}, sound, skip,
         [](Gan_Camera& c) { c.map.direct->format = GAN_RGB_COLOUR_IMAGE; }},
        {"map of the wrong type", GAN_DISTORTION_MAP, {}, skip, sound,
         [](Gan_Camera& c) { c.map.inverse->type = GAN_DOUBLE; }},
        {"map with a short stride", GAN_DISTORTION_MAP, {}, sound, skip,
         [](Gan_Camera& c) { c.map.direct->stride = 8 * 7; }},
    };
    for (Case const& c : cases) {
        SCOPED_TRACE(c.name);
        Lens lens{c.name, c.type, 1000, c.d, {}, true, std::make_shared<Gan_CubicBSplineWeights>(*w)};
        if (c.type == GAN_DISTORTION_MAP) {
            lens.direct = scaleMap(8, 8, 1);
            lens.inverse = scaleMap(8, 8, 1);
        }
        Gan_Camera camera = cameraOf(lens);
        if (c.spoil)
            c.spoil(camera);
        bool const bHasModel = c.type >= 0 && c.type <= 15 && c.type != 10 && c.type != 11;
        EXPECT_EQ(gan_camera_internalize(&camera), bHasModel && !c.spoil ? GAN_TRUE : GAN_FALSE);
        Gan_Vector3 const sentinel{7, 8, 9};
        Gan_Vector3 out = sentinel;
        int error = 0;
        if (!std::isnan(c.undistorted.z)) {
            EXPECT_FALSE(camera.point_project(&camera, &c.undistorted, &out, nullptr, nullptr, nullptr, &error));
            EXPECT_NE(error, 0);
        }
        if (!std::isnan(c.distorted.z)) {
            // Normalised points of the domain cases become pixels; the bad points are given as they are.
            Gan_Vector3 const pixel =
                c.distorted.z == 1 ? pixelOf(camera, {c.distorted.x, c.distorted.y}) : c.distorted;
            error = 0;
            EXPECT_EQ(camera.point_backproject(&camera, &pixel, &out, nullptr, &error), GAN_FALSE);
            EXPECT_NE(error, 0);
        }
        EXPECT_TRUE(out.x == sentinel.x && out.y == sentinel.y && out.z == sentinel.z);
    }
    EXPECT_EQ(gan_camera_internalize(nullptr), GAN_FALSE);
    EXPECT_EQ(gan_camera_is_valid(nullptr), GAN_FALSE);
}

TEST(Camera, MapsReadOnlyTheirOwnFrame)
{
    // Back-projecting the outer pixels of a shrinking map lands outside the direct map; points outside
    // either image fail.
    Lens const map{"shrinking map", GAN_DISTORTION_MAP, 50, {}, {}, true, {}, scaleMap(64, 32, 0.5),
                   scaleMap(64, 32, 2), 64, 32};
    Gan_Camera camera = cameraOf(map);
    ASSERT_EQ(gan_camera_internalize(&camera), GAN_TRUE);
    Gan_Vector3 p{40, 20, camera.zh};
    ASSERT_EQ(camera.point_backproject(&camera, &p, &p, nullptr, nullptr), GAN_TRUE);
    EXPECT_NEAR(p.x, (48 - 32) / 50.0, 1e-12);
    EXPECT_NEAR(p.y, (24 - 16) / 50.0, 1e-12);
    for (Gan_Vector3 outer : {Gan_Vector3{60, 16, 32}, Gan_Vector3{-0.01, 16, 32}, Gan_Vector3{32, 32.01, 32}}) {
        Gan_Vector3 const before = outer;
        if (camera.point_backproject(&camera, &outer, &outer, nullptr, nullptr)) {
            Gan_Vector3 const point{outer.x, outer.y, 1};
            EXPECT_EQ(camera.point_project(&camera, &point, &outer, nullptr, nullptr, nullptr, nullptr), GAN_FALSE);
        } else {
            EXPECT_EQ(outer.x, before.x);
        }
    }
}
