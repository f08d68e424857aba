#include "prm/Fixtures.h"
#include "bsc/Command.h"
#include "prm/NumericParameter.h"
#include "prm/Parameter.h"

#include <tuple>

using namespace Prm;

namespace {

Keys<Curve> const threeKeys{{0.0f, 0.0}, {10.0f, 10.0}, {20.0f, 0.0}};

/// Edits of a keyed curve p and a second one q, keyed without keys, checked by their states joined by " / ".
struct EditRow {
    char const* what;
    void (*make)(Curve& p, Curve& q, Bsc::CompositeCommand& c);
    void (*meddle)(Curve& p, Curve& q); // runs before step `meddleStep`: a change the edits do not make
    std::size_t meddleStep;
    char const* actions;
    std::vector<std::string> states;
};

constexpr char const* start = "0.5 | 0:0L 10:10L 20:0L / 0.5 |";

EditRow const editRows[] = {
    {"value edits: a new key, an existing one, the first key", [](Curve& p, Curve& q, Bsc::CompositeCommand& c) {
         p.vSetValueCommand(50.0, 5.0f, c);
         q.vSetValueCommand(0.75, 3.0f, p.vSetValueCommand(7.0, 10.0f, c));
     }, nullptr, 0, "-dudu", {start, "0.5 | 0:0L 5:50L 10:7L 20:0L / 0.5 | 3:0.75L", start,
                              "0.5 | 0:0L 5:50L 10:7L 20:0L / 0.5 | 3:0.75L", start}},
    {"value edits record when run, the first run only", [](Curve& p, Curve&, Bsc::CompositeCommand& c) {
         p.vSetValueCommand(2.0, 10.0f, c);
         p.vSetValueCommand(3.0, 10.0f, c);
         p.vSetValue(9.0, 10.0f);
     }, [](Curve& p, Curve&) { p.vSetValue(5.0, 10.0f); }, 3, "-dudu",
     {"0.5 | 0:0L 10:9L 20:0L / 0.5 |", "0.5 | 0:0L 10:3L 20:0L / 0.5 |", "0.5 | 0:0L 10:9L 20:0L / 0.5 |",
      "0.5 | 0:0L 10:3L 20:0L / 0.5 |", "0.5 | 0:0L 10:9L 20:0L / 0.5 |"}},
    {"an added key takes the curve value; one at a key is skipped, a follower's is none, yet its undo deletes",
     [](Curve& p, Curve& q, Bsc::CompositeCommand& c) {
         p.bAddConstrainedParameter(&q);
         p.vAddKeyframeCommand(5.0f, c);
         p.vAddKeyframeCommand(10.0f, c);
         q.vAddKeyframeCommand(5.0f, c);
     }, [](Curve&, Curve& q) { q.vSetValue(3.0, 5.0f); }, 2, "-dud",
     {start, "0.5 | 0:0L 5:5L 10:10L 20:0L / 0.5 |", "0.5 | 0:0L 10:10L 20:0L / 3 |",
      "0.5 | 0:0L 5:5L 10:10L 20:0L / 3 |"}},
    {"a deleted key comes back as iAddKeyframe makes it, without its handles; one not there is skipped for good",
     [](Curve& p, Curve&, Bsc::CompositeCommand& c) {
         p.vSetInterpolation(InterpolationBezier, 10.0f);
         p.createKeyframeDeletion(10.0f, c);
         p.createKeyframeDeletion(12.0f, c);
     }, [](Curve& p, Curve&) { p.vSetValue(1.0, 12.0f); }, 2, "-du",
     {"0.5 | 0:0L 10:10B 20:0L / 0.5 |", "0.5 | 0:0L 20:0L / 0.5 |", "0.5 | 0:0L 10:10L 12:1L 20:0L / 0.5 |"}},
    {"delete all goes key by key, so the last value stays static; a rerun deletes the keys it recorded",
     [](Curve& p, Curve& q, Bsc::CompositeCommand& c) { q.vDeleteAllKeyframesCommand(p.vDeleteAllKeyframesCommand(c)); },
     [](Curve& p, Curve&) { p.vSetValue(4.0, 30.0f); }, 3, "-dud",
     {start, "0 | / 0.5 |", "0 | 0:0L 10:10L 20:0L / 0.5 |", "0 | 30:4L / 0.5 |"}},
    {"reset edits change nothing; undo writes the old value, at time 0 where there are no keys",
     [](Curve& p, Curve& q, Bsc::CompositeCommand& c) { q.vResetCommand(2.0f, p.vResetCommand(10.0f, c)); },
     nullptr, 0, "-dud", {start, start, start + std::string(" 0:0.5L"), start + std::string(" 0:0.5L")}},
    {"a reset edit between keys: its undo adds a key that the next run removes",
     [](Curve& p, Curve&, Bsc::CompositeCommand& c) { p.vResetCommand(5.0f, c); }, nullptr, 0, "-dud",
     {start, start, "0.5 | 0:0L 5:5L 10:10L 20:0L / 0.5 |", start}},
    {"a move reads the old value and limits the new one when made, and runs once; its undo every time",
     [](Curve& p, Curve&, Bsc::CompositeCommand& c) {
         p.moveKeyframeAsDoubleCommand(500.0, 10.0f, 15.0f, c);
         p.vSetValue(12.0, 10.0f);
     }, nullptr, 0, "-dudu", {"0.5 | 0:0L 10:12L 20:0L / 0.5 |", "0.5 | 0:0L 15:100L 20:0L / 0.5 |", start, start,
                              start}},
};

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

TEST(ParameterEdit, KeyAndValueEditsRunAndUndoAsTheTableSays)
{
    for (EditRow const& row : editRows) {
        SCOPED_TRACE(row.what);
        Curve p = curveOf(threeKeys);
        Curve q = curveOf({}, "Q");
        Bsc::CompositeCommand c;
        row.make(p, q, c);
        for (std::size_t i = 0; i < row.states.size(); ++i) {
            if (row.meddle && i == row.meddleStep)
                row.meddle(p, q);
            vRun(c, row.actions + i, {row.states[i]}, p, q);
        }
    }
}

TEST(ParameterEdit, StaticValuesAndDefaultsComeBackAndValuesAreLimitedWhenRun)
{
    Curve flat(false, "Flat", 0.25, 0.0, 1.0, InterpolationLinear, ExtrapolationHold);
    Parameter<QString> name(true, "Name", QString("static"), InterpolationStep, ExtrapolationHold);
    Bsc::CompositeCommand set, reset;
    EXPECT_EQ(&flat.vSetValueCommand(0.75, 3.0f, set), &set);
    vRun(set, "du", {"0.75 |", "0.25 |"}, flat);
    name.vSetDefaultValueCommand("new", flat.vResetCommand(2.0f, reset));
    reset.doIt();
    EXPECT_EQ(std::make_pair(state(flat), name.defaultValue()), std::make_pair(std::string("0.25 |"), QString("new")));
    flat.vSetValue(0.5, 0.0f);
    reset.undoIt();
    EXPECT_EQ(std::make_pair(state(flat), name.defaultValue()), std::make_pair(std::string("0.25 |"), QString("static")));

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
    Curve p = curveOf(threeKeys);
    Bsc::CompositeCommand c;
    p.vSetInterpolationCommand(InterpolationStep, 10.0f, c);
    IType bezier = p.interpolationData(0);
    std::tie(bezier.eType, bezier.dOutTime, bezier.dOutValue) = std::make_tuple(InterpolationBezier, 2.0, 4.0);
    p.vSetInterpolationDataCommand(bezier, 0, c);
    p.vSetExtrapolationBeforeCommand(ExtrapolationLinear, c);
    // A rule of its own per end, so that an edit of the wrong end shows.
    p.vSetExtrapolationAfterCommand(ExtrapolationCustomFirst, c);
    p.vSetInterpolationCommand(InterpolationStep, 15.0f, c); // no key there
    vRun(c, "-du", {"0.5 | 0:0L 10:10L 20:0L", "0.5 | 0:0B 10:10S 20:0L", "0.5 | 0:0L 10:10L 20:0L"}, p);
    EXPECT_EQ(std::make_pair(p.extrapolationBefore(), p.extrapolationAfter()),
              std::make_pair(ExtrapolationHold, ExtrapolationHold));
    c.doIt();
    EXPECT_EQ(std::make_pair(p.extrapolationBefore(), p.extrapolationAfter()),
              std::make_pair(ExtrapolationLinear, ExtrapolationCustomFirst));
    EXPECT_EQ(std::make_pair(p.interpolationData(0).dOutTime, p.interpolationData(0).dOutValue),
              std::make_pair(2.0, 4.0));
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
    c.undoIt();
    EXPECT_TRUE(!b.master() && !s.master());

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
