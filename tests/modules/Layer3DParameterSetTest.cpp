#include "modules/Layer3DParameterSet.h"
#include "prm/text/ParameterTextDocument.h"

#include <gtest/gtest.h>

#include <QPointer>

namespace {

// Counts live nulls through the destruction of their first coordinate, so that a null deleted twice or
// never shows (LeakSanitizer and AddressSanitizer catch the rest).
struct NullWatch {
    void vWatch(TQ_NullObject3DParameterSet* null) { watched.append(QPointer<QObject>(null->position.x())); }
    int iAlive() const
    {
        int alive = 0;
        for (QPointer<QObject> const& watch : watched)
            alive += watch.isNull() ? 0 : 1;
        return alive;
    }
    QVector<QPointer<QObject>> watched;
};

QStringList childNames(Prm::ParameterSet const& set)
{
    QStringList names;
    for (Prm::ParameterSet const* child : set.childSetList())
        names.append(child->qstrScriptName());
    return names;
}

} // namespace

TEST(Layer3DParameterSet, CreateFindAndIdsAsUnsigned)
{
    TQ_Layer3DParameterSet layer;
    EXPECT_EQ(layer.qstrScriptName(), "Nulls");
    EXPECT_TRUE(layer.parameterList().isEmpty());
    layer.deleteAllKeyframes();
    EXPECT_EQ(layer.findNull(3), nullptr);
    EXPECT_TRUE(layer.nulls.isEmpty()) << "a miss inserts nothing";

    TQ_NullObject3DParameterSet* first = layer.createNull(3, "Tree");
    EXPECT_EQ(layer.createNull(3, "Other"), first);
    EXPECT_EQ(first->qstrScriptName(), "Tree") << "the first name stays";
    TQ_NullObject3DParameterSet* negative = layer.createNull(-1, "Sky");
    EXPECT_EQ(layer.nulls.value(4294967295u), negative);
    EXPECT_EQ(layer.findNull(-1), negative);
    TQ_Layer3DParameterSet const& constLayer = layer;
    EXPECT_EQ(constLayer.findNull(3), first);
    layer.createNull(1, "Rock");
    EXPECT_EQ(childNames(layer), (QStringList{"Tree", "Sky", "Rock"})) << "children in order of creation";
    EXPECT_EQ(layer.nulls.keys(), (QList<unsigned int>{1u, 3u, 4294967295u}));

    first->position.setValue(Gan_Vector3{1.0, 2.0, 3.0}, 5.0f);
    layer.deleteAllKeyframes();
    EXPECT_EQ(first->position.x()->keyframeCount(), 0u);
}

TEST(Layer3DParameterSet, NullsAddedCopiedAssignedAndRemovedAreFreedOnce)
{
    NullWatch watch;
    {
        TQ_Layer3DParameterSet layer;
        watch.vWatch(layer.createNull(7, "Seven"));
        watch.vWatch(layer.createNull(2, "Two"));
        layer.findNull(7)->rotation.setValue(Gan_Vector3{0.5, 0.0, 0.0}, 1.0f);

        TQ_Layer3DParameterSet copy(layer);
        watch.vWatch(copy.findNull(7));
        watch.vWatch(copy.findNull(2));
        EXPECT_NE(copy.findNull(7), layer.findNull(7)) << "a copy owns nulls of its own";
        EXPECT_EQ(childNames(copy), (QStringList{"Seven", "Two"}));
        EXPECT_EQ(copy.findNull(7)->rotation.value(1.0f).x, 0.5);
        EXPECT_EQ(Prm::ParameterTextDocument(copy).qstrWrite(), Prm::ParameterTextDocument(layer).qstrWrite());

        TQ_Layer3DParameterSet assigned;
        watch.vWatch(assigned.createNull(9, "Gone"));
        assigned = layer;
        EXPECT_EQ(watch.iAlive(), 4) << "the target's own null went with the assignment";
        watch.vWatch(assigned.findNull(2));
        EXPECT_EQ(childNames(assigned), (QStringList{"Seven", "Two"}));
        assigned = assigned;
        EXPECT_EQ(watch.iAlive(), 5);

        copy.clear();
        EXPECT_EQ(watch.iAlive(), 3);
        EXPECT_TRUE(copy.childSetList().isEmpty());
        EXPECT_EQ(copy.findNull(7), nullptr);
        EXPECT_NE(layer.findNull(7), nullptr) << "clearing a copy leaves the source's nulls";
    }
    EXPECT_EQ(watch.iAlive(), 0);
}

TEST(Layer3DParameterSet, TextRoundTripIntoNullsOfTheSameNames)
{
    TQ_Layer3DParameterSet source;
    source.createNull(1, "A")->scale.setValue(Gan_Vector3{2.0, 3.0, 4.0}, 0.0f);
    source.createNull(5, "B")->position.setValue(Gan_Vector3{-1.0, 0.25, 8.0}, 12.0f);
    QString const text = Prm::ParameterTextDocument(source).qstrWrite();
    EXPECT_TRUE(text.contains("Nulls.B.Position.x.")) << text.toStdString();

    TQ_Layer3DParameterSet target;
    target.createNull(1, "A");
    target.createNull(5, "B");
    Prm::ParameterTextDocument document(target);
    EXPECT_EQ(document.iRead(text), text.count('\n'));
    EXPECT_TRUE(document.unreadLines().isEmpty());
    EXPECT_EQ(Prm::ParameterTextDocument(target).qstrWrite(), text);
    EXPECT_EQ(target.findNull(5)->position.value(12.0f).y, 0.25);
}
