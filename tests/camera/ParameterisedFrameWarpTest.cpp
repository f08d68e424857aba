#include "camera/ParameterisedFrameWarp.h"
#include "prm/text/ParameterTextDocument.h"

#include <gtest/gtest.h>

#include <climits>
#include <limits>

namespace {

double const dLargest = std::numeric_limits<double>::max();

Gan_Matrix33 const h1{1.5, 0.25, 3, -0.5, 2, 4, 0.125, 0.75, 1};
Gan_Matrix33 const identity{1, 0, 0, 0, 1, 0, 0, 0, 1};

// The nine entries row by row, for comparing matrices.
QVector<double> entriesOf(Gan_Matrix33 const& m)
{
    return {m.xx, m.xy, m.xz, m.yx, m.yy, m.yz, m.zx, m.zy, m.zz};
}

Gan_Camera camera(Gan_CameraType type, double fx, double k1)
{
    Gan_Camera c{};
    c.type = type;
    c.zh = 960;
    c.fx = c.fy = fx;
    c.x0 = 960;
    c.y0 = 540;
    c.d[0] = k1;
    c.d[1] = k1 / 2;
    c.d[2] = k1 / 4;
    c.d[3] = k1 / 8;
    gan_camera_internalize(&c);
    return c;
}

// A warp with a B-spline back-projection camera whose grid lives in the warp, and a radial projection
// camera.
void vFillWarp(TQ::FrameWarp& warp, int iLayer, unsigned int uiClip, Gan_Matrix33 const& h, double dScale)
{
    Gan_CubicBSplineWeights grid{};
    for (int i = 0; i < GAN_CUBIC_BSPLINE_GRID_SIZE; ++i)
        for (int j = 0; j < GAN_CUBIC_BSPLINE_GRID_SIZE; ++j)
            grid.weight[i][j] = Gan_Vector2{dScale * (i - j), dScale * 0.5 * j};
    Gan_Camera spline = camera(GAN_CUBIC_BSPLINE_CAMERA, 1000 * dScale, 0);
    spline.weights = &grid;
    warp.vSetAttributes(uiClip, iLayer, 1, 2, false, spline, warp.ptBackprojectionWeights, h, true,
                        camera(GAN_XY_DISTORTION_4, 1200 * dScale, 0.1 * dScale), warp.ptProjectionWeights);
}

TQ::FrameWarp populated(TQ::ParameterisedFrameWarp const& set, float time)
{
    TQ::FrameWarp warp;
    set.populateFrameWarp(warp, time);
    return warp;
}

} // namespace

TEST(ParameterisedFrameWarp, LayoutNamesAndLimits)
{
    TQ::ParameterisedFrameWarp const set;
    EXPECT_TRUE(set.qstrScriptName().isEmpty());
    QStringList names;
    for (Prm::ParameterWithoutType const* parameter : set.parameterList())
        names << parameter->qstrScriptName();
    EXPECT_EQ(names.join(' '), "LayerID ClipID UseBackprojectionCamera UseProjectionCamera HomograpyXX HomograpyXY "
                               "HomograpyXZ HomograpyYX HomograpyYY HomograpyYZ HomograpyZX HomograpyZY HomograpyZX");
    ASSERT_EQ(set.childSetList().size(), 2);
    EXPECT_EQ(set.childSetList().at(0), &set.BackprojectionCamera);
    EXPECT_EQ(set.childSetList().at(1), &set.ProjectionCamera);
    for (Prm::ParameterSet const* child : set.childSetList())
        EXPECT_EQ(child->qstrScriptName(), "GanCamera");
    EXPECT_EQ(set.BackprojectionCamera.qstrDisplayName(), "BackprojectionCamera");
    EXPECT_EQ(set.ProjectionCamera.qstrDisplayName(), "ProjectionCamera");
    ASSERT_EQ(set.basicParameterList().size(), 1);
    EXPECT_EQ(set.basicParameterList().at(0)->scriptName(), "Type");
    EXPECT_EQ(static_cast<int>(set.Type), 0);

    EXPECT_EQ(set.LayerID.minimum(), 0u);
    EXPECT_EQ(set.LayerID.maximum(), 4294967295u);
    for (Prm::NumericParameter<double> const& entry : set.Homography) {
        EXPECT_EQ(entry.minimum(), -dLargest);
        EXPECT_EQ(entry.maximum(), dLargest);
        EXPECT_EQ(entry.defaultValue(), 0.0) << "the default matrix is the zero matrix";
        EXPECT_TRUE(entry.isKeyframed());
    }
}

TEST(ParameterisedFrameWarp, FreshSetPopulatesAZeroWarpAndTouchesNothingElse)
{
    TQ::FrameWarp warp;
    vFillWarp(warp, 4, 5, h1, 1.0);
    Gan_CubicBSplineWeights* const weights = warp.ptBackprojectionWeights;
    TQ::ParameterisedFrameWarp const set;
    set.populateFrameWarp(warp, 3.0f);
    EXPECT_EQ(entriesOf(warp.tHomography), QVector<double>(9, 0.0));
    EXPECT_FALSE(warp.bUseBackprojectionCamera) << "the flags are not forced on";
    EXPECT_FALSE(warp.bUseProjectionCamera);
    EXPECT_EQ(warp.iLayerID, 0);
    EXPECT_EQ(warp.uiClipID, 0u);
    EXPECT_EQ(warp.tBackprojectionCamera.type, GAN_LINEAR_CAMERA);
    EXPECT_EQ(warp.tBackprojectionCamera.fx, 0.0);

    // Untouched: the inverse, the matrix as given, the attributes and the weights pointers.
    TQ::FrameWarp reference;
    vFillWarp(reference, 4, 5, h1, 1.0);
    EXPECT_EQ(entriesOf(warp.tInverseHomography), entriesOf(reference.tInverseHomography));
    EXPECT_EQ(entriesOf(warp.tHomographyAsGiven), entriesOf(h1));
    EXPECT_EQ(warp.uiAttribute1 + warp.uiAttribute2, 3u);
    EXPECT_EQ(warp.ptBackprojectionWeights, weights);
    EXPECT_EQ(warp.tBackprojectionCamera.weights, weights);
}

TEST(ParameterisedFrameWarp, NegativeLayersAreStoredAsTheLargestId)
{
    struct {
        int iLayer;
        unsigned int uiStored;
        int iRead;
    } const rows[] = {{-1, 4294967295u, -1}, {-7, 4294967295u, -1}, {INT_MIN, 4294967295u, -1},
                      {0, 0, 0},             {5, 5, 5},              {INT_MAX, 2147483647u, INT_MAX}};
    for (auto const& row : rows) {
        TQ::ParameterisedFrameWarp set;
        TQ::FrameWarp warp;
        warp.iLayerID = row.iLayer;
        set.setFromFrameWarp(warp, 1.0f);
        EXPECT_EQ(set.LayerID.keyframeValue(0), row.uiStored) << row.iLayer;
        EXPECT_EQ(populated(set, 1.0f).iLayerID, row.iRead) << row.iLayer;
    }
}

TEST(ParameterisedFrameWarp, StoredOverSeveralTimesReadsBackBetweenThem)
{
    TQ::ParameterisedFrameWarp set;
    TQ::FrameWarp first;
    vFillWarp(first, 2, 3, h1, 1.0);
    set.setFromFrameWarp(first, 0.0f);
    TQ::FrameWarp second;
    vFillWarp(second, -1, 9, Gan_Matrix33{}, 2.0);
    second.bUseProjectionCamera = false;
    set.setFromFrameWarp(second, 10.0f);
    // Stored again over an existing key: the key is replaced, not added.
    set.setFromFrameWarp(second, 10.0f);
    EXPECT_EQ(set.Homography[0].keyframeCount(), 2u);

    // A warp with a buffer of its own gets the stored grid.
    TQ::FrameWarp atFirst;
    vFillWarp(atFirst, 0, 0, identity, 3.0);
    set.populateFrameWarp(atFirst, 0.0f);
    EXPECT_EQ(atFirst.iLayerID, 2);
    EXPECT_EQ(atFirst.uiClipID, 3u);
    EXPECT_EQ(entriesOf(atFirst.tHomography), entriesOf(h1));
    EXPECT_EQ(atFirst.tBackprojectionCamera.type, GAN_CUBIC_BSPLINE_CAMERA);
    EXPECT_EQ(atFirst.tBackprojectionCamera.fx, 1000.0);
    EXPECT_EQ(atFirst.ptBackprojectionWeights->weight[16][2].x, 14.0);
    EXPECT_EQ(atFirst.ptBackprojectionWeights->weight[3][16].y, 8.0);
    EXPECT_EQ(atFirst.tProjectionCamera.type, GAN_XY_DISTORTION_4);
    EXPECT_DOUBLE_EQ(atFirst.tProjectionCamera.d[2], 0.025);

    // The singular matrix was stored as the identity; step parameters hold, the matrix is linear.
    TQ::FrameWarp const atSecond = populated(set, 10.0f);
    EXPECT_EQ(atSecond.iLayerID, -1);
    EXPECT_EQ(atSecond.uiClipID, 9u);
    EXPECT_FALSE(atSecond.bUseProjectionCamera);
    EXPECT_EQ(entriesOf(atSecond.tHomography), entriesOf(identity));

    struct {
        float fTime;
        int iLayer;
        double dWeight;  // of the first matrix
    } const rows[] = {{5.0f, 2, 0.5}, {2.5f, 2, 0.75}, {-10.0f, 2, 2.0}, {20.0f, -1, -1.0}};
    for (auto const& row : rows) {
        TQ::FrameWarp const between = populated(set, row.fTime);
        EXPECT_EQ(between.iLayerID, row.iLayer) << row.fTime;
        EXPECT_TRUE(between.bUseProjectionCamera == (row.fTime < 10.0f)) << row.fTime;
        QVector<double> const a = entriesOf(h1), b = entriesOf(identity), got = entriesOf(between.tHomography);
        for (int i = 0; i < 9; ++i)
            EXPECT_DOUBLE_EQ(got[i], row.dWeight * a[i] + (1 - row.dWeight) * b[i]) << row.fTime << " entry " << i;
        EXPECT_DOUBLE_EQ(between.tBackprojectionCamera.fx, 1000 * row.dWeight + 2000 * (1 - row.dWeight));
    }
}

TEST(ParameterisedFrameWarp, MatrixEntriesAreClampedToTheLargestFiniteDouble)
{
    TQ::ParameterisedFrameWarp set;
    TQ::FrameWarp warp;
    double const dInf = std::numeric_limits<double>::infinity();
    warp.tHomography = Gan_Matrix33{dInf, -dInf, std::numeric_limits<double>::quiet_NaN(), 1, 2, 3, 4, 5, 6};
    set.setFromFrameWarp(warp, 0.0f);
    QVector<double> const got = entriesOf(populated(set, 0.0f).tHomography);
    EXPECT_EQ(got.mid(0, 3), (QVector<double>{dLargest, -dLargest, -dLargest}));
    EXPECT_EQ(got.mid(3), (QVector<double>{1, 2, 3, 4, 5, 6}));
}

TEST(ParameterisedFrameWarp, ResetDeletesTheSetsOwnKeysOnly)
{
    TQ::ParameterisedFrameWarp set;
    TQ::FrameWarp warp;
    vFillWarp(warp, 2, 3, h1, 1.0);
    set.setFromFrameWarp(warp, 0.0f);
    set.setFromFrameWarp(warp, 4.0f);
    set.Type = TQ::FrameWarp::_Type(6);
    set.reset();
    for (Prm::ParameterWithoutType const* parameter : set.parameterList())
        EXPECT_EQ(parameter->keyframeCount(), 0u) << parameter->qstrScriptName().toStdString();
    EXPECT_EQ(set.BackprojectionCamera.Fx.keyframeCount(), 2u);
    EXPECT_EQ(set.ProjectionCamera.Distortion1.keyframeCount(), 2u);
    EXPECT_EQ(static_cast<int>(set.Type), 6);
    TQ::FrameWarp const after = populated(set, 4.0f);
    EXPECT_EQ(entriesOf(after.tHomography), QVector<double>(9, 0.0)) << "static values stay as they were";
    EXPECT_EQ(after.tBackprojectionCamera.fx, 1000.0);
}

TEST(ParameterisedFrameWarp, TextRoundTripsEveryEntry)
{
    TQ::ParameterisedFrameWarp source;
    TQ::FrameWarp warp;
    vFillWarp(warp, 2, 3, h1, 1.0);
    source.setFromFrameWarp(warp, 0.0f);
    vFillWarp(warp, -1, 8, Gan_Matrix33{2, 0, 1, 0, 2, 1, 0.5, 0, 4}, 1.5);
    source.setFromFrameWarp(warp, 7.0f);
    source.Type = TQ::FrameWarp::_Type(7);
    source.LayerID.hide(true);
    QString const text = Prm::ParameterTextDocument(source).qstrWrite();
    EXPECT_TRUE(text.startsWith("LayerID.")) << "the set has no name of its own";
    EXPECT_EQ(text.count("\nGanCamera.Type.keyframes"), 2 * 2);
    EXPECT_TRUE(text.contains("\nType.value=7\n"));

    TQ::ParameterisedFrameWarp target;
    Prm::ParameterTextDocument document(target);
    EXPECT_EQ(document.iRead(text), text.count('\n'));
    EXPECT_TRUE(document.unreadLines().isEmpty());
    EXPECT_EQ(Prm::ParameterTextDocument(target).qstrWrite(), text);
    EXPECT_EQ(static_cast<int>(target.Type), 7);
    EXPECT_TRUE(target.LayerID.isHidden());
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(target.Homography[i].keyframeValue(1), source.Homography[i].keyframeValue(1)) << i;
    EXPECT_EQ(target.Homography[8].keyframeValue(1), 4.0) << "the second \"HomograpyZX\" keeps its own keys";
    EXPECT_EQ(target.Homography[6].keyframeValue(1), 0.5);
    EXPECT_EQ(target.ProjectionCamera.Type.keyframeValue(0), GAN_XY_DISTORTION_4);
    EXPECT_EQ(target.BackprojectionCamera.X[16][0].keyframeValue(1), 24.0f);
    EXPECT_EQ(target.ProjectionCamera.X[16][0].keyframeCount(), 0u);
}
