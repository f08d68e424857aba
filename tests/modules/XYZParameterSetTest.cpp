#include "modules/Camera3DParameterSet.h"
#include "modules/XYZParameterSet.h"
#include "prm/text/ParameterTextDocument.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace {

float const fLargest = std::numeric_limits<float>::max();

// Every coordinate and the focal length share one shape: keyed, 0, unbounded, holding, no default kind.
void vExpectPointParameter(Prm::NumericParameter<float> const& parameter, char const* scriptName,
                           char const* displayName)
{
    SCOPED_TRACE(scriptName);
    EXPECT_EQ(parameter.qstrScriptName(), scriptName);
    EXPECT_EQ(parameter.qstrDisplayName(), displayName);
    EXPECT_TRUE(parameter.isKeyframed());
    EXPECT_EQ(parameter.defaultValue(), 0.0f);
    EXPECT_EQ(parameter.staticValue(), 0.0f);
    EXPECT_EQ(parameter.minimum(), -fLargest);
    EXPECT_EQ(parameter.maximum(), fLargest);
    EXPECT_EQ(parameter.interpolation(0.0f), Prm::InterpolationUnset);
    EXPECT_EQ(parameter.extrapolationBefore(), Prm::ExtrapolationHold);
    EXPECT_EQ(parameter.extrapolationAfter(), Prm::ExtrapolationHold);
    EXPECT_FALSE(parameter.isHidden());
}

} // namespace

TEST(XYZParameterSet, ThreeUnboundedCoordinatesInOrder)
{
    TQ_XYZParameterSet const point("Where");
    EXPECT_EQ(point.qstrScriptName(), "Where");
    EXPECT_EQ(point.qstrDisplayName(), "Where");
    ASSERT_EQ(point.parameterList(),
              (QVector<Prm::ParameterWithoutType*>{const_cast<Prm::NumericParameter<float>*>(point.x()),
                                                   const_cast<Prm::NumericParameter<float>*>(point.y()),
                                                   const_cast<Prm::NumericParameter<float>*>(point.z())}));
    vExpectPointParameter(*point.x(), "x", "x");
    vExpectPointParameter(*point.y(), "y", "y");
    vExpectPointParameter(*point.z(), "z", "z");
}

TEST(XYZParameterSet, ValueAtFloatPrecisionClampedAndKeysDeleted)
{
    TQ_XYZParameterSet point("P");
    point.setValue(Gan_Vector3{0.1, -2.5, 1e300}, 4.0f);
    point.setValue(Gan_Vector3{1.0, 2.0, 3.0}, 8.0f);
    Gan_Vector3 const read = point.value(4.0f);
    EXPECT_EQ(read.x, static_cast<double>(0.1f)) << "narrowed to float, then widened";
    EXPECT_EQ(read.y, -2.5);
    EXPECT_EQ(read.z, static_cast<double>(fLargest)) << "beyond float range: clamped to the limit";
    EXPECT_EQ(point.x()->keyframeCount(), 2u);
    EXPECT_EQ(point.value(100.0f).z, 3.0) << "holds after the last key";

    point.setValue(Gan_Vector3{std::numeric_limits<double>::quiet_NaN(), 0.0, 0.0}, 9.0f);
    EXPECT_EQ(point.x()->keyframeValue(2), -fLargest) << "NaN is stored as the minimum";

    point.deleteAllKeyframes();
    for (Prm::NumericParameter<float> const* coordinate : {point.x(), point.y(), point.z()})
        EXPECT_EQ(coordinate->keyframeCount(), 0u);
}

TEST(XYZParameterSet, CopyAndAssignmentCarryNamesAndKeys)
{
    TQ_XYZParameterSet source("Source");
    source.setValue(Gan_Vector3{1.0, 2.0, 3.0}, 2.0f);
    TQ_XYZParameterSet const copy(source);
    EXPECT_EQ(copy.qstrScriptName(), "Source");
    EXPECT_EQ(copy.value(2.0f).z, 3.0);
    EXPECT_EQ(copy.parameterList().size(), 3);
    EXPECT_EQ(copy.parameterList().at(0), copy.x()) << "a copy registers its own parameters";

    TQ_XYZParameterSet target("Target");
    target = source;
    EXPECT_EQ(target.qstrScriptName(), "Source");
    EXPECT_EQ(target.value(2.0f).y, 2.0);
    EXPECT_EQ(target.parameterList().size(), 3);
}

TEST(Camera3DParameterSet, NamesChildrenFocusAndKeys)
{
    TQ_Camera3DParameterSet camera;
    EXPECT_EQ(camera.qstrDisplayName(), "Camera");
    EXPECT_EQ(camera.qstrScriptName(), "Camera3D");
    vExpectPointParameter(*camera.focus(), "FocalLength", "Focal Length");
    ASSERT_EQ(camera.parameterList().size(), 1);
    ASSERT_EQ(camera.childSetList().size(), 3);
    std::vector<QString> names;
    for (Prm::ParameterSet const* child : camera.childSetList())
        names.push_back(child->qstrScriptName());
    EXPECT_EQ(names, (std::vector<QString>{"Position", "Rotation", "Scale"}));
    EXPECT_EQ(camera.childSetList().at(1), &camera.rotation);

    camera.setFocus(35.0f, 1.0f);
    camera.setFocus(50.0f, 3.0f);
    camera.scale.setValue(Gan_Vector3{2.0, 2.0, 2.0}, 1.0f);
    EXPECT_EQ(camera.focus()->value(2.0f, nullptr), 0.0f) << "keys of no kind read zero between them";
    EXPECT_EQ(camera.focus()->value(1.0f, nullptr), 35.0f);
    EXPECT_EQ(camera.focus()->value(9.0f, nullptr), 50.0f);

    TQ_Camera3DParameterSet copy(camera);
    EXPECT_EQ(copy.qstrScriptName(), "Camera3D");
    EXPECT_EQ(copy.focus()->keyframeCount(), 2u);
    EXPECT_EQ(Prm::ParameterTextDocument(copy).qstrWrite(), Prm::ParameterTextDocument(camera).qstrWrite());

    camera.deleteAllKeyframes();
    EXPECT_EQ(camera.focus()->keyframeCount(), 0u);
    EXPECT_EQ(camera.scale.x()->keyframeCount(), 0u);
    copy = camera;
    EXPECT_EQ(copy.focus()->keyframeCount(), 0u);
    EXPECT_EQ(copy.scale.z()->keyframeCount(), 0u);
}
