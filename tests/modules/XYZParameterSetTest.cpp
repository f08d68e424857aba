#include "ModuleSetTable.h"
#include "modules/Camera3DParameterSet.h"
#include "prm/text/ParameterTextDocument.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

float const fLargest = std::numeric_limits<float>::max();

// Every coordinate and the focal length share one shape: keyed, 0, unbounded, holding, no default kind.
void vExpectPoint(Prm::ParameterWithoutType& parameter, QString const& name, QString const& displayName = QString())
{
    TableRow const row{name, "NumericParameter<float>", "yes", "0", "-largest float", "largest float", "0", "hold",
                       displayName, "no"};
    EXPECT_EQ(parameter.qstrScriptName(), name);
    EXPECT_EQ(factsOf(parameter) + looksOf(parameter), expectedFacts(parameter, row)) << name.toStdString();
}

} // namespace

TEST(XYZParameterSet, ThreeUnboundedCoordinatesAtFloatPrecision)
{
    TQ_XYZParameterSet point("Where");
    EXPECT_EQ(point.qstrDisplayName(), "Where");
    EXPECT_EQ(point.parameterList(), (QVector<Prm::ParameterWithoutType*>{point.x(), point.y(), point.z()}));
    vExpectPoint(*point.x(), "x");
    vExpectPoint(*point.y(), "y");
    vExpectPoint(*point.z(), "z");

    point.setValue(Gan_Vector3{0.1, -2.5, 1e300}, 4.0f);
    point.setValue(Gan_Vector3{1.0, 2.0, 3.0}, 8.0f);
    Gan_Vector3 const read = point.value(4.0f);
    EXPECT_EQ(read.x, static_cast<double>(0.1f)) << "narrowed to float, then widened";
    EXPECT_EQ(read.y, -2.5);
    EXPECT_EQ(read.z, static_cast<double>(fLargest)) << "beyond float range: clamped to the limit";
    EXPECT_EQ(point.value(100.0f).z, 3.0) << "holds after the last key";
    point.setValue(Gan_Vector3{std::numeric_limits<double>::quiet_NaN(), 0.0, 0.0}, 9.0f);
    EXPECT_EQ(point.x()->keyframeValue(2), -fLargest) << "NaN is stored as the minimum";
    point.deleteAllKeyframes();
    for (Prm::NumericParameter<float> const* coordinate : {point.x(), point.y(), point.z()})
        EXPECT_EQ(coordinate->keyframeCount(), 0u);
}

TEST(Camera3DParameterSet, NamesChildrenFocusAndKeys)
{
    TQ_Camera3DParameterSet camera;
    EXPECT_EQ(camera.qstrDisplayName(), "Camera");
    EXPECT_EQ(camera.qstrScriptName(), "Camera3D");
    vExpectPoint(*camera.focus(), "FocalLength", "Focal Length");
    EXPECT_EQ(camera.parameterList().size(), 1);
    EXPECT_EQ(camera.childSetList(),
              (QVector<Prm::ParameterSet*>{&camera.position, &camera.rotation, &camera.scale}));
    EXPECT_EQ(camera.scale.qstrScriptName(), "Scale");

    camera.setFocus(35.0f, 1.0f);
    camera.setFocus(50.0f, 3.0f);
    camera.scale.setValue(Gan_Vector3{2.0, 2.0, 2.0}, 1.0f);
    EXPECT_EQ(camera.focus()->value(2.0f, nullptr), 0.0f) << "keys of no kind read zero between them";
    EXPECT_EQ(camera.focus()->value(9.0f, nullptr), 50.0f);
    TQ_Camera3DParameterSet copy(camera);
    EXPECT_EQ(Prm::ParameterTextDocument(copy).qstrWrite(), Prm::ParameterTextDocument(camera).qstrWrite());
    camera.deleteAllKeyframes();
    EXPECT_EQ(camera.focus()->keyframeCount(), 0u);
    EXPECT_EQ(camera.scale.x()->keyframeCount(), 0u);
}
