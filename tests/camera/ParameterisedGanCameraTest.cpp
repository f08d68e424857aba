#include "camera/ParameterisedGanCamera.h"
#include "gandalf/Camera.h"
#include "prm/ParameterTable.h"
#include "prm/text/ParameterTextDocument.h"

#include <gtest/gtest.h>

#include <memory>
#include <tuple>

namespace {

/// Every weight at (i, j) = (i + j / 100, -i - j / 100), scaled.
std::unique_ptr<Gan_CubicBSplineWeights> weights(double scale)
{
    auto table = std::make_unique<Gan_CubicBSplineWeights>();
    for (int i = 0; i < 17; ++i)
        for (int j = 0; j < 17; ++j)
            table->weight[i][j] = {scale * (i + j / 100.0), -scale * (i + j / 100.0)};
    return table;
}

} // namespace

TEST(ParameterisedGanCamera, ParameterTable)
{
    TQ_ParameterisedGanCamera source;
    EXPECT_EQ("GanCamera", source.qstrScriptName());
    TQTest::expectParameterTable(source,
#include "data/ParameterisedGanCamera.table"
    );
    EXPECT_EQ(&source.X[0][16], source.findParameter("Weight-0-16X"));
    QString const text = Prm::ParameterTextDocument(source).qstrWrite();
    EXPECT_TRUE(text.split('\n', Qt::SkipEmptyParts).last().startsWith("GanCamera.Weight-16-16Y")) << "text order";
}

TEST(ParameterisedGanCamera, SetFromGanCameraClampsAndStoresWhatTheModelUses)
{
    // Per type: how many distortion slots and whether the grid are keyed, besides the six common values.
    auto const table = weights(10.0);
    for (auto [iType, iDistortions, bGrid] :
         {std::tuple{0, 0, false}, {1, 1, false}, {2, 2, false}, {3, 3, false}, {4, 1, false}, {5, 0, false},
          {9, 4, false}, {12, 0, true}, {13, 0, true}, {14, 2, false}, {15, 0, false}, {-3, 0, false},
          {11, 0, false}}) {
        Gan_Camera gan{static_cast<Gan_CameraType>(iType), {20000.0}, {-1.0}, {960.0}, {540.0}, {500.0}, {},
                       table.get(), nullptr, nullptr, nullptr};
        std::copy_n(std::initializer_list<double>{0.5, -0.1, 3.0, 20000.0}.begin(), 4, gan.d);
        TQ_ParameterisedGanCamera camera;
        camera.setFromGanCamera(gan, 5.0f);
        QVector<Prm::ParameterWithoutType*> const parameters = camera.parameterList();
        for (int i = 0; i < parameters.size(); ++i)
            EXPECT_EQ(i < 6 + iDistortions || (bGrid && i >= 10), parameters[i]->keyframeCount() == 1)
                << "type " << iType << " parameter " << i;

        Gan_Camera back = {};
        Gan_CubicBSplineWeights written = {};
        back.weights = &written;
        camera.populateGanCamera(back, 5.0f);
        EXPECT_TRUE(int(back.type) == iType && back.zh == 500.0);
        EXPECT_TRUE(back.fx == 10000.0 && back.fy == 0.0) << "limits";
        double const coefficients[4] = {0.5, 0.0, 3.0, 10000.0}; // -0.1 is below the limit of 0
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(i < iDistortions ? coefficients[i] : 0.0, back.d[i]) << "type " << iType << " slot " << i;
        // Weight (16, 16) is 160.16, stored at the limit 100; (1, 2) is 10.2 as a float.
        EXPECT_EQ(bGrid ? 100.0 : 0.0, written.weight[16][16].x) << "type " << iType;
        EXPECT_EQ(bGrid ? -100.0 : 0.0, written.weight[16][16].y);
        EXPECT_EQ(bGrid ? double(10.2f) : 0.0, written.weight[1][2].x);
    }

    // A grid model without a table keys no grid, and populating it allocates nothing.
    TQ_ParameterisedGanCamera camera;
    Gan_Camera gan = {};
    gan.type = GAN_CUBIC_BSPLINE_CAMERA_INV;
    camera.setFromGanCamera(gan, 0.0f);
    EXPECT_EQ(0u, camera.X[0][0].keyframeCount());
    camera.populateGanCamera(gan, 0.0f);
    EXPECT_TRUE(gan.weights == nullptr && gan.type == GAN_CUBIC_BSPLINE_CAMERA_INV);
}
