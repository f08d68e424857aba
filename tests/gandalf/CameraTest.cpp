#include "gandalf/Fixtures.h"
#include "gandalf/gandalf.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

using namespace TQTest;

namespace {

double const kNaN = std::numeric_limits<double>::quiet_NaN();

} // namespace

TEST(Camera, EveryModelRoundTripsOverTheWholeFrameAndMatchesItsFormula)
{
    struct {
        std::string lens;
        double x, y, u, v;
    } const points[] = {
#include "data/LensPoints.inc"
    };
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
            }
        int iPoints = 0;
        for (auto const& [name, x, y, u, v] : points) {
            if (name != lens.name)
                continue;
            ++iPoints;
            Gan_Vector3 out{}, distorted{x, y, camera.zh}, undistorted{u, v, 1};
            ASSERT_TRUE(camera.point_backproject(&camera, &distorted, &out, nullptr, nullptr));
            EXPECT_LT(std::hypot(out.x - u, out.y - v), tolerance) << x << ", " << y;
            ASSERT_TRUE(camera.point_project(&camera, &undistorted, &out, nullptr, nullptr, nullptr, nullptr));
            EXPECT_LT(std::hypot(out.x - x, out.y - y), 1e-9) << x << ", " << y;
        }
        EXPECT_EQ(iPoints, 3) << "points of the formula";
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
#include "data/RefusedPoints.inc"
        // A spoilt camera fails to internalise, and then refuses sound points.
        {"NaN coefficient", GAN_RADIAL_DISTORTION_2, {0.1, 0.01}, sound, sound, [](Gan_Camera& c) { c.d[1] = kNaN; }},
        {"infinite coefficient", GAN_RADIAL_DISTORTION_2, {0.1}, sound, sound, [inf](Gan_Camera& c) { c.d[0] = inf; }},
        {"zero focal length", GAN_RADIAL_DISTORTION_2, {0.1}, sound, sound, [](Gan_Camera& c) { c.fy = 0; }},
        {"NaN centre", GAN_RADIAL_DISTORTION_2, {0.1}, sound, sound, [](Gan_Camera& c) { c.x0 = kNaN; }},
        {"zero image plane", GAN_RADIAL_DISTORTION_2, {0.1}, sound, sound, [](Gan_Camera& c) { c.zh = 0; }},
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
        bool const bMap = c.type == GAN_DISTORTION_MAP;
        Lens const lens{c.name, c.type, 1000, c.d, std::make_shared<Gan_CubicBSplineWeights>(*w),
                        bMap ? scaleMap(8, 8, 1) : nullptr, bMap ? scaleMap(8, 8, 1) : nullptr};
        Gan_Camera camera = cameraOf(lens); // borrows the lens's grid and maps
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
            Gan_Vector3 const& d = c.distorted;
            Gan_Vector3 const pixel =
                d.z == 1 ? Gan_Vector3{camera.fx * d.x + camera.x0, camera.fy * d.y + camera.y0, camera.zh} : d;
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
    Lens const map{"shrinking map", GAN_DISTORTION_MAP, 50, {}, {}, scaleMap(64, 32, 0.5), scaleMap(64, 32, 2), 64, 32};
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

TEST(Camera, FishEyesFollowTheirAngleLawFromTheAxisToFarPointsAndBackprojectUpToTheLimit)
{
    // The laws from their angle definitions, theta = atan r, and the radius at 90 degrees, the back-projection's
    // limit. The radii run from near the axis past where r^2 overflows.
    std::tuple<Gan_CameraType, double (*)(double), double> const laws[] = {
        {GAN_STEREOGRAPHIC_CAMERA, [](double t) { return 2 * std::tan(t / 2); }, 2},
        {GAN_EQUIDISTANT_CAMERA, [](double t) { return t; }, M_PI / 2},
        {GAN_SINE_LAW_CAMERA, [](double t) { return std::sin(t); }, 1},
        {GAN_EQUI_SOLID_ANGLE_CAMERA, [](double t) { return 2 * std::sin(t / 2); }, std::sqrt(2.0)}};
    for (auto [type, radiusOfAngle, limit] : laws) {
        // Pixels are normalised coordinates.
        Gan_Camera camera{type, {1}, {1}, {0}, {0}, {1}, {}, nullptr, nullptr, nullptr, nullptr};
        ASSERT_EQ(gan_camera_internalize(&camera), GAN_TRUE);
        for (double r : {1e-300, 1e-150, 1e-8, 0.1, 1.0, 10.0, 1e4, 1e8, 1e145, 1e150, 1e200, 1e300}) {
            Gan_Vector3 const point{0.6 * r, -0.8 * r, 1}; // off both axes
            Gan_Vector3 p{};
            ASSERT_EQ(camera.point_project(&camera, &point, &p, nullptr, nullptr, nullptr, nullptr), GAN_TRUE) << r;
            double const rd = radiusOfAngle(std::atan(r));
            EXPECT_NEAR(p.x / (0.6 * rd), 1, 1e-14) << type << " " << r;
            EXPECT_NEAR(p.y / (-0.8 * rd), 1, 1e-14) << type << " " << r;
        }
        // Back-projection below the limit inverts the law; at the limit it fails and leaves the output.
        for (double fraction : {1e-200, 1e-6, 0.3, 0.9, 0.999999}) {
            double const rd = fraction * limit;
            Gan_Vector3 p{0.8 * rd, 0.6 * rd, 1};
            ASSERT_EQ(camera.point_backproject(&camera, &p, &p, nullptr, nullptr), GAN_TRUE) << fraction;
            EXPECT_NEAR(radiusOfAngle(std::atan(std::hypot(p.x, p.y))) / rd, 1, 1e-9) << type << " " << fraction;
            EXPECT_NEAR(p.x / p.y, 0.8 / 0.6, 1e-12) << fraction;
        }
        Gan_Vector3 const edge{limit, 0, 1};
        Gan_Vector3 out{7, 8, 9};
        EXPECT_EQ(camera.point_backproject(&camera, &edge, &out, nullptr, nullptr), GAN_FALSE);
        EXPECT_EQ(out.x, 7);
    }
}
