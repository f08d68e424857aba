#include "Fixtures.h"
#include "bsc/AbstractData.h"
#include "prm/NumericParameter.h"

#include <memory>

using namespace Prm;

TEST(MasterAndRaw, FollowerReadsItsMasterUntilTheMasterGoes)
{
    auto master = std::make_unique<Curve>(curveOf({{0.0f, 10.0}, {10.0f, 20.0}}, "Master"));
    master->vSetExtrapolationAfter(ExtrapolationLinear);
    Curve follower(true, "Follower", 7.0, 0.0, 15.0, InterpolationStep, ExtrapolationHold);
    ASSERT_TRUE(master->bAddConstrainedParameter(&follower));
    EXPECT_EQ(follower.master(), master.get());
    EXPECT_EQ(follower.qstrMasterParameterId(), "Master");
    EXPECT_EQ(master->constrainedParameters().size(), 1);
    // Reads go to the master, then the follower's own clamp; writes and key queries to its own store.
    EXPECT_EQ(follower.vSetValue(3.0, 1.0f), 0);
    expectReads(follower, {{8.0f, 15.0}, {2.0f, 12.0}, {1.0f, 11.0}});
    EXPECT_EQ(state(follower), "7 | 1:3S");
    EXPECT_EQ(std::make_pair(follower.extrapolationAfter(), follower.interpolation(5.0f)),
              std::make_pair(ExtrapolationLinear, InterpolationLinear));
    Bsc::AbstractData raw;
    follower.rawValue(8.0f, raw);
    ASSERT_NE(raw.get<double>(), nullptr);
    EXPECT_EQ(*raw.get<double>(), 18.0); // the master's, unclamped by the follower

    master.reset();
    EXPECT_EQ(follower.master(), nullptr);
    expectReads(follower, {{1.0f, 3.0}});
    EXPECT_EQ(follower.extrapolationAfter(), ExtrapolationHold);
    EXPECT_FALSE(follower.bUnconstrain()); // nothing left to follow
}

TEST(MasterAndRaw, ConstraintsRefuseBadFollowersAndCycles)
{
    Parameter<int> a(true, "A"), b(true, "B"), c(true, "C"), d(true, "D");
    Parameter<float> other(true, "Other");
    EXPECT_FALSE(a.bAddConstrainedParameter(nullptr) || a.bAddConstrainedParameter(&a) ||
                 a.bAddConstrainedParameter(&other));
    ASSERT_TRUE(a.bAddConstrainedParameter(&b) && b.bAddConstrainedParameter(&c)); // c follows b follows a
    EXPECT_FALSE(c.bAddConstrainedParameter(&a) || b.bAddConstrainedParameter(&a)); // cycles
    EXPECT_TRUE(a.setMasterParameter(&c, QStringLiteral("X.C"))); // refused silently, the name is kept
    EXPECT_EQ(a.master(), nullptr);
    EXPECT_EQ(a.qstrMasterParameterId(), "X.C");
    a.vSetValue(4, 0.0f);
    EXPECT_EQ(c.value(0.0f, nullptr), 4); // through b to a, and no further

    // Moving a follower to another master leaves the first one's list.
    ASSERT_TRUE(d.bAddConstrainedParameter(&c));
    EXPECT_TRUE(b.constrainedParameters().isEmpty());
    EXPECT_TRUE(c.bUnconstrain());
    EXPECT_EQ(c.master(), nullptr);
    EXPECT_TRUE(c.qstrMasterParameterId().isEmpty() && d.constrainedParameters().isEmpty());
}

TEST(MasterAndRaw, RawAccessChecksTheExactType)
{
    Parameter<int> keyed(true, "K", 1, InterpolationStep, ExtrapolationHold);
    Parameter<int> flat(false, "F", 1, InterpolationStep, ExtrapolationHold);
    ChangeRecorder rec(flat);
    EXPECT_EQ(*keyed.tRawValueType(), typeid(int));
    EXPECT_EQ(keyed.vSetRawValue(Bsc::AbstractData::make<float>(2.0f), 0.0f), -1);
    EXPECT_EQ(keyed.vSetRawValue(Bsc::AbstractData(), 0.0f), -1);
    Bsc::AbstractData const right = Bsc::AbstractData::make<int>(5);
    EXPECT_EQ(keyed.vSetRawValue(right, 3.0f), 0);
    EXPECT_EQ(state(keyed), "1 | 3:5S");
    EXPECT_EQ(flat.vSetRawValue(right, 3.0f), -1);
    EXPECT_EQ(flat.staticValue(), 5);
    EXPECT_EQ(rec.events, (Events{{ParameterChange::StaticValueChanged, 0}}));
    NumericParameter<double> limited(false, "L", 0.0, 0.0, 1.0, InterpolationStep, ExtrapolationHold);
    limited.vSetRawValue(Bsc::AbstractData::make<double>(9.0), 0.0f);
    EXPECT_EQ(limited.staticValue(), 9.0); // the static raw path does not clamp

    Parameter<QString> text(false, "T", QStringLiteral("hello"), InterpolationStep, ExtrapolationHold);
    Bsc::AbstractData out, copy;
    text.rawValue(0.0f, out);
    copy = out;
    ASSERT_NE(copy.get<QString>(), nullptr);
    EXPECT_EQ(*copy.get<QString>(), "hello");
    keyed.rawValue(3.0f, out); // replaces the held string through its destroy function
    EXPECT_EQ(*out.get<int>(), 5);
}
