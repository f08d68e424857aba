#include "modules/WarperParameterSet.h"

#include <gtest/gtest.h>

TEST(WarperParameterSet, WeightsAsBSplineGridClampedAtFloatPrecision)
{
    TQ_WarperParameterSet warper;
    for (double const scale : {0.1, 10.0}) {
        Gan_CubicBSplineWeights weights;
        for (int row = 0; row < 17; ++row)
            for (int column = 0; column < 17; ++column)
                weights.weight[row][column] = Gan_Vector2{scale * row - column, scale * column + 0.5};
        warper.Weights.setWeights(weights, scale < 1.0 ? 4.0f : 8.0f);
    }
    Gan_CubicBSplineWeights const at4 = warper.Weights.weights(4.0f);
    EXPECT_EQ(at4.weight[3][2].x, double(float(0.1 * 3 - 2)));
    EXPECT_EQ(at4.weight[16][16].y, double(float(0.1 * 16 + 0.5)));
    EXPECT_EQ(warper.Weights.weights(6.0f).weight[2][0].x, double(float((0.2f + 20.0f) / 2.0f))) << "linear";
    EXPECT_EQ(warper.Weights.weights(9.0f).weight[16][0].x, 100.0) << "160 clamped to the maximum";
    EXPECT_EQ(warper.Weights.cells[16][0].X.keyframeValue(1), 100.0f);
}
