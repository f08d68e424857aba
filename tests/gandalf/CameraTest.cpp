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

P2 radial(P2 u, double k1, double k2, double k3)
{
    double const r2 = u.x * u.x + u.y * u.y;
    double const f = 1 + k1 * r2 + k2 * r2 * r2 + k3 * r2 * r2 * r2;
    return {u.x * f, u.y * f};
}

Formula fishEye(std::function<double(double)> radiusOfAngle)
{
    return [radiusOfAngle](P2 u) {
        double const r = std::sqrt(u.x * u.x + u.y * u.y);
        double const s = r == 0 ? 1 : radiusOfAngle(std::atan(r)) / r;
        return P2{u.x * s, u.y * s};
    };
}

Formula anamorphic(double cxx, double cxy, double cyx, double cyy)
{
    return [=](P2 u) {
        return P2{u.x * (1 + cxx * u.x * u.x + cxy * u.y * u.y), u.y * (1 + cyx * u.x * u.x + cyy * u.y * u.y)};
    };
}

double cubicBSpline(double s)
{
    s = std::fabs(s);
    return s < 1 ? 2.0 / 3 - s * s + s * s * s / 2 : s < 2 ? (2 - s) * (2 - s) * (2 - s) / 6 : 0;
}

/// Control point m of 17 sits at offset -zh + m zh / 8; indices past the grid repeat the edge.
P2 gridDisplacement(Gan_CubicBSplineWeights const& w, double zh, P2 offset)
{
    auto const knot = [zh](double o) { return (std::fmin(std::fmax(o / zh, -1), 1) + 1) * 8; };
    double const kx = knot(offset.x), ky = knot(offset.y);
    P2 d{0, 0};
    for (int i = -1; i <= 17; ++i)
        for (int j = -1; j <= 17; ++j) {
            Gan_Vector2 const& c = w.weight[std::min(std::max(i, 0), 16)][std::min(std::max(j, 0), 16)];
            double const b = cubicBSpline(ky - i) * cubicBSpline(kx - j);
            d.x += b * c.x;
            d.y += b * c.y;
        }
    return d;
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

/// A distortion map image that scales pixels by `scale` about (cx, cy). The sample values are exact in
/// float for the sizes used here.
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
    double f;  // focal length in pixels
    std::vector<double> d;
    Formula truth;           // the model's formula in its closed-form direction
    bool bTruthProjects;     // truth maps undistorted to distorted (else the reverse)
    std::shared_ptr<Gan_CubicBSplineWeights> weights{};
    std::shared_ptr<Gan_Image> direct{}, inverse{};
    double width = 1920, height = 1080;
};

Gan_Camera cameraOf(Lens const& lens)
{
    Gan_Camera camera{};
    camera.type = lens.type;
    camera.fx = camera.fy = lens.f;
    camera.x0 = lens.width / 2;
    camera.y0 = lens.height / 2;
    camera.zh = lens.width / 2;
    for (size_t i = 0; i < lens.d.size(); ++i)
        camera.d[i] = lens.d[i];
    camera.weights = lens.weights.get();
    if (lens.direct) {
        camera.map.direct = lens.direct.get();
        camera.map.inverse = lens.inverse.get();
    }
    return camera;
}

Formula gridFormula(std::shared_ptr<Gan_CubicBSplineWeights> w, double f, double zh)
{
    return [w, f, zh](P2 p) {
        P2 const offset{p.x * f, p.y * f};
        P2 const d = gridDisplacement(*w, zh, offset);
        return P2{(offset.x + d.x) / f, (offset.y + d.y) / f};
    };
}

std::vector<Lens> lenses()
{
    std::vector<Lens> all;
    for (double sign : {-1.0, 1.0}) {  // barrel, then pincushion
        std::string const kind = sign < 0 ? " barrel" : " pincushion";
        double const k1 = 0.2 * sign, k2 = 0.05, k3 = 0.02 * sign;
        all.push_back({"radial 1" + kind, GAN_RADIAL_DISTORTION_1, 1500, {k1},
                       [=](P2 u) { return radial(u, k1, 0, 0); }, true});
        all.push_back({"radial 2" + kind, GAN_RADIAL_DISTORTION_2, 1500, {k1, k2},
                       [=](P2 u) { return radial(u, k1, k2, 0); }, true});
        all.push_back({"radial 3" + kind, GAN_RADIAL_DISTORTION_3, 1500, {k1, k2, k3},
                       [=](P2 u) { return radial(u, k1, k2, k3); }, true});
        // The inverse models' factor undistorts: a positive coefficient is barrel.
        all.push_back({"inverse radial 1" + kind, GAN_RADIAL_DISTORTION_1_INV, 1500, {-0.3 * sign},
                       [=](P2 d) { return radial(d, -0.3 * sign, 0, 0); }, false});
        all.push_back({"inverse radial 2" + kind, GAN_RADIAL_DISTORTION_2_INV, 1500, {-0.25 * sign, -0.05 * sign},
                       [=](P2 d) { return radial(d, -0.25 * sign, -0.05 * sign, 0); }, false});
        double const c = 0.1 * sign;
        all.push_back({"anamorphic" + kind, GAN_XY_DISTORTION_4, 1500, {c, c / 2, -c * 0.8, c * 1.2},
                       anamorphic(c, c / 2, -c * 0.8, c * 1.2), true});
        auto const w = gridWeights(40 * sign);
        all.push_back({"B-spline grid" + kind, GAN_CUBIC_BSPLINE_CAMERA, 1500, {}, gridFormula(w, 1500, 960), true, w});
        all.push_back({"inverse B-spline grid" + kind, GAN_CUBIC_BSPLINE_CAMERA_INV, 1500, {},
                       gridFormula(w, 1500, 960), false, w});
    }
    all.push_back({"linear", GAN_LINEAR_CAMERA, 1500, {}, [](P2 u) { return u; }, true});
    all.push_back({"stereographic", GAN_STEREOGRAPHIC_CAMERA, 800, {},
                   fishEye([](double t) { return 2 * std::tan(t / 2); }), true});
    all.push_back({"equidistant", GAN_EQUIDISTANT_CAMERA, 800, {}, fishEye([](double t) { return t; }), true});
    all.push_back({"sine law", GAN_SINE_LAW_CAMERA, 1200, {}, fishEye([](double t) { return std::sin(t); }), true});
    all.push_back({"equi-solid-angle", GAN_EQUI_SOLID_ANGLE_CAMERA, 800, {},
                   fishEye([](double t) { return 2 * std::sin(t / 2); }), true});
    // Maps: undistorted points spread out by 2 about the centre; the inverse brings them back.
    Lens map{"distortion map", GAN_DISTORTION_MAP, 50, {}, [](P2 d) { return P2{d.x / 2, d.y / 2}; }, false};
    map.direct = scaleMap(64, 32, 2);
    map.inverse = scaleMap(64, 32, 0.5);
    map.width = 64;
    map.height = 32;
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

}  // namespace

TEST(Camera, EveryModelRoundTripsOverTheWholeFrameAndMatchesItsFormula)
{
    int constexpr steps = 24;
    for (Lens const& lens : lenses()) {
        SCOPED_TRACE(lens.name);
        Gan_Camera camera = cameraOf(lens);
        ASSERT_EQ(gan_camera_internalize(&camera), GAN_TRUE);
        double const tolerance = 1e-9 / camera.fx;  // 1e-9 pixel in normalised units
        for (int i = 0; i <= steps; ++i)
            for (int j = 0; j <= steps; ++j) {
                // A grid of pixels over the frame, its edges and corners included, given with z = 2 zh.
                Gan_Vector3 const pixel{lens.width * j / steps, lens.height * i / steps, camera.zh};
                Gan_Vector3 ray{2 * pixel.x, 2 * pixel.y, 2 * camera.zh};
                int error = -1;
                ASSERT_EQ(camera.point_backproject(&camera, &ray, &ray, nullptr, &error), GAN_TRUE)
                    << pixel.x << ", " << pixel.y;
                EXPECT_EQ(error, 0);
                EXPECT_EQ(ray.z, 1.0);
                Gan_Vector3 const point{ray.x * -3.5, ray.y * -3.5, -3.5};
                Gan_Vector3 projected{};
                ASSERT_EQ(camera.point_project(&camera, &point, &projected, nullptr, nullptr, nullptr, &error),
                          GAN_TRUE);
                EXPECT_NEAR(projected.x, pixel.x, 1e-9);
                EXPECT_NEAR(projected.y, pixel.y, 1e-9);
                EXPECT_EQ(projected.z, camera.zh);
                Gan_Vector3 again = projected;
                ASSERT_EQ(camera.point_backproject(&camera, &again, &again, nullptr, nullptr), GAN_TRUE);
                EXPECT_NEAR(again.x, ray.x, tolerance);
                EXPECT_NEAR(again.y, ray.y, tolerance);
                // Against the formula, in whichever direction it is closed.
                P2 const truth = lens.truth(lens.bTruthProjects ? P2{ray.x, ray.y} : normalised(camera, pixel));
                P2 const want = lens.bTruthProjects ? normalised(camera, pixel) : P2{ray.x, ray.y};
                EXPECT_NEAR(truth.x, want.x, tolerance);
                EXPECT_NEAR(truth.y, want.y, tolerance);
            }
    }
}

TEST(Camera, PointsOutsideAModelsDomainFailAndLeaveTheOutput)
{
    auto const w = gridWeights(40);
    struct Case {
        std::string name;
        Gan_CameraType type;
        std::vector<double> d;
        P2 undistorted;  // projected: must fail (NaN to skip)
        P2 distorted;    // back-projected: must fail (NaN to skip)
    };
    std::vector<Case> const cases{
        // r (1 - 0.3 r^2) turns at r = 1.054, distorted radius 0.703; r (1 - r^6) at 0.723, 0.620
        {"radial 1 past the fold", GAN_RADIAL_DISTORTION_1, {-0.3}, {1.06, 0}, {0.5, 0.51}},
        {"radial 2 past the fold", GAN_RADIAL_DISTORTION_2, {0.2, -0.3}, {1.2, 0.5}, {1.2, 0.5}},
        {"radial 3 past the fold", GAN_RADIAL_DISTORTION_3, {0, 0, -1}, {0.8, 0}, {0, 0.63}},
        {"inverse radial 1 past the fold", GAN_RADIAL_DISTORTION_1_INV, {-0.3}, {0.71, 0}, {0, 1.06}},
        {"inverse radial 2 past the fold", GAN_RADIAL_DISTORTION_2_INV, {0.1, -0.5}, {2, 0}, {-1.1, 0}},
        {"stereographic past 90 degrees", GAN_STEREOGRAPHIC_CAMERA, {}, {kNaN, 0}, {2, 0.01}},
        {"equidistant past 90 degrees", GAN_EQUIDISTANT_CAMERA, {}, {kNaN, 0}, {0, 1.5708}},
        {"sine law past 90 degrees", GAN_SINE_LAW_CAMERA, {}, {kNaN, 0}, {0.8, 0.6}},
        {"equi-solid-angle past 90 degrees", GAN_EQUI_SOLID_ANGLE_CAMERA, {}, {kNaN, 0}, {1, 1}},
        // 1 - 0.9 x^2 vanishes at x = 1.054; y alone stays regular
        {"anamorphic past the fold", GAN_XY_DISTORTION_4, {-0.3, 0, 0, 0.1}, {1.1, 0.1}, {0.71, 0}},
        // diagonal 1 + y^2 and 1 + x^2, determinant 1 + x^2 + y^2 - 3 x^2 y^2
        {"anamorphic folded by the cross terms", GAN_XY_DISTORTION_4, {0, 1, 1, 0}, {1.3, -1.3}, {kNaN, 0}},
        {"reserved 10", GAN_RESERVED_CAMERA_10, {}, {0, 0}, {0, 0}},
        {"reserved 11", GAN_RESERVED_CAMERA_11, {}, {0, 0}, {0, 0}},
        {"unknown", static_cast<Gan_CameraType>(99), {}, {0, 0}, {0, 0}},
        {"negative", static_cast<Gan_CameraType>(-1), {}, {0, 0}, {0, 0}},
    };
    for (Case const& c : cases) {
        SCOPED_TRACE(c.name);
        Lens lens{c.name, c.type, 1000, c.d, {}, true, w};
        Gan_Camera camera = cameraOf(lens);
        bool const bHasModel = c.type >= 0 && c.type <= 15 && c.type != 10 && c.type != 11;
        EXPECT_EQ(gan_camera_internalize(&camera), bHasModel ? GAN_TRUE : GAN_FALSE);
        Gan_Vector3 const sentinel{7, 8, 9};
        Gan_Vector3 out = sentinel;
        int error = 0;
        if (!std::isnan(c.undistorted.x)) {
            Gan_Vector3 const point{c.undistorted.x * 2, c.undistorted.y * 2, 2};
            EXPECT_EQ(camera.point_project(&camera, &point, &out, nullptr, nullptr, nullptr, &error), GAN_FALSE);
            EXPECT_NE(error, 0);
        }
        if (!std::isnan(c.distorted.x)) {
            Gan_Vector3 const pixel = pixelOf(camera, c.distorted);
            error = 0;
            EXPECT_EQ(camera.point_backproject(&camera, &pixel, &out, nullptr, &error), GAN_FALSE);
            EXPECT_NE(error, 0);
        }
        EXPECT_EQ(out.x, sentinel.x);
        EXPECT_EQ(out.y, sentinel.y);
        EXPECT_EQ(out.z, sentinel.z);
    }

    // A map reads only its own frame: back-projecting the outer pixels of a shrinking map lands outside
    // the direct map, points outside either image fail.
    Lens map{"shrinking map", GAN_DISTORTION_MAP, 50, {}, {}, true};
    map.direct = scaleMap(64, 32, 0.5);
    map.inverse = scaleMap(64, 32, 2);
    map.width = 64;
    map.height = 32;
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

TEST(Camera, BadInputFailsWithoutTouchingTheOutput)
{
    Lens radial2{"radial", GAN_RADIAL_DISTORTION_2, 1000, {0.1, 0.01}, {}, true};
    Lens grid{"grid", GAN_CUBIC_BSPLINE_CAMERA, 1000, {}, {}, true, gridWeights(10)};
    Lens map{"map", GAN_DISTORTION_MAP, 50, {}, {}, true};
    map.direct = scaleMap(8, 8, 1);
    map.inverse = scaleMap(8, 8, 1);
    struct Case {
        std::string name;
        Lens const& lens;
        std::function<void(Gan_Camera&)> spoil;
        Gan_Vector3 point;
        bool bProjectFails = true, bBackprojectFails = true;  // each map serves one direction only
    };
    double const inf = std::numeric_limits<double>::infinity();
    std::nullptr_t const keep = nullptr;  // a sound camera with a bad point
    std::vector<Case> const cases{
        {"NaN coefficient", radial2, [](Gan_Camera& c) { c.d[1] = kNaN; }, {1, 1, 10}},
        {"infinite coefficient", radial2, [inf](Gan_Camera& c) { c.d[0] = inf; }, {1, 1, 10}},
        {"zero focal length", radial2, [](Gan_Camera& c) { c.fy = 0; }, {1, 1, 10}},
        {"NaN centre", radial2, [](Gan_Camera& c) { c.x0 = kNaN; }, {1, 1, 10}},
        {"zero image-plane coordinate", radial2, [](Gan_Camera& c) { c.zh = 0; }, {1, 1, 10}},
        {"zero z", radial2, keep, {1, 1, 0}},
        {"NaN point", radial2, keep, {kNaN, 1, 10}},
        {"infinite point", radial2, keep, {1, -inf, 10}},
        {"point overflowing on division", radial2, keep, {1e300, 1, 1e-300}},
        {"null weights", grid, [](Gan_Camera& c) { c.weights = nullptr; }, {1, 1, 10}},
        {"NaN weights", grid, [](Gan_Camera& c) { std::fill_n(&c.weights->weight[0][0].x, 578, kNaN); }, {1, 1, 10}},
        {"null direct map", map, [](Gan_Camera& c) { c.map.direct = nullptr; }, {0, 0, 10}, true, false},
        {"null inverse map", map, [](Gan_Camera& c) { c.map.inverse = nullptr; }, {0, 0, 10}, false, true},
        {"map of the wrong format", map, [](Gan_Camera& c) { c.map.direct->format = GAN_RGB_COLOUR_IMAGE; },
         {0, 0, 10}, true, false},
        {"map of the wrong type", map, [](Gan_Camera& c) { c.map.inverse->type = GAN_DOUBLE; }, {0, 0, 10},
         false, true},
        {"map with a short stride", map, [](Gan_Camera& c) { c.map.direct->stride = 8 * 7; }, {0, 0, 10}, true,
         false},
    };
    for (Case const& c : cases) {
        SCOPED_TRACE(c.name);
        Lens lens = c.lens;  // with its own weights and images, which the case may spoil
        lens.weights = lens.weights ? std::make_shared<Gan_CubicBSplineWeights>(*lens.weights) : nullptr;
        if (lens.direct) {
            lens.direct = scaleMap(8, 8, 1);
            lens.inverse = scaleMap(8, 8, 1);
        }
        Gan_Camera camera = cameraOf(lens);
        if (c.spoil)
            c.spoil(camera);
        EXPECT_EQ(gan_camera_internalize(&camera), c.spoil ? GAN_FALSE : GAN_TRUE);
        ASSERT_NE(camera.point_project, nullptr);
        ASSERT_NE(camera.point_backproject, nullptr);
        Gan_Vector3 out{7, 8, 9};
        int error = 0;
        Gan_Vector3 const point = c.point;
        if (c.bProjectFails) {
            EXPECT_EQ(camera.point_project(&camera, &point, &out, nullptr, nullptr, nullptr, &error), GAN_FALSE);
            EXPECT_NE(error, 0);
        }
        if (c.bBackprojectFails) {
            error = 0;
            EXPECT_EQ(camera.point_backproject(&camera, &point, &out, nullptr, &error), GAN_FALSE);
            EXPECT_NE(error, 0);
        }
        EXPECT_EQ(out.x, 7);
        EXPECT_EQ(out.y, 8);
        EXPECT_EQ(out.z, 9);
    }
    EXPECT_EQ(gan_camera_internalize(nullptr), GAN_FALSE);
    EXPECT_EQ(gan_camera_is_valid(nullptr), GAN_FALSE);
}

TEST(Camera, SlotsShareTheirPlaceWithTheMapsAndTheSavedNames)
{
    Gan_Camera camera{};
    Gan_Image image{};
    camera.map.direct = &image;
    camera.map.inverse = nullptr;
    EXPECT_EQ(static_cast<void*>(&camera.map.direct), static_cast<void*>(&camera.d[0]));
    EXPECT_EQ(static_cast<void*>(&camera.map.inverse), static_cast<void*>(&camera.d[1]));
    camera.Fx = 1;
    camera.Fy = 2;
    camera.X0 = 3;
    camera.Y0 = 4;
    camera.Z = 5;
    EXPECT_EQ(camera.fx + 10 * camera.fy + 100 * camera.x0 + 1000 * camera.y0 + 10000 * camera.zh, 54321);
    EXPECT_EQ(static_cast<void*>(&camera.weights_aux), static_cast<void*>(&camera.weights + 1));
}
