#include "prm/Fixtures.h"
#include "bsc/Command.h"
#include "prm/NumericParameter.h"
#include "prm/Parameter.h"

#include <gtest/gtest.h>

namespace {

Curve curve(char const* name, double first, double last)
{
    return curveOf({{0.0f, first}, {10.0f, last}}, name);
}

} // namespace

TEST(EditConstraint, FollowersGetTheirOwnKeysAndStaticValueBackOnUndo)
{
    Curve master = curve("Master", 0.0, 10.0);
    Curve slave = curve("Slave", 50.0, 60.0);
    slave.vSetExtrapolationAfter(Prm::ExtrapolationLinear);

    Prm::Parameter<int> plainMaster(true, "Master", 1, Prm::InterpolationStep, Prm::ExtrapolationHold);
    Prm::Parameter<int> plain(false, "Plain", 7, Prm::InterpolationStep, Prm::ExtrapolationHold);

    Bsc::CompositeCommand composite;
    EXPECT_EQ(&master.bAddConstrainedParameterCommand(&slave, composite), &composite);
    plainMaster.bAddConstrainedParameterCommand(&plain, composite);
    EXPECT_EQ(slave.master(), nullptr);
    composite.doIt();
    EXPECT_EQ(slave.master(), &master);
    EXPECT_EQ(slave.value(5.0f, nullptr), 5.0);
    EXPECT_EQ(plain.value(0.0f, nullptr), 1);

    // Writes while constrained land in the slave's own store, and undo replaces them.
    slave.vSetValue(99.0, 5.0f);
    EXPECT_EQ(slave.value(5.0f, nullptr), 5.0);
    plain.vSetValue(3, 0.0f);
    composite.undoIt();
    EXPECT_EQ(slave.master(), nullptr);
    ASSERT_EQ(slave.keyframeCount(), 2u);
    EXPECT_EQ(slave.value(5.0f, nullptr), 55.0);
    EXPECT_EQ(slave.extrapolationAfter(), Prm::ExtrapolationLinear);
    EXPECT_EQ(plain.value(0.0f, nullptr), 7); // and a static follower its static value
    EXPECT_FALSE(plain.isKeyframed());

    composite.doIt();
    EXPECT_EQ(slave.master(), &master);
    composite.undoIt();
    EXPECT_EQ(slave.value(5.0f, nullptr), 55.0);
}

TEST(EditConstraint, RefusedConstraintsAndCyclesLeaveEverythingAlone)
{
    Curve a = curve("A", 1.0, 1.0);
    Curve b = curve("B", 2.0, 2.0);
    Curve c = curve("C", 3.0, 3.0);
    Prm::NumericParameter<float> otherType(true, "Other", 2.0f, 0.0f, 5.0f, Prm::InterpolationLinear,
                                           Prm::ExtrapolationHold);
    Bsc::CompositeCommand composite;
    a.bAddConstrainedParameterCommand(&otherType, composite);
    a.bAddConstrainedParameterCommand(nullptr, composite);
    a.bAddConstrainedParameterCommand(&a, composite);
    a.bAddConstrainedParameterCommand(&b, composite); // b follows a
    b.bAddConstrainedParameterCommand(&c, composite); // c follows b
    c.bAddConstrainedParameterCommand(&a, composite); // a would follow c: refused
    composite.doIt();
    EXPECT_EQ(otherType.master(), nullptr);
    EXPECT_EQ(a.master(), nullptr);
    EXPECT_EQ(c.master(), &b);
    EXPECT_EQ(c.value(5.0f, nullptr), 1.0); // the end of the chain reads the root
    EXPECT_EQ(a.value(5.0f, nullptr), 1.0);

    composite.undoIt();
    EXPECT_EQ(b.master(), nullptr);
    EXPECT_EQ(c.master(), nullptr);
    EXPECT_EQ(c.value(5.0f, nullptr), 3.0);
    EXPECT_EQ(otherType.staticValue(), 2.0f);
}

TEST(EditConstraint, UnconstrainAndRemoveCommandsUndo)
{
    Curve master = curve("Master", 0.0, 10.0);
    Curve slave = curve("Slave", 50.0, 60.0);
    ASSERT_TRUE(master.bAddConstrainedParameter(&slave));

    Bsc::CompositeCommand unconstrain;
    slave.bUnconstrainCommand(unconstrain);
    EXPECT_EQ(unconstrain.size(), 1u);
    EXPECT_EQ(slave.master(), &master);
    unconstrain.doIt();
    EXPECT_EQ(slave.master(), nullptr);
    EXPECT_EQ(slave.value(5.0f, nullptr), 55.0);
    unconstrain.undoIt();
    EXPECT_EQ(slave.master(), &master);
    EXPECT_EQ(slave.value(5.0f, nullptr), 5.0);

    Bsc::CompositeCommand remove;
    master.bRemoveConstrainedParameterCommand(&slave, remove);
    EXPECT_EQ(remove.size(), 1u);
    remove.doIt();
    EXPECT_EQ(slave.master(), nullptr);
    remove.undoIt();
    EXPECT_EQ(slave.master(), &master);

    // Removing a parameter that follows someone else touches nothing.
    Curve stranger = curve("Stranger", 0.0, 0.0);
    Bsc::CompositeCommand removeOther;
    stranger.bRemoveConstrainedParameterCommand(&slave, removeOther);
    removeOther.doIt();
    EXPECT_EQ(slave.master(), &master);
    removeOther.undoIt();
    EXPECT_EQ(slave.master(), &master);
}
