#include "ModuleSetTable.h"
#include "modules/Camera3DParameterSet.h"
#include "modules/Layer3DParameterSet.h"
#include "prm/text/ParameterTextDocument.h"

#include <gtest/gtest.h>

#include <QPointer>

#include <cmath>
#include <limits>

TEST(XYZParameterSet, ThreeUnboundedCoordinatesAtFloatPrecision)
{
    float const fLargest = std::numeric_limits<float>::max();
    TQ_XYZParameterSet point("Position");
    vExpectTable(point, SetTable("Position"));
    point.setValue(Gan_Vector3{0.1, -2.5, 1e300}, 4.0f);
    point.setValue(Gan_Vector3{1.0, 2.0, 3.0}, 8.0f);
    EXPECT_EQ(point.value(4.0f).x, double(0.1f)) << "narrowed to float, then widened";
    EXPECT_EQ(point.value(4.0f).y, -2.5);
    EXPECT_EQ(point.value(4.0f).z, double(fLargest)) << "beyond float range: clamped to the limit";
    EXPECT_EQ(point.value(100.0f).z, 3.0) << "holds after the last key";
    point.setValue(Gan_Vector3{NAN, 0.0, 0.0}, 9.0f);
    EXPECT_EQ(point.x()->keyframeValue(2), -fLargest) << "NaN is stored as the minimum";
    point.deleteAllKeyframes();
    EXPECT_EQ(point.x()->keyframeCount() + point.y()->keyframeCount() + point.z()->keyframeCount(), 0u);
}

TEST(Camera3DParameterSet, NamesChildrenFocusAndKeys)
{
    TQ_Camera3DParameterSet camera;
    EXPECT_EQ(camera.qstrScriptName(), "Camera3D");
    vExpectTable(camera, SetTable("Camera"));
    camera.setFocus(35.0f, 1.0f);
    camera.setFocus(50.0f, 3.0f);
    camera.scale.setValue(Gan_Vector3{2.0, 2.0, 2.0}, 1.0f);
    EXPECT_EQ(camera.focus()->value(2.0f, nullptr), 0.0f) << "keys of no kind read zero between them";
    EXPECT_EQ(camera.focus()->value(9.0f, nullptr), 50.0f);
    TQ_Camera3DParameterSet copy(camera);
    EXPECT_EQ(Prm::ParameterTextDocument(copy).qstrWrite(), Prm::ParameterTextDocument(camera).qstrWrite());
    camera.deleteAllKeyframes();
    EXPECT_EQ(camera.focus()->keyframeCount() + camera.scale.x()->keyframeCount(), 0u);
}

TEST(Layer3DParameterSet, CreateFindAndIdsAsUnsigned)
{
    TQ_Layer3DParameterSet layer;
    EXPECT_EQ(layer.qstrScriptName(), "Nulls");
    layer.deleteAllKeyframes();
    EXPECT_EQ(layer.findNull(3), nullptr);
    EXPECT_TRUE(layer.nulls.isEmpty()) << "a miss inserts nothing";
    TQ_NullObject3DParameterSet* first = layer.createNull(3, "Tree");
    EXPECT_EQ(layer.createNull(3, "Other"), first);
    TQ_NullObject3DParameterSet* const negative = layer.createNull(-1, "Sky");
    EXPECT_EQ(layer.nulls.value(4294967295u), negative);
    EXPECT_EQ(static_cast<TQ_Layer3DParameterSet const&>(layer).findNull(-1), negative);
    TQ_NullObject3DParameterSet* const rock = layer.createNull(1, "Rock");
    EXPECT_EQ(layer.childSetList(), (QVector<Prm::ParameterSet*>{first, negative, rock})) << "in order of creation";
    EXPECT_EQ(first->qstrScriptName(), "Tree");
    first->position.setValue(Gan_Vector3{1.0, 2.0, 3.0}, 5.0f);
    layer.deleteAllKeyframes();
    EXPECT_EQ(first->position.x()->keyframeCount(), 0u);
}

// Nulls are watched through their first coordinate, so that one deleted twice or never shows (the
// sanitizers catch the rest).
TEST(Layer3DParameterSet, NullsAddedCopiedAssignedRemovedAndReadBackAreFreedOnce)
{
    QVector<QPointer<QObject>> watched;
    auto const watch = [&watched](TQ_NullObject3DParameterSet* null) { watched << null->position.x(); };
    auto const alive = [&watched] { return int(watched.size() - watched.count(QPointer<QObject>())); };
    {
        TQ_Layer3DParameterSet layer;
        watch(layer.createNull(7, "Seven"));
        watch(layer.createNull(2, "Two"));
        layer.findNull(7)->rotation.setValue(Gan_Vector3{0.5, 0.0, 0.0}, 1.0f);
        QString const text = Prm::ParameterTextDocument(layer).qstrWrite();

        TQ_Layer3DParameterSet copy(layer);
        watch(copy.findNull(7));
        watch(copy.findNull(2));
        EXPECT_NE(copy.findNull(7), layer.findNull(7)) << "a copy owns nulls of its own";
        EXPECT_EQ(Prm::ParameterTextDocument(copy).qstrWrite(), text) << "same names, values and order";

        TQ_Layer3DParameterSet assigned;
        watch(assigned.createNull(9, "Gone"));
        assigned = layer;
        EXPECT_EQ(alive(), 4) << "the target's own null went with the assignment";
        watch(assigned.findNull(2));
        assigned = assigned;
        EXPECT_EQ(assigned.childSetList(), (QVector<Prm::ParameterSet*>{assigned.findNull(7), assigned.findNull(2)}));
        EXPECT_EQ(alive(), 5);

        copy.clear();
        EXPECT_EQ(alive(), 3);
        EXPECT_TRUE(copy.childSetList().isEmpty());
        EXPECT_NE(layer.findNull(7), nullptr) << "clearing a copy leaves the source's nulls";

        copy.createNull(2, "Two");
        copy.createNull(7, "Seven");
        Prm::ParameterTextDocument document(copy);
        EXPECT_EQ(document.iRead(text), text.count('\n'));
        EXPECT_EQ(copy.findNull(7)->rotation.value(1.0f).x, 0.5);
    }
    EXPECT_EQ(alive(), 0);
}
