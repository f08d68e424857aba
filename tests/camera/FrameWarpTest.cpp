#include "camera/FrameWarp.h"
#include "gandalf/Fixtures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <tuple>
#include <utility>
#include <vector>

namespace {

double const dNaN = std::numeric_limits<double>::quiet_NaN();
Gan_Matrix33 const translation{1, 0, 5, 0, 1, 0, 0, 0, 1};

// Stand-in point functions: identity on success; a failing one scribbles on x first, so that "left as the
// camera left it" differs from "restored".
template <bool bOk>
Gan_Bool project(Gan_Camera const*, Gan_Vector3 const* in, Gan_Vector3* out, void*, void*, void*, int*)
{
    return bOk ? (*out = *in, GAN_TRUE) : (out->x = 42, GAN_FALSE);
}
template <bool bOk>
Gan_Bool backproject(Gan_Camera const*, Gan_Vector3 const* in, Gan_Vector3* out, void*, int*)
{
    return bOk ? (*out = *in, GAN_TRUE) : (out->x = 42, GAN_FALSE);
}

Gan_Camera stub(bool bProjects, bool bBackprojects, double zh = 1.0, Gan_CameraType type = GAN_LINEAR_CAMERA)
{
    return {type, {}, {}, {}, {}, {zh}, {}, nullptr, nullptr, bProjects ? project<true> : project<false>,
            bBackprojects ? backproject<true> : backproject<false>};
}

// The flags passed are false: they end up true all the same.
void vSet(TQ::FrameWarp& warp, Gan_Camera const& back, Gan_Matrix33 const& h, Gan_Camera const& projection,
          Gan_CubicBSplineWeights* backWeights = nullptr, Gan_CubicBSplineWeights* projectionWeights = nullptr)
{
    warp.vSetAttributes(3, 4, 5, 6, false, back, backWeights, h, false, projection, projectionWeights);
}

void expectPoint(Gan_Vector3 const& p, double x, double y, double z, char const* what)
{
    EXPECT_TRUE(p.x == x && p.y == y && p.z == z) << what << ": " << p.x << ", " << p.y << ", " << p.z;
}

bool bSameGrid(Gan_CubicBSplineWeights const* a, Gan_CubicBSplineWeights const* b)
{
    return std::equal(&a->weight[0][0].x, &a->weight[0][0].x + 578, &b->weight[0][0].x);
}

} // namespace

TEST(FrameWarp, WarpThenUnwarpReturnsPointsForEveryLensOnEitherSide)
{
    Gan_Matrix33 const h{1.02, 0.01, 0.01, -0.01, 0.98, -0.005, 0.01, -0.02, 1};
    for (TQTest::Lens const& lens : TQTest::lenses()) {
        Gan_Camera c = TQTest::cameraOf(lens);
        Gan_Camera linear = TQTest::cameraOf({"", GAN_LINEAR_CAMERA, lens.f, {}, {}, {}, {}, lens.width, lens.height});
        ASSERT_TRUE(gan_camera_internalize(&c) && gan_camera_internalize(&linear)) << lens.name;
        for (auto const& [back, projection] : {std::pair{c, linear}, {linear, c}, {c, c}}) {
            TQ::FrameWarp warp;
            vSet(warp, back, h, projection);
            for (double x = 0.35; x < 0.7; x += 0.1)
                for (double y = 0.35; y < 0.7; y += 0.1) {
                    double wx = x * lens.width, wy = y * lens.height;
                    warp.vWarpPoint(wx, wy);
                    EXPECT_GT(std::hypot(wx - x * lens.width, wy - y * lens.height), 0.1) << lens.name << " unmoved";
                    warp.vUnwarpPoint(wx, wy);
                    EXPECT_NEAR(wx, x * lens.width, 1e-6) << lens.name << " at " << x << ", " << y;
                    EXPECT_NEAR(wy, y * lens.height, 1e-6) << lens.name << " at " << x << ", " << y;
                }
        }
    }
}

TEST(FrameWarp, SetAttributesForcesFlagsOnAndFallsBackToIdentity)
{
    // A fresh warp's zero matrices give z = 0, so points stay.
    TQ::FrameWarp warp;
    Gan_Vector3 p{1, 2, 3};
    warp.vWarpPoint(p);
    warp.vUnwarpPoint(p);
    expectPoint(p, 1, 2, 3, "fresh warp");

    for (bool bFlag : {false, true})
        for (Gan_CameraType type : {GAN_LINEAR_CAMERA, GAN_RADIAL_DISTORTION_1, GAN_DISTORTION_MAP}) {
            warp.vSetAttributes(7, -2, 11, 12, bFlag, stub(true, true, 2.0, type), nullptr, translation, bFlag,
                                stub(true, true, 3.0, type), nullptr);
            EXPECT_TRUE(warp.bUseBackprojectionCamera && warp.bUseProjectionCamera) << bFlag << " " << type;
            EXPECT_EQ(warp.ptBackprojectionWeights, nullptr) << "only the weight grid models get a buffer";
        }
    EXPECT_TRUE(warp.uiClipID == 7 && warp.iLayerID == -2 && warp.uiAttribute1 == 11 && warp.uiAttribute2 == 12);
    EXPECT_TRUE(warp.tBackprojectionCamera.zh == 2 && warp.tProjectionCamera.zh == 3);
    EXPECT_TRUE(warp.tHomography.xz == 5 && warp.tInverseHomography.xz == -5 && warp.tHomographyAsGiven.xz == 5);

    // Singular and non-finite matrices: the identity is used, the matrix as given is kept.
    Gan_Matrix33 const identity = gan_mat33_ident_s();
    for (Gan_Matrix33 const& h : {Gan_Matrix33{}, Gan_Matrix33{1, 0, dNaN, 0, 1, 0, 0, 0, 1}}) {
        vSet(warp, stub(true, true), h, stub(true, true));
        for (Gan_Matrix33 const* m : {&warp.tHomography, &warp.tInverseHomography})
            EXPECT_EQ(0, std::memcmp(m, &identity, sizeof identity));
        EXPECT_EQ(0, std::memcmp(&warp.tHomographyAsGiven, &h, sizeof h));
    }
}

TEST(FrameWarp, WeightGridBuffersAreOwnedCopiedDeeplyAndNeverCopiedOntoThemselves)
{
    std::unique_ptr<Gan_CubicBSplineWeights> const callerGrid = TQTest::gridWeights(1.0);
    Gan_Camera spline = stub(true, true, 1.0, GAN_CUBIC_BSPLINE_CAMERA);
    spline.weights = spline.weights_aux = callerGrid.get();

    // A null argument gets a fresh buffer holding a copy of the camera's grid; null again allocates again.
    TQ::FrameWarp warp;
    vSet(warp, spline, translation, stub(true, true));
    Gan_CubicBSplineWeights* const first = warp.ptBackprojectionWeights;
    ASSERT_TRUE(first && first != callerGrid.get());
    EXPECT_TRUE(warp.tBackprojectionCamera.weights == first && !warp.tBackprojectionCamera.weights_aux);
    EXPECT_TRUE(bSameGrid(first, callerGrid.get()));
    vSet(warp, spline, translation, stub(true, true));
    EXPECT_NE(warp.ptBackprojectionWeights, first);
    delete first;

    // A buffer passed back is reused; the inverse model (13) on the projection side works the same.
    Gan_CubicBSplineWeights* const held = warp.ptBackprojectionWeights;
    Gan_Camera inverse = spline;
    inverse.type = GAN_CUBIC_BSPLINE_CAMERA_INV;
    vSet(warp, spline, translation, inverse, held, nullptr);
    EXPECT_EQ(warp.ptBackprojectionWeights, held);
    EXPECT_EQ(warp.tProjectionCamera.weights, warp.ptProjectionWeights);
    EXPECT_TRUE(bSameGrid(warp.ptProjectionWeights, callerGrid.get()));

    // A camera whose grid is the argument itself is not copied; the warp owns and frees that memory.
    TQ::FrameWarp owner;
    Gan_Camera self = spline;
    self.weights = TQTest::gridWeights(5.0).release();
    vSet(owner, self, translation, stub(true, true), self.weights, nullptr);
    EXPECT_TRUE(owner.ptBackprojectionWeights == self.weights && owner.tBackprojectionCamera.weights == self.weights);

    // A weights argument of a camera that does not use it passes to the warp all the same; one buffer given
    // for both sides is freed once.
    TQ::FrameWarp unused;
    Gan_Camera outside = stub(true, true);
    outside.weights = callerGrid.get();
    Gan_CubicBSplineWeights* const both = TQTest::gridWeights(2.0).release();
    vSet(unused, stub(true, true), translation, outside, both, both);
    EXPECT_TRUE(unused.tBackprojectionCamera.weights == nullptr && unused.ptProjectionWeights == both);

    // Set again from its own fields after the model changed to the grid, as a populated warp is: the camera
    // already points at the fresh buffer when the grid would be copied, so nothing is copied into it.
    TQ::FrameWarp again;
    vSet(again, outside, translation, stub(true, true));
    again.tBackprojectionCamera.type = GAN_CUBIC_BSPLINE_CAMERA;
    vSet(again, again.tBackprojectionCamera, translation, stub(true, true));
    EXPECT_TRUE(again.tBackprojectionCamera.weights == again.ptBackprojectionWeights
                && !bSameGrid(again.ptBackprojectionWeights, callerGrid.get()));

    // Copies are deep: each buffer is copied and a camera follows its own copy; memory outside the warp stays
    // shared, and one buffer behind both sides stays one buffer.
    TQ::FrameWarp assigned;
    assigned = warp;
    assigned = static_cast<TQ::FrameWarp const&>(assigned);
    TQ::FrameWarp const constructed(warp), twin(unused);
    for (TQ::FrameWarp const* copy : {static_cast<TQ::FrameWarp const*>(&assigned), &constructed}) {
        EXPECT_TRUE(copy->ptBackprojectionWeights != held && copy->ptProjectionWeights != warp.ptProjectionWeights);
        EXPECT_TRUE(copy->tBackprojectionCamera.weights == copy->ptBackprojectionWeights
                    && copy->tProjectionCamera.weights == copy->ptProjectionWeights);
        EXPECT_TRUE(bSameGrid(copy->ptBackprojectionWeights, held) && bSameGrid(copy->ptProjectionWeights, held));
        EXPECT_EQ(copy->tInverseHomography.xz, -5.0);
    }
    EXPECT_TRUE(twin.ptBackprojectionWeights == twin.ptProjectionWeights && twin.ptProjectionWeights != both);
    EXPECT_EQ(twin.tProjectionCamera.weights, callerGrid.get());
}

TEST(FrameWarp, FailedCameraCallsRestoreOrLeaveThePoint)
{
    // Whether the back camera back-projects and projects, whether the projection camera does, the results of
    // warping and unwarping (1, 2, 1) through a translation by 5, and why.
    using Row = std::tuple<bool, bool, bool, bool, double, double, char const*>;
    for (auto [bBackBack, bBackProjects, bProjectionBack, bProjectionProjects, dWarpedX, dUnwarpedX, what] :
         {Row{true, true, true, true, 6, -4, "all succeed"},
          Row{false, true, true, true, 42, -4, "back-projection fails in the warp: left as the camera left it"},
          Row{true, true, true, false, 1, -4, "projection fails in the warp: restored"},
          Row{true, true, false, true, 6, 1, "first step of the unwarp fails: restored"},
          Row{true, false, true, true, 6, 1, "last step of the unwarp fails: restored"}}) {
        TQ::FrameWarp warp;
        vSet(warp, stub(bBackProjects, bBackBack), translation, stub(bProjectionProjects, bProjectionBack));
        Gan_Vector3 p{1, 2, 1}, q{1, 2, 1};
        warp.vWarpPoint(p);
        expectPoint(p, dWarpedX, 2, 1, what);
        warp.vUnwarpPoint(q);
        expectPoint(q, dUnwarpedX, 2, 1, what);
        float x = 0.1f, y = -7.3f;
        warp.vWarpPoint(x, y);
        EXPECT_TRUE(dWarpedX != 1 || (x == 0.1f && y == -7.3f)) << "float form: " << what;
    }
}

TEST(FrameWarp, WithoutCamerasTheImagePlaneScalesAndOverloadsBringTheirSidesZ)
{
    // Flags off, as a populated warp can have them: z = 2 on the way in, 4 on the way out.
    TQ::FrameWarp warp;
    vSet(warp, stub(true, true, 2.0), gan_mat33_ident_s(), stub(true, true, 4.0));
    warp.bUseBackprojectionCamera = warp.bUseProjectionCamera = false;
    Gan_Vector3 p{1, 3, 2};
    warp.vWarpPoint(p);
    expectPoint(p, 2, 6, 4, "scaled to the projection camera's plane");
    warp.vUnwarpPoint(p);
    expectPoint(p, 1, 3, 2, "and back to the back-projection camera's plane");

    Gan_Vector2 v{1, 3};
    warp.vWarpPoint(v);
    double dx = 1, dy = 3, ux = 2, uy = 6;
    warp.vWarpPoint(dx, dy);
    warp.vUnwarpPoint(ux, uy);
    float fx = 1, fy = 3, f[2] = {1, 3}, ufx = 2, ufy = 6;
    warp.vWarpPoint(fx, fy);
    warp.vWarpPoint(f);
    warp.vUnwarpPoint(ufx, ufy);
    for (double const d : {v.x, dx, double(fx), double(f[0]), 2 * ux, 2 * double(ufx)})
        EXPECT_EQ(d, 2.0);
    for (double const d : {v.y, dy, double(fy), double(f[1]), 2 * uy, 2 * double(ufy)})
        EXPECT_EQ(d, 6.0);

    // The result is taken at float precision and truncated toward zero.
    for (auto [in, out] :
         {std::pair{QPointF(5.45, -1.95), QPointF(10, -3)}, {QPointF(dNaN, 3e10), QPointF(INT_MIN, INT_MIN)}})
        EXPECT_EQ(warp.getPointWarped(in), out) << in.x();

    // A zero z after the product restores the point; a NaN z is not zero and goes on.
    warp.tHomography = warp.tInverseHomography = Gan_Matrix33{1, 0, 0, 0, 1, 0, 0, 0, 0};
    Gan_Vector3 z{5, 6, 7};
    warp.vWarpPoint(z);
    expectPoint(z, 5, 6, 7, "zero z in the warp");
    warp.vUnwarpPoint(z);
    expectPoint(z, 5, 6, 7, "zero z in the unwarp");
    Gan_Vector3 n{5, 6, dNaN};
    warp.vWarpPoint(n);
    EXPECT_TRUE(std::isnan(n.x) && std::isnan(n.y) && n.z == 4.0);
}
