#include "modules/WarperParameterSet.h"
#include "prm/Fixtures.h"
#include "prm/text/ParameterTextDocument.h"

namespace {

Gan_CubicBSplineWeights grid(double scale)
{
    Gan_CubicBSplineWeights weights;
    for (int row = 0; row < 17; ++row)
        for (int column = 0; column < 17; ++column)
            weights.weight[row][column] = Gan_Vector2{scale * row - column, scale * column + 0.5};
    return weights;
}

} // namespace

TEST(WarperParameterSet, WeightsAsBSplineGridClampedAtFloatPrecision)
{
    TQ_WarperParameterSet warper;
    EXPECT_EQ(warper.parameterList().at(11), &warper.Weights.cells[0][0].X);
    EXPECT_EQ(warper.parameterList().at(12), &warper.Weights.cells[0][0].Y);
    EXPECT_EQ(warper.parameterList().at(13), &warper.Weights.cells[0][1].X);
    EXPECT_EQ(warper.parameterList().at(11 + 2 * 17), &warper.Weights.cells[1][0].X);
    EXPECT_EQ(warper.Weights.cells[16][9].Y.qstrScriptName(), "Weight-16-9Y");

    warper.Weights.setWeights(grid(0.1), 4.0f);
    warper.Weights.setWeights(grid(10.0), 8.0f);
    Gan_CubicBSplineWeights const at4 = warper.Weights.weights(4.0f);
    EXPECT_EQ(at4.weight[3][2].x, double(float(0.1 * 3 - 2)));
    EXPECT_EQ(at4.weight[16][16].y, double(float(0.1 * 16 + 0.5)));
    Gan_CubicBSplineWeights const at6 = warper.Weights.weights(6.0f);
    EXPECT_EQ(at6.weight[2][0].x, double(float((0.2f + 20.0f) / 2.0f))) << "linear between keys";
    EXPECT_EQ(warper.Weights.weights(9.0f).weight[16][0].x, 100.0) << "160 clamped to the maximum";
    EXPECT_EQ(warper.Weights.cells[16][0].X.keyframeValue(1), 100.0f);
}

TEST(WarperParameterSet, AssignmentLeavesTheWeightsCopyTakesThem)
{
    TQ_WarperParameterSet source;
    source.Weights.setWeights(grid(1.0), 2.0f);
    source.ApplyEdgeLock.vSetValue(true, 0.0f);
    source.UnusedFlag.vSetValue(true, 0.0f);
    source.Weights.cells[5][5].X.hide(true);
    Prm::NumericParameter<float> master(true, "Master", 1.0f, -100.0f, 100.0f, Prm::InterpolationLinear,
                                        Prm::ExtrapolationHold);
    ASSERT_TRUE(master.bAddConstrainedParameter(&source.Weights.cells[1][1].Y));

    TQ_WarperParameterSet const copy(source);
    EXPECT_EQ(copy.Weights.weights(2.0f).weight[7][3].x, 4.0);
    EXPECT_TRUE(copy.Weights.cells[5][5].X.isHidden());
    EXPECT_EQ(copy.Weights.cells[1][1].Y.master(), nullptr) << "a cell is assigned, so no master link";
    EXPECT_EQ(copy.Weights.cells[9][4].Y.minimum(), -100.0f);
    EXPECT_TRUE(copy.ApplyEdgeLock.staticValue());
    EXPECT_FALSE(copy.UnusedFlag.staticValue());
    EXPECT_EQ(copy.parameterList().size(), 589);
    EXPECT_EQ(copy.parameterList().at(588), &copy.Weights.cells[16][16].Y);

    TQ_WarperParameterSet target;
    target.Weights.cells[0][0].X.vSetValue(-3.0f, 1.0f);
    target = source;
    EXPECT_TRUE(target.ApplyEdgeLock.staticValue());
    EXPECT_EQ(keysOf(target.Weights.cells[0][0].X), (Keys<Prm::NumericParameter<float>>{{1.0f, -3.0f}}));
    EXPECT_EQ(target.Weights.cells[7][3].X.keyframeCount(), 0u);
    EXPECT_EQ(target.Render, source.Render);
}

TEST(WarperParameterSet, ForgetsItsThreeClips)
{
    TQ_WarperParameterSet warper;
    warper.InputClipID.vSetValue(6u, 0.0f);
    warper.LayerClipID.vSetValue(6u, 0.0f);
    warper.OutputClipID.vSetValue(7u, 0.0f);
    warper.removeReferencesToClip(6);
    EXPECT_EQ(warper.InputClipID.staticValue(), 1u);
    EXPECT_EQ(warper.LayerClipID.staticValue(), 0u);
    EXPECT_EQ(warper.OutputClipID.staticValue(), 7u);
    warper.removeReferencesToClip(0);
    EXPECT_EQ(warper.OutputClipID.staticValue(), 0u);
    warper.CubicBSplineLevel.vSetValue(9u, 0.0f);
    EXPECT_EQ(warper.CubicBSplineLevel.staticValue(), 4u);
}
