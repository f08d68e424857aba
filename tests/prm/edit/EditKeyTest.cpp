#include "prm/Fixtures.h"
#include "bsc/Command.h"
#include "prm/NumericParameter.h"
#include "prm/Parameter.h"

#include <algorithm>
#include <tuple>

namespace {

Curve curve()
{
    return curveOf({{0.0f, 0.0}, {10.0f, 10.0}, {20.0f, 0.0}});
}

} // namespace

TEST(EditKey, AddKeyTakesTheCurveValueSkipsAnExistingKeyAndGivesAFollowerNone)
{
    Curve parameter = curve();
    Curve slave = curveOf({}, "Slave");
    ASSERT_TRUE(parameter.bAddConstrainedParameter(&slave));
    Bsc::CompositeCommand composite;
    parameter.vAddKeyframeCommand(5.0f, composite);
    parameter.vAddKeyframeCommand(10.0f, composite);
    slave.vAddKeyframeCommand(5.0f, composite);
    composite.doIt();
    EXPECT_EQ(parameter.keyframeCount(), 4u);
    EXPECT_EQ(parameter.keyframeValue(1), 5.0);
    EXPECT_EQ(slave.keyframeCount(), 0u);

    slave.vSetValue(3.0, 5.0f); // a key of the slave's own at that time
    composite.undoIt();
    EXPECT_EQ(slave.keyframeCount(), 0u) << "the follower's undo still deletes";
    EXPECT_EQ(parameter.keyframeCount(), 3u);
    EXPECT_TRUE(parameter.bKeyframeAt(10.0f)) << "the skipped edit leaves the key at 10 alone on undo";
    EXPECT_FALSE(parameter.bKeyframeAt(5.0f));
    composite.doIt();
    EXPECT_EQ(parameter.keyframeCount(), 4u);
}

TEST(EditKey, DeletedKeyComesBackWithoutItsHandles)
{
    Curve parameter = curve();
    Prm::IType bezier = parameter.interpolationData(1);
    std::tie(bezier.eType, bezier.dOutTime, bezier.dOutValue) = std::make_tuple(Prm::InterpolationBezier, 3.0, 7.0);
    parameter.vSetInterpolationData(bezier, 1);

    Bsc::CompositeCommand composite;
    parameter.createKeyframeDeletion(10.0f, composite);
    parameter.createKeyframeDeletion(12.0f, composite); // no key: skipped for good
    EXPECT_EQ(composite.size(), 2u);
    composite.doIt();
    EXPECT_EQ(parameter.keyframeCount(), 2u);

    parameter.vSetValue(1.0, 12.0f);
    composite.undoIt();
    EXPECT_EQ(parameter.keyframeCount(), 4u);
    EXPECT_TRUE(parameter.bKeyframeAt(12.0f));
    EXPECT_EQ(parameter.value(10.0f, nullptr), 10.0);
    // iAddKeyframe's kind: that of the segment it splits, linear here; the handles are gone.
    EXPECT_EQ(parameter.interpolation(1u), Prm::InterpolationLinear);
    EXPECT_NE(parameter.interpolationData(1).dOutValue, 7.0);
}

TEST(EditKey, DeleteAllGoesKeyByKeyAndLosesTheStaticValue)
{
    Curve parameter = curve();
    EXPECT_EQ(parameter.staticValue(), 0.5);
    ChangeRecorder rec(parameter);

    Bsc::CompositeCommand composite;
    parameter.vDeleteAllKeyframesCommand(composite);
    composite.doIt();
    EXPECT_EQ(parameter.keyframeCount(), 0u);
    EXPECT_EQ(std::count_if(rec.events.begin(), rec.events.end(),
                            [](auto const& event) { return event.first == Prm::ParameterChange::AllKeyframesDeleted; }),
              0);
    // The last key went alone, so its value became the static value.
    EXPECT_EQ(parameter.staticValue(), 0.0);
    EXPECT_EQ(parameter.value(100.0f, nullptr), 0.0);

    composite.undoIt();
    EXPECT_EQ(keysOf(parameter), (Keys<Curve>{{0.0f, 0.0}, {10.0f, 10.0}, {20.0f, 0.0}}));
    EXPECT_EQ(parameter.staticValue(), 0.0);

    // The keys recorded at the first run are deleted again, and a key added since stays.
    parameter.vSetValue(4.0, 30.0f);
    composite.doIt();
    EXPECT_EQ(parameter.keyframeCount(), 1u);
    EXPECT_TRUE(parameter.bKeyframeAt(30.0f));

    Curve empty = curveOf({});
    Bsc::CompositeCommand emptyComposite;
    empty.vDeleteAllKeyframesCommand(emptyComposite);
    emptyComposite.doIt();
    emptyComposite.undoIt();
    EXPECT_EQ(empty.keyframeCount(), 0u);
    EXPECT_EQ(empty.staticValue(), 0.5);
}

TEST(EditKey, ResetEditNeverChangesTheValue)
{
    Curve withKey = curve();
    Curve between = curve();
    Curve flat(false, "Flat", 0.5, -1.0, 1.0, Prm::InterpolationLinear, Prm::ExtrapolationHold);
    Curve unkeyed = curveOf({});
    Bsc::CompositeCommand composite;
    withKey.vResetCommand(10.0f, composite);
    between.vResetCommand(5.0f, composite);
    flat.vResetCommand(2.0f, composite);
    unkeyed.vResetCommand(2.0f, composite);
    composite.doIt();
    EXPECT_EQ(between.keyframeCount(), 3u);
    EXPECT_EQ(flat.staticValue(), 0.5);
    EXPECT_EQ(unkeyed.keyframeCount(), 0u);

    flat.vSetValue(0.25, 0.0f);
    composite.undoIt();
    EXPECT_EQ(withKey.keyframeCount(), 3u);
    EXPECT_EQ(withKey.value(10.0f, nullptr), 10.0);
    ASSERT_EQ(between.keyframeCount(), 4u);
    EXPECT_EQ(between.keyframeValue(1), 5.0);
    EXPECT_EQ(flat.staticValue(), 0.5);
    // Keyframed without keys: the undo writes the old value at time 0, which makes a key there.
    EXPECT_EQ(keysOf(unkeyed), (Keys<Curve>{{0.0f, 0.5}}));

    composite.doIt(); // removes the key its undo added
    EXPECT_EQ(between.keyframeCount(), 3u);
}

TEST(EditKey, MoveIsOneShotAndReadsTheOldValueWhenMade)
{
    Curve parameter = curve();
    Bsc::CompositeCommand composite;
    parameter.moveKeyframeAsDoubleCommand(500.0, 10.0f, 15.0f, composite);
    parameter.vSetValue(12.0, 10.0f); // after making: the edit already holds 10
    composite.doIt();
    EXPECT_FALSE(parameter.bKeyframeAt(10.0f));
    EXPECT_EQ(parameter.value(15.0f, nullptr), 100.0); // limited when made
    composite.undoIt();
    EXPECT_TRUE(parameter.bKeyframeAt(10.0f));
    EXPECT_EQ(parameter.value(10.0f, nullptr), 10.0);
    composite.doIt();
    EXPECT_TRUE(parameter.bKeyframeAt(10.0f));
    EXPECT_FALSE(parameter.bKeyframeAt(15.0f));
    composite.undoIt(); // undo works every time
    EXPECT_EQ(parameter.value(10.0f, nullptr), 10.0);
}
