#include "camera/ParameterTable.h"
#include "camera/ParameterisedGanCamera.h"
#include "gandalf/Camera.h"
#include "prm/text/ParameterTextDocument.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

using Prm::ExtrapolationHold;
using Prm::ExtrapolationLinear;
using Prm::InterpolationLinear;
using Prm::InterpolationStep;

QString weightName(int i, int j, char axis)
{
    return QString("Weight-%1-%2%3").arg(i).arg(j).arg(axis);
}

/// Every weight of `table` at (i, j) = (i + j / 100, -i - j / 100), scaled.
std::unique_ptr<Gan_CubicBSplineWeights> weights(double scale)
{
    auto table = std::make_unique<Gan_CubicBSplineWeights>();
    for (int i = 0; i < 17; ++i)
        for (int j = 0; j < 17; ++j)
            table->weight[i][j] = {scale * (i + j / 100.0), -scale * (i + j / 100.0)};
    return table;
}

/// Keys of every parameter of the set, in registration order.
std::vector<unsigned int> keyCounts(TQ_ParameterisedGanCamera const& camera)
{
    std::vector<unsigned int> counts;
    for (Prm::ParameterWithoutType const* parameter : camera.parameterList())
        counts.push_back(parameter->keyframeCount());
    return counts;
}

} // namespace

TEST(ParameterisedGanCamera, ParameterTable)
{
    std::vector<ParameterRow> rows = {{"Type", true, "0", dNoLimit, dNoLimit, InterpolationStep, ExtrapolationHold}};
    for (char const* name : {"Z", "Fx", "Fy", "X0", "Y0", "Distortion1", "Distortion2", "Distortion3", "Distortion4"})
        rows.push_back({name, true, "0", 0.0, 10000.0, InterpolationLinear, ExtrapolationLinear});
    for (int i = 0; i < 17; ++i)
        for (int j = 0; j < 17; ++j)
            for (char axis : {'X', 'Y'})
                rows.push_back({weightName(i, j, axis), true, "0", -100.0, 100.0, InterpolationLinear,
                                ExtrapolationLinear});
    TQ_ParameterisedGanCamera const camera;
    EXPECT_EQ("GanCamera", camera.qstrScriptName());
    expectParameterTable(camera, rows);
    EXPECT_EQ(&camera.X[0][16], camera.findParameter("Weight-0-16X"));
    EXPECT_EQ(&camera.Y[16][15], camera.findParameter("Weight-16-15Y"));
}

TEST(ParameterisedGanCamera, SetFromGanCameraClampsAndStoresWhatTheModelUses)
{
    // Keys expected after one setFromGanCamera: the six common values always, then per model.
    struct Row {
        int iType;
        int iDistortions;
        bool bGrid;
    };
    Row const rows[] = {{0, 0, false},  {1, 1, false},  {2, 2, false},  {3, 3, false},  {4, 1, false},
                        {5, 0, false},  {9, 4, false},  {12, 0, true},  {13, 0, true},  {14, 2, false},
                        {15, 0, false}, {-3, 0, false}, {11, 0, false}};
    auto const table = weights(10.0);
    for (Row const& row : rows) {
        Gan_Camera gan = {};
        gan.type = static_cast<Gan_CameraType>(row.iType);
        gan.zh = 500.0;
        gan.fx = 20000.0;
        gan.fy = -1.0;
        gan.x0 = 960.0;
        gan.y0 = 540.0;
        gan.d[0] = 0.5;
        gan.d[1] = -0.1;
        gan.d[2] = 3.0;
        gan.d[3] = 20000.0;
        gan.weights = table.get();
        TQ_ParameterisedGanCamera camera;
        camera.setFromGanCamera(gan, 5.0f);
        std::vector<unsigned int> expected(588, 0u);
        for (int i = 0; i < 6 + row.iDistortions; ++i)
            expected[i] = 1;
        for (int i = 10; row.bGrid && i < 588; ++i)
            expected[i] = 1;
        EXPECT_EQ(expected, keyCounts(camera)) << "type " << row.iType;

        Gan_Camera back = {};
        Gan_CubicBSplineWeights written = {};
        back.weights = &written;
        camera.populateGanCamera(back, 5.0f);
        EXPECT_EQ(row.iType, int(back.type));
        EXPECT_EQ(500.0, back.zh);
        EXPECT_EQ(10000.0, back.fx) << "upper limit";
        EXPECT_EQ(0.0, back.fy) << "lower limit";
        double const coefficients[4] = {0.5, 0.0, 3.0, 10000.0}; // -0.1 is below the limit of 0
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(i < row.iDistortions ? coefficients[i] : 0.0, back.d[i]) << "type " << row.iType << " slot " << i;
        // Weight (16, 16) is 160.16, stored at the limit 100; (1, 2) is 10.2 as a float.
        EXPECT_EQ(row.bGrid ? 100.0 : 0.0, written.weight[16][16].x) << "type " << row.iType;
        EXPECT_EQ(row.bGrid ? -100.0 : 0.0, written.weight[16][16].y);
        EXPECT_EQ(row.bGrid ? double(10.2f) : 0.0, written.weight[1][2].x);
    }
}

TEST(ParameterisedGanCamera, GridModelsWithoutATableKeepTheirGrids)
{
    TQ_ParameterisedGanCamera camera;
    Gan_Camera gan = {};
    gan.type = GAN_CUBIC_BSPLINE_CAMERA_INV;
    camera.setFromGanCamera(gan, 0.0f);
    EXPECT_EQ(0u, camera.X[0][0].keyframeCount());
    camera.populateGanCamera(gan, 0.0f); // no table to write to: nothing is allocated, nothing breaks
    EXPECT_EQ(nullptr, gan.weights);
    EXPECT_EQ(GAN_CUBIC_BSPLINE_CAMERA_INV, gan.type);
}

TEST(ParameterisedGanCamera, CopyAndAssignmentCarryKeysAndLimits)
{
    TQ_ParameterisedGanCamera source;
    source.Fx.vSetValue(1200.0, 0.0f);
    source.Fx.vSetValue(1400.0, 10.0f);
    source.Fx.vSetMaximum(5000.0);
    source.X[3][4].vSetValue(-7.5f, 2.0f);
    source.Y[3][4].vSetMinimum(-1.0f);
    source.Type.vSetValue(GAN_CUBIC_BSPLINE_CAMERA, 2.0f);
    source.setDisplayName("Lens A");

    TQ_ParameterisedGanCamera const copy(source);
    TQ_ParameterisedGanCamera assigned;
    assigned = source;
    for (TQ_ParameterisedGanCamera const* camera : {&copy, const_cast<TQ_ParameterisedGanCamera const*>(&assigned)}) {
        EXPECT_EQ(1300.0, camera->Fx.value(5.0f, nullptr));
        EXPECT_EQ(5000.0, camera->Fx.maximum());
        EXPECT_EQ(-7.5f, camera->X[3][4].value(2.0f, nullptr));
        EXPECT_EQ(-1.0f, camera->Y[3][4].minimum());
        EXPECT_EQ(GAN_CUBIC_BSPLINE_CAMERA, camera->Type.value(9.0f, nullptr));
        EXPECT_EQ("Lens A", camera->qstrDisplayName());
        EXPECT_EQ("GanCamera", camera->qstrScriptName());
        // Each object's list holds its own members.
        EXPECT_EQ(&camera->Fx, camera->findParameter("Fx"));
        EXPECT_EQ(&camera->Y[16][16], camera->parameterList().last());
        EXPECT_EQ(588, camera->parameterList().size());
    }
}

TEST(ParameterisedGanCamera, KeyframedCameraRoundTripsThroughText)
{
    auto const table = weights(1.0);
    TQ_ParameterisedGanCamera source;
    for (float time : {0.0f, 24.0f}) {
        Gan_Camera gan = {};
        gan.type = GAN_CUBIC_BSPLINE_CAMERA;
        gan.zh = 960.0 + time;
        gan.fx = 1500.0 + 10.0 * time;
        gan.fy = 1600.0;
        gan.x0 = 960.5;
        gan.y0 = 540.25;
        gan.weights = table.get();
        source.setFromGanCamera(gan, time);
    }
    source.X[16][16].vSetValue(42.5f, 12.0f);

    QString const text = Prm::ParameterTextDocument(source).qstrWrite();
    QStringList const lines = text.split('\n', Qt::SkipEmptyParts);
    ASSERT_FALSE(lines.isEmpty());
    EXPECT_TRUE(lines.last().startsWith("GanCamera.Weight-16-16Y")) << lines.last().toStdString();

    TQ_ParameterisedGanCamera read;
    Prm::ParameterTextDocument document(read);
    document.iRead(text);
    EXPECT_TRUE(document.unreadLines().isEmpty());
    EXPECT_EQ(text, Prm::ParameterTextDocument(read).qstrWrite());
    EXPECT_EQ(1620.0, read.Fx.value(12.0f, nullptr));
    EXPECT_EQ(3u, read.X[16][16].keyframeCount());
    EXPECT_EQ(42.5f, read.X[16][16].value(12.0f, nullptr));
    EXPECT_EQ(GAN_CUBIC_BSPLINE_CAMERA, read.Type.value(30.0f, nullptr));
}
