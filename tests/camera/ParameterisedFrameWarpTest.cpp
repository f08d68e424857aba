#include "camera/ParameterisedFrameWarp.h"
#include "prm/ParameterTable.h"
#include "prm/text/ParameterTextDocument.h"

#include <gtest/gtest.h>

#include <climits>
#include <limits>
#include <tuple>

namespace {

double const dLargest = std::numeric_limits<double>::max();
Gan_Matrix33 const h1{1.5, 0.25, 3, -0.5, 2, 4, 0.125, 0.75, 1};
Gan_Matrix33 const identity{1, 0, 0, 0, 1, 0, 0, 0, 1};

QVector<double> entriesOf(Gan_Matrix33 const& m)
{
    return {m.xx, m.xy, m.xz, m.yx, m.yy, m.yz, m.zx, m.zy, m.zz};
}

// A warp between two anamorphic cameras whose focal length and third coefficient scale with `dScale`.
void vFillWarp(TQ::FrameWarp& warp, int iLayer, unsigned int uiClip, Gan_Matrix33 const& h, double dScale)
{
    Gan_Camera c{GAN_XY_DISTORTION_4, {1000 * dScale}, {1000}, {960}, {540}, {960}, {}, nullptr, nullptr, nullptr,
                 nullptr};
    c.d[2] = 0.025 * dScale;
    warp.vSetAttributes(uiClip, iLayer, 1, 2, false, c, nullptr, h, true, c, nullptr);
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
    TQ::ParameterisedFrameWarp set;
    EXPECT_TRUE(set.qstrScriptName().isEmpty() && set.qstrDisplayName().isEmpty());
    TQTest::expectParameterTable(set,
#include "data/ParameterisedFrameWarp.table"
    );
    EXPECT_EQ(set.parameterList().at(12), &set.Homography[8]) << "the second \"HomograpyZX\" is row 3, column 3";
    EXPECT_EQ(set.childSetList(), (QVector<Prm::ParameterSet*>{&set.BackprojectionCamera, &set.ProjectionCamera}));
    EXPECT_EQ(set.BackprojectionCamera.qstrDisplayName() + " " + set.ProjectionCamera.qstrDisplayName(),
              "BackprojectionCamera ProjectionCamera");
    ASSERT_EQ(set.basicParameterList().size(), 1);
    EXPECT_TRUE(set.basicParameterList().at(0)->scriptName() == "Type" && static_cast<int>(set.Type) == 0);
}

TEST(ParameterisedFrameWarp, FreshSetPopulatesAZeroWarpAndTouchesNothingElse)
{
    TQ::FrameWarp warp, reference;
    vFillWarp(warp, 4, 5, h1, 1.0);
    vFillWarp(reference, 4, 5, h1, 1.0);
    Gan_CubicBSplineWeights* const weights = warp.ptBackprojectionWeights = new Gan_CubicBSplineWeights();
    TQ::ParameterisedFrameWarp().populateFrameWarp(warp, 3.0f);
    EXPECT_EQ(entriesOf(warp.tHomography), QVector<double>(9, 0.0));
    EXPECT_FALSE(warp.bUseBackprojectionCamera || warp.bUseProjectionCamera) << "the flags are not forced on";
    EXPECT_TRUE(warp.iLayerID == 0 && warp.uiClipID == 0);
    EXPECT_TRUE(warp.tBackprojectionCamera.type == GAN_LINEAR_CAMERA && warp.tProjectionCamera.fx == 0.0);
    // Untouched: the inverse, the matrix as given, the attributes and the weights pointers.
    EXPECT_EQ(entriesOf(warp.tInverseHomography), entriesOf(reference.tInverseHomography));
    EXPECT_EQ(entriesOf(warp.tHomographyAsGiven), entriesOf(h1));
    EXPECT_TRUE(warp.uiAttribute1 == 1 && warp.uiAttribute2 == 2 && warp.ptBackprojectionWeights == weights);

    // Negative layers of any size are stored as the largest id and read back as -1.
    for (auto [iLayer, uiStored, iRead] : {std::tuple{-1, 4294967295u, -1}, {-7, 4294967295u, -1},
                                           {INT_MIN, 4294967295u, -1}, {5, 5u, 5}, {INT_MAX, 2147483647u, INT_MAX}}) {
        TQ::ParameterisedFrameWarp set;
        warp.iLayerID = iLayer;
        set.setFromFrameWarp(warp, 1.0f);
        EXPECT_EQ(set.LayerID.keyframeValue(0), uiStored) << iLayer;
        EXPECT_EQ(populated(set, 1.0f).iLayerID, iRead) << iLayer;
    }
}

TEST(ParameterisedFrameWarp, StoredOverSeveralTimesReadsBackBetweenThem)
{
    TQ::ParameterisedFrameWarp set;
    TQ::FrameWarp first, second;
    vFillWarp(first, 2, 3, h1, 1.0);
    set.setFromFrameWarp(first, 0.0f);
    vFillWarp(second, -1, 9, Gan_Matrix33{}, 2.0);
    second.bUseProjectionCamera = false;
    set.setFromFrameWarp(second, 10.0f);
    set.setFromFrameWarp(second, 10.0f); // over an existing key: replaced, not added
    EXPECT_EQ(set.Homography[0].keyframeCount(), 2u);

    // The singular matrix was stored as the identity; step parameters hold, the matrix is linear.
    // Per time: the layer, and the weight of the first warp.
    for (auto [fTime, iLayer, dWeight] : {std::tuple{0.0f, 2, 1.0}, {5.0f, 2, 0.5}, {2.5f, 2, 0.75}, {-10.0f, 2, 2.0},
                                          {10.0f, -1, 0.0}, {20.0f, -1, -1.0}}) {
        TQ::FrameWarp const between = populated(set, fTime);
        EXPECT_TRUE(between.iLayerID == iLayer && between.uiClipID == (fTime < 10.0f ? 3u : 9u)) << fTime;
        EXPECT_EQ(between.bUseProjectionCamera, fTime < 10.0f) << fTime;
        EXPECT_TRUE(between.bUseBackprojectionCamera && between.tProjectionCamera.type == GAN_XY_DISTORTION_4);
        QVector<double> const a = entriesOf(h1), b = entriesOf(identity), got = entriesOf(between.tHomography);
        for (int i = 0; i < 9; ++i)
            EXPECT_DOUBLE_EQ(got[i], dWeight * a[i] + (1 - dWeight) * b[i]) << fTime << " entry " << i;
        EXPECT_DOUBLE_EQ(between.tBackprojectionCamera.fx, 1000 * dWeight + 2000 * (1 - dWeight));
        EXPECT_DOUBLE_EQ(between.tProjectionCamera.d[2], 0.025 * dWeight + 0.05 * (1 - dWeight));
    }

    // Entries are clamped to the largest finite double; a NaN goes to the minimum.
    TQ::FrameWarp wild;
    double const dInf = std::numeric_limits<double>::infinity();
    wild.tHomography = Gan_Matrix33{dInf, -dInf, std::numeric_limits<double>::quiet_NaN(), 1, 2, 3, 4, 5, 6};
    set.setFromFrameWarp(wild, 30.0f);
    EXPECT_EQ(entriesOf(populated(set, 30.0f).tHomography),
              (QVector<double>{dLargest, -dLargest, -dLargest, 1, 2, 3, 4, 5, 6}));

    // A reset deletes the set's own keys only: the cameras and "Type" keep theirs, static values stay.
    set.Type = TQ::FrameWarp::_Type(6);
    set.reset();
    for (Prm::ParameterWithoutType const* parameter : set.parameterList())
        EXPECT_EQ(parameter->keyframeCount(), 0u) << parameter->qstrScriptName().toStdString();
    EXPECT_EQ(set.BackprojectionCamera.Fx.keyframeCount() + set.ProjectionCamera.Distortion3.keyframeCount(), 3u + 2u);
    EXPECT_EQ(static_cast<int>(set.Type), 6);
    TQ::FrameWarp const after = populated(set, 4.0f);
    EXPECT_EQ(entriesOf(after.tHomography), QVector<double>(9, 0.0)) << "static values stay as they were";
    EXPECT_EQ(after.tBackprojectionCamera.fx, 1400.0);
}

TEST(ParameterisedFrameWarp, TextRoundTripsEveryEntry)
{
    TQ::ParameterisedFrameWarp source, target;
    TQ::FrameWarp warp;
    vFillWarp(warp, 2, 3, h1, 1.0);
    source.setFromFrameWarp(warp, 0.0f);
    vFillWarp(warp, -1, 8, Gan_Matrix33{2, 0, 1, 0, 2, 1, 0.5, 0, 4}, 1.5);
    source.setFromFrameWarp(warp, 7.0f);
    source.Type = TQ::FrameWarp::_Type(-7); // written as an int, read back through unsigned
    source.LayerID.hide(true);
    QString const text = Prm::ParameterTextDocument(source).qstrWrite();
    EXPECT_TRUE(text.startsWith("LayerID.")) << "the set has no name of its own";
    EXPECT_EQ(text.count("\nGanCamera.Type.keyframes"), 2 * 2);
    EXPECT_TRUE(text.contains("\nType.value=-7\n"));

    Prm::ParameterTextDocument document(target);
    EXPECT_EQ(document.iRead(text), text.count('\n'));
    EXPECT_TRUE(document.unreadLines().isEmpty());
    EXPECT_EQ(Prm::ParameterTextDocument(target).qstrWrite(), text) << "every entry and both cameras read back";
    EXPECT_TRUE(static_cast<int>(target.Type) == -7 && target.LayerID.isHidden());
    EXPECT_EQ(target.Homography[8].keyframeValue(1), 4.0) << "the second \"HomograpyZX\" keeps its own keys";
    EXPECT_EQ(target.Homography[6].keyframeValue(1), 0.5);
}
