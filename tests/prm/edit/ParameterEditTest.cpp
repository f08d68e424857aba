#include "prm/Fixtures.h"
#include "bsc/Command.h"
#include "prm/NumericParameter.h"
#include "prm/Parameter.h"

#include <algorithm>
#include <tuple>

using namespace Prm;

namespace {

Curve curve()
{
    return curveOf({{0.0f, 0.0}, {10.0f, 10.0}, {20.0f, 0.0}});
}

/// Runs one action per character of `actions` ('d' doIt, 'u' undoIt, '-' none), expecting after each the
/// states of `parameters` joined by " / ".
template <class... P>
void vRun(Bsc::CompositeCommand& composite, char const* actions, std::vector<std::string> const& states,
          P const&... parameters)
{
    for (std::size_t i = 0; i < states.size(); ++i) {
        if (actions[i] != '-')
            actions[i] == 'd' ? composite.doIt() : composite.undoIt();
        std::string joined;
        ((joined += (joined.empty() ? "" : " / ") + state(parameters)), ...);
        EXPECT_EQ(joined, states[i]) << "step " << i << " of " << actions;
    }
}

} // namespace

TEST(ParameterEdit, ValueEditsApplyWhenRunAndGiveTheOldValuesBack)
{
    Curve p = curveOf({{0.0f, 0.0}, {10.0f, 10.0}});
    Curve flat(false, "Flat", 0.25, 0.0, 1.0, InterpolationLinear, ExtrapolationHold);
    Parameter<QString> name(true, "Name", QString("static"), InterpolationStep, ExtrapolationHold);
    Bsc::CompositeCommand c;
    EXPECT_EQ(&p.vSetValueCommand(50.0, 5.0f, c), &c);
    p.vSetValueCommand(7.0, 10.0f, c);
    flat.vSetValueCommand(0.75, 3.0f, c);
    name.vSetValueCommand("first", 1.0f, c);
    name.vSetDefaultValueCommand("new", c);
    vRun(c, "-dudu",
         {"0.5 | 0:0L 10:10L / 0.25 | / static |", "0.5 | 0:0L 5:50L 10:7L / 0.75 | / static | 1:firstS",
          "0.5 | 0:0L 10:10L / 0.25 | / static |", "0.5 | 0:0L 5:50L 10:7L / 0.75 | / static | 1:firstS",
          "0.5 | 0:0L 10:10L / 0.25 | / static |"},
         p, flat, name);
    EXPECT_EQ(name.defaultValue(), "static");
    c.doIt();
    EXPECT_EQ(name.defaultValue(), "new");
}

TEST(ParameterEdit, ValueEditsRecordWhenRunAndLimitThen)
{
    Curve p = curveOf({{4.0f, 1.0}});
    Bsc::CompositeCommand c;
    p.vSetValueCommand(2.0, 4.0f, c);
    p.vSetValueCommand(3.0, 4.0f, c);
    p.vSetValue(9.0, 4.0f); // after making, before running: this is what the first edit records
    vRun(c, "-du", {"0.5 | 4:9L", "0.5 | 4:3L", "0.5 | 4:9L"}, p);
    p.vSetValue(5.0, 4.0f); // a second run applies again from the first record
    vRun(c, "du", {"0.5 | 4:3L", "0.5 | 4:9L"}, p);

    NumericParameter<int> count(true, "Count", 0, 0, 5, InterpolationStep, ExtrapolationHold);
    NumericParameter<bool> flag(true, "Flag", false, false, true, InterpolationStep, ExtrapolationHold);
    Bsc::CompositeCommand limited;
    count.vSetValueCommand(9, 1.0f, limited);
    for (auto const& row : {std::make_pair(7.9, 2.0f), {3.9, 3.0f}, {-2.5, 4.0f}})
        count.vSetDoubleValueCommand(row.first, row.second, limited);
    flag.vSetDoubleValueCommand(0.5, 0.0f, limited);
    vRun(limited, "du", {"0 | 1:5S 2:5S 3:3S 4:0S / 0 | 0:1S", "0 | / 0 |"}, count, flag);
}

TEST(ParameterEdit, InterpolationAndExtrapolationEditsUndo)
{
    Curve p = curve();
    Bsc::CompositeCommand c;
    p.vSetInterpolationCommand(InterpolationStep, 10.0f, c);
    IType bezier = p.interpolationData(0);
    std::tie(bezier.eType, bezier.dOutTime, bezier.dOutValue) = std::make_tuple(InterpolationBezier, 2.0, 4.0);
    p.vSetInterpolationDataCommand(bezier, 0, c);
    p.vSetExtrapolationBeforeCommand(ExtrapolationLinear, c);
    // A rule of its own per end, so that an edit of the wrong end shows.
    p.vSetExtrapolationAfterCommand(ExtrapolationCustomFirst, c);
    p.vSetInterpolationCommand(InterpolationStep, 15.0f, c); // no key there
    EXPECT_EQ(c.size(), 5u);
    vRun(c, "-du", {"0.5 | 0:0L 10:10L 20:0L", "0.5 | 0:0B 10:10S 20:0L", "0.5 | 0:0L 10:10L 20:0L"}, p);
    EXPECT_EQ(std::make_pair(p.extrapolationBefore(), p.extrapolationAfter()),
              std::make_pair(ExtrapolationHold, ExtrapolationHold));
    c.doIt();
    EXPECT_EQ(std::make_pair(p.extrapolationBefore(), p.extrapolationAfter()),
              std::make_pair(ExtrapolationLinear, ExtrapolationCustomFirst));
    EXPECT_EQ(std::make_pair(p.interpolationData(0).dOutTime, p.interpolationData(0).dOutValue),
              std::make_pair(2.0, 4.0));
}

TEST(ParameterEdit, AddKeyTakesTheCurveValueSkipsAnExistingKeyAndGivesAFollowerNone)
{
    Curve p = curve();
    Curve slave = curveOf({}, "Slave");
    ASSERT_TRUE(p.bAddConstrainedParameter(&slave));
    Bsc::CompositeCommand c;
    p.vAddKeyframeCommand(5.0f, c);
    p.vAddKeyframeCommand(10.0f, c); // skipped: its undo leaves the key at 10 alone
    slave.vAddKeyframeCommand(5.0f, c);
    vRun(c, "-d", {"0.5 | 0:0L 10:10L 20:0L / 0.5 |", "0.5 | 0:0L 5:5L 10:10L 20:0L / 0.5 |"}, p, slave);
    slave.vSetValue(3.0, 5.0f); // a key of the follower's own: its undo still deletes it, leaving its value
    vRun(c, "ud", {"0.5 | 0:0L 10:10L 20:0L / 3 |", "0.5 | 0:0L 5:5L 10:10L 20:0L / 3 |"}, p, slave);
}

TEST(ParameterEdit, DeletedKeyComesBackWithoutItsHandles)
{
    Curve p = curve();
    IType bezier = p.interpolationData(1);
    std::tie(bezier.eType, bezier.dOutTime, bezier.dOutValue) = std::make_tuple(InterpolationBezier, 3.0, 7.0);
    p.vSetInterpolationData(bezier, 1);
    Bsc::CompositeCommand c;
    p.createKeyframeDeletion(10.0f, c);
    p.createKeyframeDeletion(12.0f, c); // no key: skipped for good
    EXPECT_EQ(c.size(), 2u);
    vRun(c, "-d", {"0.5 | 0:0L 10:10B 20:0L", "0.5 | 0:0L 20:0L"}, p);
    p.vSetValue(1.0, 12.0f);
    // iAddKeyframe's kind: that of the segment it splits; the handles are gone.
    vRun(c, "u", {"0.5 | 0:0L 10:10L 12:1L 20:0L"}, p);
    EXPECT_NE(p.interpolationData(1).dOutValue, 7.0);
}

TEST(ParameterEdit, DeleteAllGoesKeyByKeyAndLosesTheStaticValue)
{
    Curve p = curve();
    Curve empty = curveOf({});
    ChangeRecorder rec(p);
    Bsc::CompositeCommand c;
    p.vDeleteAllKeyframesCommand(c);
    empty.vDeleteAllKeyframesCommand(c);
    // The last key went alone, so its value became the static value.
    vRun(c, "du", {"0 | / 0.5 |", "0 | 0:0L 10:10L 20:0L / 0.5 |"}, p, empty);
    EXPECT_TRUE(std::none_of(rec.events.begin(), rec.events.end(), [](ChangeRecorder::Event const& event) {
        return event.first == ParameterChange::AllKeyframesDeleted;
    }));
    p.vSetValue(4.0, 30.0f); // the keys recorded at the first run are deleted again; one added since stays
    vRun(c, "d", {"0 | 30:4L / 0.5 |"}, p, empty);
}

TEST(ParameterEdit, ResetEditNeverChangesTheValue)
{
    Curve withKey = curve();
    Curve between = curve();
    Curve flat(false, "Flat", 0.5, -1.0, 1.0, InterpolationLinear, ExtrapolationHold);
    Curve unkeyed = curveOf({});
    Bsc::CompositeCommand c;
    withKey.vResetCommand(10.0f, c);
    between.vResetCommand(5.0f, c);
    flat.vResetCommand(2.0f, c);
    unkeyed.vResetCommand(2.0f, c);
    std::string const unchanged = "0.5 | 0:0L 10:10L 20:0L / 0.5 | 0:0L 10:10L 20:0L / 0.5 | / 0.5 |";
    vRun(c, "d", {unchanged}, withKey, between, flat, unkeyed);
    flat.vSetValue(0.25, 0.0f);
    // Undo writes the old value: a key between keys, and at time 0 on a keyframed one without keys. The
    // next run removes the key between keys again.
    vRun(c, "ud",
         {"0.5 | 0:0L 10:10L 20:0L / 0.5 | 0:0L 5:5L 10:10L 20:0L / 0.5 | / 0.5 | 0:0.5L", unchanged + " 0:0.5L"},
         withKey, between, flat, unkeyed);
}

TEST(ParameterEdit, MoveIsOneShotAndReadsTheOldValueWhenMade)
{
    Curve p = curve();
    Bsc::CompositeCommand c;
    p.moveKeyframeAsDoubleCommand(500.0, 10.0f, 15.0f, c);
    p.vSetValue(12.0, 10.0f); // after making: the edit already holds 10, and 500 limited
    vRun(c, "dudu", {"0.5 | 0:0L 15:100L 20:0L", "0.5 | 0:0L 10:10L 20:0L", "0.5 | 0:0L 10:10L 20:0L",
                     "0.5 | 0:0L 10:10L 20:0L"},
         p);
}

TEST(ParameterEdit, FollowersGetTheirOwnKeysAndStaticValueBackOnUndo)
{
    Curve master = curveOf({{0.0f, 0.0}, {10.0f, 10.0}}, "Master");
    Curve slave = curveOf({{0.0f, 50.0}, {10.0f, 60.0}}, "Slave");
    slave.vSetExtrapolationAfter(ExtrapolationLinear);
    Parameter<int> plainMaster(true, "Master", 1, InterpolationStep, ExtrapolationHold);
    Parameter<int> plain(false, "Plain", 7, InterpolationStep, ExtrapolationHold);
    Bsc::CompositeCommand c;
    EXPECT_EQ(&master.bAddConstrainedParameterCommand(&slave, c), &c);
    plainMaster.bAddConstrainedParameterCommand(&plain, c);
    EXPECT_EQ(slave.master(), nullptr);
    for (int pass = 0; pass < 2; ++pass) {
        c.doIt();
        EXPECT_EQ(slave.master(), &master);
        EXPECT_EQ(std::make_pair(slave.value(5.0f, nullptr), plain.value(0.0f, nullptr)), std::make_pair(5.0, 1));
        slave.vSetValue(99.0, 5.0f); // writes while constrained land in the follower's own store
        plain.vSetValue(3, 0.0f);
        c.undoIt();
        EXPECT_EQ(slave.master(), nullptr);
        EXPECT_EQ(state(slave) + " / " + state(plain), "0.5 | 0:50L 10:60L / 7 |");
        EXPECT_EQ(slave.extrapolationAfter(), ExtrapolationLinear);
        EXPECT_FALSE(plain.isKeyframed());
    }
}

TEST(ParameterEdit, RefusedConstraintsLeaveEverythingAloneAndRemovalsUndo)
{
    Curve a = curveOf({{0.0f, 1.0}}, "A");
    Curve b = curveOf({{0.0f, 2.0}}, "B");
    Curve s = curveOf({{0.0f, 3.0}}, "C");
    NumericParameter<float> otherType(true, "Other", 2.0f, 0.0f, 5.0f, InterpolationLinear, ExtrapolationHold);
    Bsc::CompositeCommand c;
    a.bAddConstrainedParameterCommand(&otherType, c);
    a.bAddConstrainedParameterCommand(&b, c); // b follows a
    b.bAddConstrainedParameterCommand(&s, c); // c follows b
    s.bAddConstrainedParameterCommand(&a, c); // a would follow c: refused, and its undo does nothing
    c.doIt();
    EXPECT_TRUE(!otherType.master() && !a.master());
    EXPECT_EQ(s.master(), &b);
    EXPECT_EQ(s.value(5.0f, nullptr), 1.0); // the end of the chain reads the root
    c.undoIt();
    EXPECT_TRUE(!b.master() && !s.master());
    EXPECT_EQ(s.value(5.0f, nullptr), 3.0);

    ASSERT_TRUE(a.bAddConstrainedParameter(&s));
    Bsc::CompositeCommand unconstrain, remove, removeOther;
    s.bUnconstrainCommand(unconstrain);
    a.bRemoveConstrainedParameterCommand(&s, remove);
    b.bRemoveConstrainedParameterCommand(&s, removeOther); // s follows someone else: nothing happens
    EXPECT_EQ(unconstrain.size() + remove.size(), 2u);
    for (Bsc::CompositeCommand* command : {&unconstrain, &remove, &removeOther}) {
        EXPECT_EQ(s.master(), &a);
        command->doIt();
        EXPECT_EQ(s.master(), command == &removeOther ? &a : nullptr);
        command->undoIt();
        EXPECT_EQ(s.value(5.0f, nullptr), 1.0);
    }
}
