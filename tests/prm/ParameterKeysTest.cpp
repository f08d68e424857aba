#include "Fixtures.h"
#include "prm/NumericParameter.h"
#include "prm/Parameter.h"

#include <cmath>
#include <cstring>
#include <tuple>

using namespace Prm;
using Change = ParameterChange;

namespace {

/// Exposes the record vector, which only the text format and the edits see otherwise.
template <class T>
class ProbeParameter : public NumericParameter<T> {
public:
    ProbeParameter(T value, T minimum, T maximum, Interpolation interpolation, Extrapolation extrapolation)
        : NumericParameter<T>(true, "Probe", value, minimum, maximum, interpolation, extrapolation) {}
    int recordCount() const { return this->interpolationRecords.size(); }
    IType record(int i) const { return this->interpolationRecords[i]; }
    void setStreamingIn(bool b) { this->bStreamingIn = b; }
};

using Probe = ProbeParameter<double>;

Probe linearCurve()
{
    Probe p(0.0, -1000.0, 1000.0, InterpolationLinear, ExtrapolationHold);
    withKeys(p, {{0.0f, 0.0}, {10.0f, 10.0}, {20.0f, 30.0}});
    return p;
}

} // namespace

TEST(ParameterKeys, ConstructorsLeaveRulesUnsetAndCopiesKeepTheHiddenFlag)
{
    Parameter<int> two(true, "Gain");
    EXPECT_EQ(two.qstrDisplayName(), "Gain");
    EXPECT_EQ(two.extrapolationBefore(), ExtrapolationUnset);
    EXPECT_EQ(two.interpolation(0.0f), InterpolationUnset);

    Parameter<bool> none;
    EXPECT_TRUE(none.isKeyframed());
    EXPECT_EQ(none.qstrDisplayName(), "Not Set");
    EXPECT_TRUE(none.qstrScriptName().isEmpty());

    Parameter<float> five(false, "Blur", 2.5f, InterpolationLinear, ExtrapolationLinear);
    EXPECT_EQ(five.extrapolationAfter(), ExtrapolationHold); // not keyframed
    five.hide(true);
    Parameter<float> copy(five);
    EXPECT_TRUE(copy.isHidden());
    EXPECT_EQ(copy.staticValue(), 2.5f);

    // The untyped view's operations sit next to each other in the virtual table (Itanium: 1 + offset).
    auto const slot = [](auto pmf) { std::ptrdiff_t p; std::memcpy(&p, &pmf, sizeof p); return p; };
    EXPECT_EQ(slot(&ParameterWithoutType::vSetExtrapolationBefore) - slot(&ParameterWithoutType::streamInValue),
              std::ptrdiff_t(sizeof(void*)));
}

TEST(ParameterKeys, ReadsAtBetweenAndBeyondKeysOfAPlainParameter)
{
    Parameter<double> p(true, "P", 7.0, InterpolationLinear, ExtrapolationLinear);
    p.vSetDefault(99.0);
    expectReads(p, {{3.0f, 7.0}}); // no keys: the static value, not the default
    withKeys(p, {{0.0f, 1.0}, {10.0f, 5.0}, {20.0f, 2.0}});
    // A plain parameter never interpolates or extrapolates, whatever the records and rules say.
    expectReads(p, {{5.0f, 1.0}, {15.0f, 5.0}, {-5.0f, 1.0}, {50.0f, 2.0}, {10.0f, 5.0}});
    // A key at a NaN time is appended and later keys follow it out of order; the halving search's own
    // probes decide the segment: at 25 it passes 20, then the NaN key, and ends on the NaN key.
    withKeys(p, {{std::nanf(""), 8.0}, {30.0f, 9.0}});
    expectReads(p, {{25.0f, 8.0}, {15.0f, 5.0}});
}

TEST(ParameterKeys, SetValueInsertsInOrderAndSignals)
{
    Parameter<int> p(true, "P", 0, InterpolationStep, ExtrapolationHold);
    ChangeRecorder rec(p);
    EXPECT_EQ(p.vSetValue(5, 10.0f), 0);
    EXPECT_EQ(p.vSetValue(3, 0.0f), 0);
    EXPECT_EQ(p.vSetValue(4, 5.0f), 1);
    EXPECT_EQ(keysOf(p), (Keys<decltype(p)>{{0.0f, 3}, {5.0f, 4}, {10.0f, 5}}));
    ASSERT_EQ(rec.events.size(), 6u);
    EXPECT_EQ(Events(rec.events.begin() + 4, rec.events.end()),
              (Events{{Change::KeyframeAdded, 1}, {Change::ValueChanged, 1}}));

    rec.events.clear();
    EXPECT_EQ(p.vSetValue(8, 5.0f), 1); // same time to the last bit: only ValueChanged
    EXPECT_EQ(rec.events, (Events{{Change::ValueChanged, 1}}));
    EXPECT_EQ(p.vSetValue(9, std::nextafter(5.0f, 6.0f)), 2); // one float step away: a new key
    EXPECT_EQ(p.keyframeCount(), 4u);

    Parameter<int> flat(false, "F", 0, InterpolationStep, ExtrapolationHold);
    ChangeRecorder flatRec(flat);
    EXPECT_EQ(flat.vSetValue(6, 1.0f), -1);
    EXPECT_EQ(flat.staticValue(), 6);
    EXPECT_EQ(flat.keyframeCount(), 0u);
    EXPECT_EQ(flatRec.events, (Events{{Change::ValueChanged, 0xFFFFFFFFu}}));
}

TEST(ParameterKeys, SetValueAndAddKeyframeInheritFromOppositeSides)
{
    Probe p(0.0, -100.0, 100.0, InterpolationLinear, ExtrapolationHold);
    withKeys(p, {{0.0f, 0.0}, {10.0f, 10.0}, {20.0f, 20.0}});
    p.vSetInterpolation(InterpolationStep, 0.0f);
    p.vSetInterpolation(InterpolationBezier, 10.0f);
    // vSetValue between keys 0 and 1 takes the kind of key 1's record.
    EXPECT_EQ(p.interpolation(static_cast<unsigned int>(p.vSetValue(5.0, 5.0f))), InterpolationBezier);
    // iAddKeyframe between keys 2 (Bezier, at 10) and 3 (at 20) takes key 2's record: the split segment.
    p.vSetInterpolation(InterpolationStep, 20.0f);
    ChangeRecorder rec(p);
    EXPECT_EQ(p.iAddKeyframe(15.0f), 3);
    EXPECT_EQ(p.interpolation(3u), InterpolationBezier);
    EXPECT_EQ(rec.events, (Events{{Change::KeyframeAdded, 3}})); // no ValueChanged from iAddKeyframe

    // The first key and keys at the ends inherit the default interpolation.
    EXPECT_EQ(p.interpolation(p.iAddKeyframe(30.0f) + 0u), InterpolationLinear);
    EXPECT_EQ(p.interpolation(p.iAddKeyframe(-5.0f) + 0u), InterpolationLinear);

    rec.events.clear();
    EXPECT_EQ(p.iAddKeyframe(15.0f), -1); // an existing time: nothing happens
    EXPECT_TRUE(rec.events.empty());
    Parameter<int> flat(false, "F");
    EXPECT_EQ(flat.iAddKeyframe(1.0f), -1);

    // An added key keeps the curve where it was.
    Probe q = linearCurve();
    EXPECT_EQ(q.keyframeValue(static_cast<unsigned int>(q.iAddKeyframe(5.0f))), 5.0);
    expectReads(q, {{5.0f, 5.0}, {7.5f, 7.5}});
}

TEST(ParameterKeys, AppendedKeyReinitialisesTheFormerLastRecordExceptWhileStreaming)
{
    Probe p(0.0, -100.0, 100.0, InterpolationBezier, ExtrapolationHold);
    p.vSetValue(0.0, 0.0f);
    EXPECT_EQ(p.record(0).dOutTime, 0.0);
    p.vSetValue(10.0, 10.0f);
    IType const r = p.record(0);
    EXPECT_EQ(std::make_tuple(r.dOutTime, r.dOutValue, r.dInTime, r.dInValue), std::make_tuple(1.0, 1.0, -1.0, -1.0));
    EXPECT_EQ(p.record(1).dOutTime, 0.0); // the new last record starts with zero handles

    p.setStreamingIn(true);
    p.vSetValue(30.0, 20.0f);
    EXPECT_EQ(p.record(1).dOutTime, 0.0);
    p.setStreamingIn(false);

    // A key inserted before another takes a record spanning to it; the record before is left alone.
    p.vSetValue(2.0, 5.0f);
    EXPECT_DOUBLE_EQ(p.record(0).dOutTime, 1.0);
    EXPECT_DOUBLE_EQ(p.record(1).dOutTime, 0.5);
    EXPECT_DOUBLE_EQ(p.record(1).dOutValue, 0.8);
}

TEST(ParameterKeys, GettersOutOfRange)
{
    Probe p = linearCurve();
    EXPECT_EQ(p.keyframeTime(7), 0.0f);
    EXPECT_EQ(p.keyframeValue(7), 30.0);
    EXPECT_EQ(p.interpolation(7u), InterpolationStep);
    EXPECT_EQ(p.interpolationData(7).eType, InterpolationLinear);
    EXPECT_EQ(p.interpolationData(7).dOutTime, 0.0);
    EXPECT_TRUE(p.bKeyframeAt(10.0f));
    EXPECT_FALSE(p.bKeyframeAt(10.5f));
    // interpolation(float): key at t, else the record before the next later key, else the last.
    p.vSetInterpolation(InterpolationStep, 10.0f);
    for (auto const& row : {std::make_pair(10.0f, InterpolationStep), {15.0f, InterpolationStep},
                            {5.0f, InterpolationLinear}, {-5.0f, InterpolationLinear}})
        EXPECT_EQ(p.interpolation(row.first), row.second) << "at " << row.first;

    Parameter<int> flat(false, "F", 3, InterpolationLinear, ExtrapolationLinear);
    EXPECT_EQ(flat.interpolation(1.0f), InterpolationStep);
    EXPECT_EQ(flat.interpolationData(0).eType, InterpolationStep);
    EXPECT_EQ(flat.keyframeValue(0), 3);
    ChangeRecorder rec(flat);
    flat.vSetExtrapolationBefore(ExtrapolationLinear);
    flat.vSetInterpolationData(IType(), 0);
    EXPECT_TRUE(rec.events.empty());
    EXPECT_EQ(flat.extrapolationBefore(), ExtrapolationHold);
}

TEST(ParameterKeys, SearchesAndTheirTieRules)
{
    Probe p = linearCurve(); // keys at 0, 10, 20
    struct Row {
        char const* what;
        bool (Probe::*search)(float, float&) const;
        float from;
        bool bFound;
        float found;
    };
    Row const rows[] = {
        {"nearest, halfway: the later key", &Probe::bNearestKeyframeTime, 5.0f, true, 10.0f},
        {"nearest", &Probe::bNearestKeyframeTime, 4.9f, true, 0.0f},
        {"previous at the first key", &Probe::bPreviousKeyframe, 0.0f, false, -1.0f},
        {"previous", &Probe::bPreviousKeyframe, 10.0f, true, 0.0f},
        {"previous beyond", &Probe::bPreviousKeyframe, 50.0f, true, 20.0f},
        {"next", &Probe::bNextKeyframe, 10.0f, true, 20.0f},
        {"next before", &Probe::bNextKeyframe, -1.0f, true, 0.0f},
        {"next at the last key", &Probe::bNextKeyframe, 20.0f, false, -1.0f},
        {"next beyond: left alone", &Probe::bNextKeyframe, 21.0f, false, -1.0f},
    };
    for (Row const& row : rows) {
        float t = -1.0f;
        EXPECT_EQ((p.*row.search)(row.from, t), row.bFound) << row.what;
        EXPECT_EQ(t, row.found) << row.what;
    }
    unsigned int i = 99;
    EXPECT_TRUE(p.bNearestKeyframeIndex(-3.0f, i));
    EXPECT_EQ(i, 0u);
    EXPECT_TRUE(p.bNearestKeyframeIndex(99.0f, i));
    EXPECT_EQ(i, 2u);

    Parameter<int> empty(true, "E");
    float t = 0.0f;
    EXPECT_FALSE(empty.bNearestKeyframeTime(0.0f, t));
    EXPECT_FALSE(empty.bPreviousKeyframe(0.0f, t));
}

TEST(ParameterKeys, DeletionAndReset)
{
    Probe p(4.0, -100.0, 100.0, InterpolationLinear, ExtrapolationHold);
    p.vSetValue(8.0, 1.0f);
    ChangeRecorder rec(p);
    p.vDeleteKeyframe(2.0f); // no key there
    EXPECT_TRUE(rec.events.empty());
    p.vDeleteKeyframe(1.0f); // the only key: its value stays as the static value
    EXPECT_EQ(p.keyframeCount(), 0u);
    EXPECT_EQ(p.value(50.0f, nullptr), 8.0);
    EXPECT_EQ(rec.events, (Events{{Change::KeyframeDeleted, 0}}));

    withKeys(p, {{0.0f, 1.0}, {5.0f, 2.0}});
    p.vDeleteAllKeyframes(); // the older static value comes back
    EXPECT_EQ(p.value(0.0f, nullptr), 8.0);
    EXPECT_EQ(rec.events.back(), ChangeRecorder::Event(Change::AllKeyframesDeleted, 0));

    withKeys(p, {{0.0f, 1.0}, {5.0f, 2.0}});
    rec.events.clear();
    p.vReset(2.5f); // between keys: nothing at all
    EXPECT_TRUE(rec.events.empty());
    EXPECT_EQ(p.keyframeCount(), 2u);
    p.vReset(5.0f); // at a key: deletes it, the default plays no part
    EXPECT_EQ(p.keyframeCount(), 1u);
    EXPECT_EQ(p.staticValue(), 8.0);
    p.vDeleteAllKeyframes();
    p.vReset(0.0f); // no keys: the default becomes the static value
    EXPECT_EQ(p.staticValue(), 4.0);
    EXPECT_EQ(rec.events.back(), ChangeRecorder::Event(Change::ParameterReset, 0));
}

TEST(ParameterKeys, MoveStayingAndCrossingAndReadsAtSharedTimes)
{
    Probe p = linearCurve(); // 0:0, 10:10, 20:30
    ChangeRecorder rec(p);
    EXPECT_EQ(p.moveAndChangeKeyframe(5.0, 3.0f, 4.0f), -1);
    // To exactly a neighbour's time: stays, two keys at one time.
    EXPECT_EQ(p.moveAndChangeKeyframe(12.0, 10.0f, 20.0f), 1);
    EXPECT_EQ(keysOf(p), (Keys<Probe>{{0.0f, 0.0}, {20.0f, 12.0}, {20.0f, 30.0}}));
    EXPECT_EQ(rec.events, (Events{{Change::KeyframeMoved, 1}}));
    EXPECT_EQ(p.recordCount(), 3);

    // One step beyond crosses: inner signals stay blocked, one record too many is left.
    Probe q = linearCurve();
    ChangeRecorder qrec(q);
    EXPECT_EQ(q.moveAndChangeKeyframe(500.0, 10.0f, 25.0f), 2);
    ASSERT_EQ(qrec.events.size(), 1u);
    EXPECT_EQ(qrec.events[0].first, Change::KeyframeReordered);
    EXPECT_EQ(qrec.lists, (std::vector<QList<unsigned int>>{{1u, 2u}}));
    EXPECT_EQ(keysOf(q), (Keys<Probe>{{0.0f, 0.0}, {20.0f, 30.0}, {25.0f, 500.0}}));
    EXPECT_EQ(q.recordCount(), 4);
    EXPECT_EQ(q.value(25.0f, nullptr), 500.0);
    EXPECT_FALSE(q.signalsBlocked());

    // Crossing onto a key that stands exactly at the target overwrites it.
    Probe r = linearCurve();
    EXPECT_EQ(r.moveAndChangeKeyframe(7.0, 0.0f, 20.0f), 1);
    EXPECT_EQ(keysOf(r), (Keys<Probe>{{10.0f, 10.0}, {20.0f, 7.0}}));

    // Reads at a key return its stored value; of two keys at one time the halving search meets the earlier.
    Probe t(0.0, -1000.0, 1000.0, InterpolationLinear, ExtrapolationHold);
    withKeys(t, {{0.0f, 1.0}, {10.0f, 2.0}, {20.0f, 3.0}, {25.0f, 4.0}, {30.0f, 5.0}});
    ASSERT_EQ(t.moveAndChangeKeyframe(9.0, 25.0f, 20.0f), 3);
    expectReads(t, {{10.0f, 2.0}, {15.0f, 2.5}, {20.0f, 3.0}, {25.0f, 9.0 + (5.0 - 9.0) / 2.0}});

    // A caller's own block survives the move.
    Probe s = linearCurve();
    s.blockSignals(true);
    s.moveAndChangeKeyframe(1.0, 0.0f, 15.0f);
    EXPECT_TRUE(s.signalsBlocked());
}

TEST(ParameterKeys, AssignmentAndCopyOfKeyframeData)
{
    Parameter<double> plain(false, "Plain", 3.0, InterpolationStep, ExtrapolationHold);
    ChangeRecorder rec(plain);
    Parameter<double> other(true, "Other", 1.0, InterpolationLinear, ExtrapolationLinear);
    other.vSetValue(2.0, 1.0f);
    plain.vCopyKeyframeDataFrom(&other);
    EXPECT_TRUE(plain.isKeyframed());
    EXPECT_EQ(plain.keyframeCount(), 1u);
    EXPECT_EQ(plain.qstrScriptName(), "Plain"); // names stay
    EXPECT_EQ(plain.defaultValue(), 3.0);
    EXPECT_EQ(rec.events.back(), ChangeRecorder::Event(Change::ParameterReplaced, 0));

    rec.events.clear();
    Parameter<int> wrongType(true, "W");
    plain.vCopyKeyframeDataFrom(&wrongType);
    plain.vCopyKeyframeDataFrom(nullptr);
    EXPECT_TRUE(rec.events.empty());

    // A numeric parameter copies from a plain one of its type safely.
    Probe a = linearCurve();
    a.vCopyKeyframeDataFrom(&other);
    EXPECT_EQ(a.keyframeCount(), 1u);
    EXPECT_EQ(a.staticValue(), 1.0);

    Parameter<double> assigned(false, "X");
    assigned = other;
    EXPECT_EQ(assigned.qstrScriptName(), "Other");
    EXPECT_EQ(assigned.defaultValue(), 1.0);
    EXPECT_EQ(assigned.keyframeCount(), 1u);
}
