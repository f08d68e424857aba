#include "gandalf/gandalf.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

namespace {

// The fish-eye laws from their angle definitions, theta = atan r, over the whole range of r: near the
// axis, near 90 degrees, and far enough out that r^2 overflows.
struct Law {
    char const* name;
    Gan_CameraType type;
    std::function<double(double)> radiusOfAngle;
    double limit;  // the distorted radius at 90 degrees
};

}  // namespace

TEST(FishEyeRange, ProjectionFollowsTheAngleLawFromTheAxisToFarPointsAndBackprojectionUpToTheLimit)
{
    Law const laws[] = {
        {"stereographic", GAN_STEREOGRAPHIC_CAMERA, [](double t) { return 2 * std::tan(t / 2); }, 2},
        {"equidistant", GAN_EQUIDISTANT_CAMERA, [](double t) { return t; }, M_PI / 2},
        {"sine law", GAN_SINE_LAW_CAMERA, [](double t) { return std::sin(t); }, 1},
        {"equi-solid-angle", GAN_EQUI_SOLID_ANGLE_CAMERA, [](double t) { return 2 * std::sin(t / 2); },
         std::sqrt(2.0)},
    };
    for (Law const& law : laws) {
        SCOPED_TRACE(law.name);
        Gan_Camera camera{};
        camera.type = law.type;
        camera.fx = camera.fy = 1;  // pixels are normalised coordinates
        camera.zh = 1;
        ASSERT_EQ(gan_camera_internalize(&camera), GAN_TRUE);
        for (double r : {1e-300, 1e-150, 1e-8, 0.1, 1.0, 10.0, 1e4, 1e8, 1e145, 1e150, 1e200, 1e300}) {
            // A direction off both axes, r along it.
            Gan_Vector3 const point{0.6 * r, -0.8 * r, 1};
            Gan_Vector3 p{};
            ASSERT_EQ(camera.point_project(&camera, &point, &p, nullptr, nullptr, nullptr, nullptr), GAN_TRUE) << r;
            double const rd = law.radiusOfAngle(std::atan(r));
            EXPECT_NEAR(p.x / (0.6 * rd), 1, 1e-14) << r;
            EXPECT_NEAR(p.y / (-0.8 * rd), 1, 1e-14) << r;
        }
        // Back-projection below the limit inverts the law; at the limit it fails and leaves the output.
        for (double fraction : {1e-200, 1e-6, 0.3, 0.9, 0.999999}) {
            double const rd = fraction * law.limit;
            Gan_Vector3 p{0.8 * rd, 0.6 * rd, 1};
            ASSERT_EQ(camera.point_backproject(&camera, &p, &p, nullptr, nullptr), GAN_TRUE) << fraction;
            double const r = std::hypot(p.x, p.y);
            EXPECT_NEAR(law.radiusOfAngle(std::atan(r)) / rd, 1, 1e-9) << fraction;
            EXPECT_NEAR(p.x / p.y, 0.8 / 0.6, 1e-12) << fraction;
        }
        Gan_Vector3 const edge{law.limit, 0, 1};
        Gan_Vector3 out{7, 8, 9};
        EXPECT_EQ(camera.point_backproject(&camera, &edge, &out, nullptr, nullptr), GAN_FALSE);
        EXPECT_EQ(out.x, 7);
    }
}
