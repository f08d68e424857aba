#include "camera/FrameWarp.h"

#include <gtest/gtest.h>

#include <QString>
#include <QTextStream>

#include <algorithm>
#include <climits>
#include <cmath>
#include <limits>
#include <memory>
#include <thread>
#include <vector>

namespace {

double const dNaN = std::numeric_limits<double>::quiet_NaN();

// Stand-in point functions: identity on success; a failing one scribbles on x first, so that a test can
// tell "left as the camera left it" from "restored".
Gan_Bool bProjectOk(Gan_Camera const*, Gan_Vector3 const* in, Gan_Vector3* out, void*, void*, void*, int*)
{
    *out = *in;
    return GAN_TRUE;
}
Gan_Bool bProjectFails(Gan_Camera const*, Gan_Vector3 const*, Gan_Vector3* out, void*, void*, void*, int*)
{
    out->x = 42;
    return GAN_FALSE;
}
Gan_Bool bBackprojectOk(Gan_Camera const*, Gan_Vector3 const* in, Gan_Vector3* out, void*, int*)
{
    *out = *in;
    return GAN_TRUE;
}
Gan_Bool bBackprojectFails(Gan_Camera const*, Gan_Vector3 const*, Gan_Vector3* out, void*, int*)
{
    out->x = 42;
    return GAN_FALSE;
}

Gan_Camera stubCamera(bool bProjects, bool bBackprojects, double zh = 1.0, Gan_CameraType type = GAN_LINEAR_CAMERA)
{
    Gan_Camera camera{};
    camera.type = type;
    camera.zh = zh;
    camera.point_project = bProjects ? bProjectOk : bProjectFails;
    camera.point_backproject = bBackprojects ? bBackprojectOk : bBackprojectFails;
    return camera;
}

Gan_Matrix33 const translation{1, 0, 5, 0, 1, 0, 0, 0, 1};

// A warp through the given cameras; the flags end up true whatever is passed.
void vSet(TQ::FrameWarp& warp, Gan_Camera const& back, Gan_Matrix33 const& h, Gan_Camera const& projection,
          Gan_CubicBSplineWeights* backWeights = nullptr, Gan_CubicBSplineWeights* projectionWeights = nullptr)
{
    warp.vSetAttributes(3, 4, 5, 6, false, back, backWeights, h, false, projection, projectionWeights);
}

void expectPoint(Gan_Vector3 const& p, double x, double y, double z, char const* what)
{
    EXPECT_EQ(p.x, x) << what;
    EXPECT_EQ(p.y, y) << what;
    EXPECT_EQ(p.z, z) << what;
}

Gan_CubicBSplineWeights* ptGrid(double dSeed)
{
    auto* grid = new Gan_CubicBSplineWeights();
    for (int i = 0; i < GAN_CUBIC_BSPLINE_GRID_SIZE; ++i)
        for (int j = 0; j < GAN_CUBIC_BSPLINE_GRID_SIZE; ++j)
            grid->weight[i][j] = Gan_Vector2{dSeed + i, dSeed - j};
    return grid;
}

bool bSameGrid(Gan_CubicBSplineWeights const* a, Gan_CubicBSplineWeights const* b)
{
    for (int i = 0; i < GAN_CUBIC_BSPLINE_GRID_SIZE; ++i)
        for (int j = 0; j < GAN_CUBIC_BSPLINE_GRID_SIZE; ++j)
            if (a->weight[i][j].x != b->weight[i][j].x || a->weight[i][j].y != b->weight[i][j].y)
                return false;
    return true;
}

// Real lens cameras on a 640 x 480 frame.
struct Lens {
    Gan_CameraType type;
    double d[4];
    char const* name;
};

Lens const lenses[] = {{GAN_LINEAR_CAMERA, {}, "linear"},
                       {GAN_RADIAL_DISTORTION_1, {-0.05}, "radial 1"},
                       {GAN_RADIAL_DISTORTION_2, {-0.05, 0.01}, "radial 2"},
                       {GAN_RADIAL_DISTORTION_3, {-0.05, 0.01, 0.001}, "radial 3"},
                       {GAN_RADIAL_DISTORTION_1_INV, {0.03}, "inverse radial 1"},
                       {GAN_RADIAL_DISTORTION_2_INV, {0.03, 0.002}, "inverse radial 2"},
                       {GAN_STEREOGRAPHIC_CAMERA, {}, "stereographic"},
                       {GAN_EQUIDISTANT_CAMERA, {}, "equidistant"},
                       {GAN_SINE_LAW_CAMERA, {}, "sine law"},
                       {GAN_EQUI_SOLID_ANGLE_CAMERA, {}, "equi-solid-angle"},
                       {GAN_XY_DISTORTION_4, {0.01, 0.02, 0.015, 0.005}, "anamorphic"},
                       {GAN_CUBIC_BSPLINE_CAMERA, {}, "B-spline"},
                       {GAN_CUBIC_BSPLINE_CAMERA_INV, {}, "inverse B-spline"},
                       {GAN_DISTORTION_MAP, {}, "distortion map"}};

// Distortion maps that move a pixel right by one and back.
struct ShiftMaps {
    ShiftMaps()
    {
        for (unsigned long row = 0; row < 480; ++row)
            for (unsigned long col = 0; col < 640; ++col) {
                auto* forward = static_cast<float*>(gan_image_get_pixptr(maps.direct, row, col));
                auto* backward = static_cast<float*>(gan_image_get_pixptr(maps.inverse, row, col));
                forward[0] = float(col + 1.5);
                backward[0] = float(col - 0.5);
                forward[1] = backward[1] = float(row + 0.5);
            }
    }
    ~ShiftMaps()
    {
        gan_image_free(maps.direct);
        gan_image_free(maps.inverse);
    }
    Gan_CameraMaps maps{gan_image_alloc(GAN_VECTOR_FIELD_2D, GAN_FLOAT, 480, 640),
                        gan_image_alloc(GAN_VECTOR_FIELD_2D, GAN_FLOAT, 480, 640)};
};

Gan_Camera lensCamera(Lens const& lens, Gan_CubicBSplineWeights* grid, ShiftMaps const& shift)
{
    Gan_Camera c{};
    c.type = lens.type;
    c.fx = 800;
    c.fy = 780;
    c.x0 = 320;
    c.y0 = 240;
    c.zh = 320;
    std::copy(lens.d, lens.d + 4, c.d);
    if (lens.type == GAN_DISTORTION_MAP)
        c.map = shift.maps;
    c.weights = grid;
    EXPECT_TRUE(gan_camera_internalize(&c)) << lens.name;
    return c;
}

} // namespace

TEST(FrameWarp, WarpThenUnwarpReturnsPointsForEveryLensOnEitherSide)
{
    ShiftMaps const shift;
    Gan_CubicBSplineWeights grid{};
    for (int i = 0; i < GAN_CUBIC_BSPLINE_GRID_SIZE; ++i)
        for (int j = 0; j < GAN_CUBIC_BSPLINE_GRID_SIZE; ++j)
            grid.weight[i][j] = Gan_Vector2{0.5 * std::sin(i * 0.7), 0.5 * std::cos(j * 0.4)};
    Gan_Matrix33 const h{1.02, 0.01, 0.01, -0.01, 0.98, -0.005, 0.01, -0.02, 1};
    Gan_Camera const linear = lensCamera(lenses[0], nullptr, shift);
    for (Lens const& lens : lenses) {
        Gan_Camera const c = lensCamera(lens, &grid, shift);
        Gan_Camera const sides[][2] = {{c, linear}, {linear, c}, {c, c}};
        for (auto const& side : sides) {
            TQ::FrameWarp warp;
            vSet(warp, side[0], h, side[1]);
            for (double x = 180; x <= 460; x += 70)
                for (double y = 130; y <= 350; y += 55) {
                    double wx = x, wy = y;
                    warp.vWarpPoint(wx, wy);
                    EXPECT_GT(std::hypot(wx - x, wy - y), 0.1) << lens.name << " did not map " << x << ", " << y;
                    warp.vUnwarpPoint(wx, wy);
                    EXPECT_NEAR(wx, x, 1e-6) << lens.name << " at " << x << ", " << y;
                    EXPECT_NEAR(wy, y, 1e-6) << lens.name << " at " << x << ", " << y;
                }
        }
    }
}

TEST(FrameWarp, PointsALensRefusesStayOrComeBack)
{
    ShiftMaps const shift;
    Gan_Camera const sine = lensCamera(lenses[8], nullptr, shift);
    Gan_Camera const linear = lensCamera(lenses[0], nullptr, shift);
    TQ::FrameWarp warp;
    vSet(warp, sine, translation, sine);
    // Beyond the sine law's reach (a distorted radius of 1, 800 pixels out) and not finite.
    for (Gan_Vector3 const& p : {Gan_Vector3{320 + 900, 240, 320}, Gan_Vector3{dNaN, 240, 320},
                                 Gan_Vector3{1, 2, 0}}) {
        Gan_Vector3 q = p;
        warp.vWarpPoint(q);
        EXPECT_TRUE(q.x == p.x || (std::isnan(q.x) && std::isnan(p.x)));
        EXPECT_TRUE(q.y == p.y && q.z == p.z);
        q = p;
        warp.vUnwarpPoint(q);
        EXPECT_TRUE(q.x == p.x || (std::isnan(q.x) && std::isnan(p.x)));
        EXPECT_TRUE(q.y == p.y && q.z == p.z);
    }
    // A projection that fails after the product gives the input back: radial 1 with K1 = -0.05 folds over
    // beyond a radius of 2.58.
    TQ::FrameWarp far;
    vSet(far, linear, Gan_Matrix33{10, 0, 0, 0, 10, 0, 0, 0, 1}, lensCamera(lenses[1], nullptr, shift));
    Gan_Vector3 p{320 + 300, 240, 320};
    far.vWarpPoint(p);
    expectPoint(p, 620, 240, 320, "refused by the projection");
}

TEST(FrameWarp, FreshWarpIsAllZero)
{
    TQ::FrameWarp const warp;
    EXPECT_FALSE(warp.bUseBackprojectionCamera);
    EXPECT_FALSE(warp.bUseProjectionCamera);
    EXPECT_EQ(warp.ptProjectionWeights, nullptr);
    EXPECT_EQ(warp.ptBackprojectionWeights, nullptr);
    EXPECT_EQ(warp.uiClipID + warp.uiAttribute1 + warp.uiAttribute2, 0u);
    EXPECT_EQ(warp.iLayerID, 0);
    EXPECT_EQ(warp.tBackprojectionCamera.point_project, nullptr);
    EXPECT_EQ(warp.tProjectionCamera.zh, 0.0);
    EXPECT_EQ(warp.tHomography.zz, 0.0);
    EXPECT_EQ(warp.tInverseHomography.xx, 0.0);
    // The zero matrices give z = 0: the point stays.
    Gan_Vector3 p{1, 2, 3};
    warp.vWarpPoint(p);
    warp.vUnwarpPoint(p);
    expectPoint(p, 1, 2, 3, "fresh warp");
}

TEST(FrameWarp, SetAttributesStoresForcesFlagsAndFallsBackToIdentity)
{
    struct {
        bool bBack;
        Gan_CameraType eBack;
        bool bProjection;
        Gan_CameraType eProjection;
    } const rows[] = {{false, GAN_LINEAR_CAMERA, false, GAN_LINEAR_CAMERA},
                      {true, GAN_LINEAR_CAMERA, true, GAN_LINEAR_CAMERA},
                      {false, GAN_RADIAL_DISTORTION_1, true, GAN_XY_DISTORTION_4},
                      {true, GAN_DISTORTION_MAP, false, GAN_RADIAL_DISTORTION_2_INV}};
    for (auto const& row : rows) {
        TQ::FrameWarp warp;
        warp.vSetAttributes(7, -2, 11, 12, row.bBack, stubCamera(true, true, 2.0, row.eBack), nullptr, translation,
                            row.bProjection, stubCamera(true, true, 3.0, row.eProjection), nullptr);
        EXPECT_TRUE(warp.bUseBackprojectionCamera) << "a false flag does not switch the camera off";
        EXPECT_TRUE(warp.bUseProjectionCamera);
        EXPECT_EQ(warp.tBackprojectionCamera.zh, 2.0);
        EXPECT_EQ(warp.tProjectionCamera.zh, 3.0);
        EXPECT_EQ(warp.ptBackprojectionWeights, nullptr) << "only the weight grid models get a buffer";
    }

    TQ::FrameWarp warp;
    warp.vSetAttributes(7, -2, 11, 12, true, stubCamera(true, true), nullptr, translation, true, stubCamera(true, true),
                        nullptr);
    EXPECT_EQ(warp.uiClipID, 7u);
    EXPECT_EQ(warp.iLayerID, -2);
    EXPECT_EQ(warp.uiAttribute1, 11u);
    EXPECT_EQ(warp.uiAttribute2, 12u);
    EXPECT_EQ(warp.tHomography.xz, 5.0);
    EXPECT_EQ(warp.tInverseHomography.xz, -5.0);
    EXPECT_EQ(warp.tHomographyAsGiven.xz, 5.0);

    // Singular and non-finite matrices: the identity is used, the matrix as given is kept.
    Gan_Matrix33 const zero{};
    Gan_Matrix33 const notFinite{1, 0, dNaN, 0, 1, 0, 0, 0, 1};
    for (Gan_Matrix33 const& h : {zero, notFinite}) {
        vSet(warp, stubCamera(true, true), h, stubCamera(true, true));
        Gan_Matrix33 const identity = gan_mat33_ident_s();
        for (Gan_Matrix33 const* m : {&warp.tHomography, &warp.tInverseHomography})
            EXPECT_TRUE(m->xx == 1 && m->yy == 1 && m->zz == 1 && m->xz == 0 && m->zx == 0 && m->xy == identity.xy);
        EXPECT_EQ(warp.tHomographyAsGiven.xx, h.xx);
        EXPECT_TRUE(std::isnan(warp.tHomographyAsGiven.xz) == std::isnan(h.xz));
    }
}

TEST(FrameWarp, WeightGridBuffersAreOwnedCopiedAndNeverCopiedOntoThemselves)
{
    std::unique_ptr<Gan_CubicBSplineWeights> const callerGrid(ptGrid(1.0));
    Gan_Camera spline = stubCamera(true, true, 1.0, GAN_CUBIC_BSPLINE_CAMERA);
    spline.weights = callerGrid.get();
    spline.weights_aux = callerGrid.get();

    // A null argument gets a fresh buffer, holding a copy of the camera's grid.
    TQ::FrameWarp warp;
    vSet(warp, spline, translation, stubCamera(true, true));
    Gan_CubicBSplineWeights* const first = warp.ptBackprojectionWeights;
    ASSERT_NE(first, nullptr);
    EXPECT_NE(first, callerGrid.get());
    EXPECT_EQ(warp.tBackprojectionCamera.weights, first);
    EXPECT_EQ(warp.tBackprojectionCamera.weights_aux, nullptr);
    EXPECT_TRUE(bSameGrid(first, callerGrid.get()));

    // Null again allocates again: the first buffer is the caller's to take out.
    vSet(warp, spline, translation, stubCamera(true, true));
    EXPECT_NE(warp.ptBackprojectionWeights, first);
    delete first;

    // Passing the buffer back reuses it; the inverse model (13) on the projection side works the same.
    Gan_CubicBSplineWeights* const held = warp.ptBackprojectionWeights;
    Gan_Camera inverse = spline;
    inverse.type = GAN_CUBIC_BSPLINE_CAMERA_INV;
    vSet(warp, spline, translation, inverse, held, nullptr);
    EXPECT_EQ(warp.ptBackprojectionWeights, held);
    EXPECT_EQ(warp.tProjectionCamera.weights, warp.ptProjectionWeights);
    EXPECT_TRUE(bSameGrid(warp.ptProjectionWeights, callerGrid.get()));

    // A camera whose grid is the argument itself is not copied; the warp owns and frees that memory.
    TQ::FrameWarp owner;
    Gan_CubicBSplineWeights* const given = ptGrid(5.0);
    Gan_Camera self = spline;
    self.weights = given;
    vSet(owner, self, translation, stubCamera(true, true), given, nullptr);
    EXPECT_EQ(owner.ptBackprojectionWeights, given);
    EXPECT_EQ(owner.tBackprojectionCamera.weights, given);

    // A weights argument of a camera that does not use it still passes to the warp; one buffer given for
    // both sides is freed once.
    TQ::FrameWarp unused;
    Gan_CubicBSplineWeights* const both = ptGrid(2.0);
    vSet(unused, stubCamera(true, true), translation, stubCamera(true, true), both, both);
    EXPECT_EQ(unused.tBackprojectionCamera.weights, nullptr);
    EXPECT_EQ(unused.ptProjectionWeights, both);
}

TEST(FrameWarp, FailedCameraCallsRestoreOrLeaveThePoint)
{
    // Which call fails, and the results of warping and unwarping (1, 2, 1) through a translation by 5.
    struct {
        bool bBackBackprojects, bBackProjects, bProjectionBackprojects, bProjectionProjects;
        double dWarpedX, dUnwarpedX;
        char const* what;
    } const rows[] = {
        {true, true, true, true, 6, -4, "all succeed"},
        {false, true, true, true, 42, -4, "back-projection fails in the warp: left as the camera left it"},
        {true, true, true, false, 1, -4, "projection fails in the warp: restored"},
        {true, true, false, true, 6, 1, "first step of the unwarp fails: restored"},
        {true, false, true, true, 6, 1, "last step of the unwarp fails: restored"},
    };
    for (auto const& row : rows) {
        TQ::FrameWarp warp;
        vSet(warp, stubCamera(row.bBackProjects, row.bBackBackprojects), translation,
             stubCamera(row.bProjectionProjects, row.bProjectionBackprojects));
        Gan_Vector3 p{1, 2, 1};
        warp.vWarpPoint(p);
        expectPoint(p, row.dWarpedX, 2, 1, row.what);
        Gan_Vector3 q{1, 2, 1};
        warp.vUnwarpPoint(q);
        expectPoint(q, row.dUnwarpedX, 2, 1, row.what);
    }

    // The float form of a failed projection gives back the input floats.
    TQ::FrameWarp warp;
    vSet(warp, stubCamera(true, true), translation, stubCamera(false, true));
    float x = 0.1f, y = -7.3f;
    warp.vWarpPoint(x, y);
    EXPECT_EQ(x, 0.1f);
    EXPECT_EQ(y, -7.3f);
}

TEST(FrameWarp, WithoutCamerasTheImagePlaneScalesAndAZeroZRestores)
{
    // Flags off, as a populated warp can have them: z = 2 on the way in, 4 on the way out.
    TQ::FrameWarp warp;
    vSet(warp, stubCamera(true, true, 2.0), gan_mat33_ident_s(), stubCamera(true, true, 4.0));
    warp.bUseBackprojectionCamera = warp.bUseProjectionCamera = false;
    Gan_Vector3 p{1, 3, 2};
    warp.vWarpPoint(p);
    expectPoint(p, 2, 6, 4, "scaled to the projection camera's plane");
    warp.vUnwarpPoint(p);
    expectPoint(p, 1, 3, 2, "and back to the back-projection camera's plane");

    // Each overload brings in the z of its side: the warp's the back-projection camera's, the unwarp's the
    // projection camera's.
    Gan_Vector2 v{1, 3};
    warp.vWarpPoint(v);
    double dx = 1, dy = 3;
    warp.vWarpPoint(dx, dy);
    float fx = 1, fy = 3;
    warp.vWarpPoint(fx, fy);
    float f[2] = {1, 3};
    warp.vWarpPoint(f);
    for (double const d : {v.x, dx, double(fx), double(f[0])})
        EXPECT_EQ(d, 2.0);
    for (double const d : {v.y, dy, double(fy), double(f[1])})
        EXPECT_EQ(d, 6.0);
    double ux = 2, uy = 6;
    warp.vUnwarpPoint(ux, uy);
    float ufx = 2, ufy = 6;
    warp.vUnwarpPoint(ufx, ufy);
    EXPECT_TRUE(ux == 1 && uy == 3 && ufx == 1 && ufy == 3);

    // A zero z after the product restores the point; a NaN z is not zero and goes on.
    Gan_Matrix33 const flat{1, 0, 0, 0, 1, 0, 0, 0, 0};
    warp.tHomography = warp.tInverseHomography = flat;
    Gan_Vector3 z{5, 6, 7};
    warp.vWarpPoint(z);
    expectPoint(z, 5, 6, 7, "zero z in the warp");
    warp.vUnwarpPoint(z);
    expectPoint(z, 5, 6, 7, "zero z in the unwarp");
    Gan_Vector3 n{5, 6, dNaN};
    warp.vWarpPoint(n);
    EXPECT_TRUE(std::isnan(n.x) && std::isnan(n.y));
    EXPECT_EQ(n.z, 4.0);
}

TEST(FrameWarp, PointWarpedIsTruncatedAtFloatPrecision)
{
    TQ::FrameWarp warp;
    vSet(warp, stubCamera(true, true), gan_mat33_ident_s(), stubCamera(true, true));
    struct {
        QPointF in;
        QPointF out;
    } const rows[] = {{{10.9, -3.9}, {10, -3}},
                      {{16777217.0, 0.5}, {16777216, 0}},
                      {{dNaN, 3e10}, {INT_MIN, INT_MIN}}};
    for (auto const& row : rows)
        EXPECT_EQ(warp.getPointWarped(row.in), row.out) << row.in.x();
}

TEST(FrameWarp, CopiesAreDeep)
{
    std::unique_ptr<Gan_CubicBSplineWeights> const callerGrid(ptGrid(3.0));
    Gan_Camera spline = stubCamera(true, true, 1.0, GAN_CUBIC_BSPLINE_CAMERA);
    spline.weights = callerGrid.get();
    Gan_Camera outside = stubCamera(true, true);
    outside.weights = callerGrid.get();

    TQ::FrameWarp source;
    vSet(source, spline, translation, outside, nullptr, ptGrid(4.0));
    TQ::FrameWarp copy(source);
    EXPECT_NE(copy.ptBackprojectionWeights, source.ptBackprojectionWeights);
    EXPECT_NE(copy.ptProjectionWeights, source.ptProjectionWeights);
    EXPECT_EQ(copy.tBackprojectionCamera.weights, copy.ptBackprojectionWeights) << "follows its own buffer";
    EXPECT_EQ(copy.tProjectionCamera.weights, callerGrid.get()) << "memory outside the warp stays shared";
    EXPECT_TRUE(bSameGrid(copy.ptBackprojectionWeights, callerGrid.get()));
    EXPECT_TRUE(bSameGrid(copy.ptProjectionWeights, source.ptProjectionWeights));
    EXPECT_EQ(copy.tInverseHomography.xz, -5.0);

    TQ::FrameWarp assigned;
    vSet(assigned, spline, gan_mat33_ident_s(), spline);
    assigned = source;
    TQ::FrameWarp const& alias = assigned;
    assigned = alias;
    EXPECT_EQ(assigned.tBackprojectionCamera.weights, assigned.ptBackprojectionWeights);
    EXPECT_NE(assigned.ptProjectionWeights, source.ptProjectionWeights);
    EXPECT_EQ(assigned.tHomography.xz, 5.0);

    // One buffer behind both sides stays one buffer in the copy.
    TQ::FrameWarp twin;
    Gan_CubicBSplineWeights* const both = ptGrid(1.0);
    vSet(twin, spline, translation, spline, both, both);
    TQ::FrameWarp const twinCopy(twin);
    EXPECT_EQ(twinCopy.ptBackprojectionWeights, twinCopy.ptProjectionWeights);
    EXPECT_EQ(twinCopy.tProjectionCamera.weights, twinCopy.ptProjectionWeights);
}

TEST(FrameWarp, ReadsFromSeveralThreadsAgree)
{
    TQ::FrameWarp warp;
    vSet(warp, stubCamera(true, true), Gan_Matrix33{1.1, 0.1, 2, -0.2, 0.9, 1, 0.01, 0.02, 1}, stubCamera(true, true));
    auto const run = [&warp](std::vector<double>& out) {
        for (int i = 0; i < 2000; ++i) {
            Gan_Vector3 p{i * 0.5, i * -0.25, 1};
            warp.vWarpPoint(p);
            warp.vUnwarpPoint(p);
            out.push_back(p.x + p.y);
        }
    };
    std::vector<double> expected;
    run(expected);
    std::vector<std::vector<double>> results(4);
    std::vector<std::thread> threads;
    for (std::vector<double>& result : results)
        threads.emplace_back(run, std::ref(result));
    for (std::thread& thread : threads)
        thread.join();
    for (std::vector<double> const& result : results)
        EXPECT_EQ(result, expected);
}

TEST(FrameWarp, TypeStreamsAsItsNumber)
{
    QString text;
    QTextStream out(&text);
    out << TQ::FrameWarp::_Type(7) << ' ' << TQ::FrameWarp::_Type(-1);
    out.flush();
    EXPECT_EQ(text, "7 -1");

    struct {
        char const* text;
        int iValue;
    } const rows[] = {{"12", 12}, {"4294967295", -1}, {"-3", -3}, {"x", 0}};
    for (auto const& row : rows) {
        QString in = row.text;
        QTextStream stream(&in);
        TQ::FrameWarp::_Type value{};
        stream >> value;
        EXPECT_EQ(static_cast<int>(value), row.iValue) << row.text;
    }
}
