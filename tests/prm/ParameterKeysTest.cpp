#include "Fixtures.h"
#include "prm/NumericParameter.h"
#include "prm/Parameter.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <random>
#include <tuple>

using namespace Prm;
using Change = ParameterChange;

namespace {

/// Exposes the record vector, which only the text format and the edits see otherwise.
class Probe : public NumericParameter<double> {
public:
    explicit Probe(Interpolation kind = InterpolationLinear, Keys<Curve> const& keys = {{0, 0}, {10, 10}, {20, 30}})
        : NumericParameter<double>(true, "Probe", 4.0, -1000.0, 1000.0, kind, ExtrapolationHold)
    {
        withKeys(*this, keys);
    }
    int recordCount() const { return interpolationRecords.size(); }
    std::tuple<double, double, double, double> handles(int i) const
    {
        IType const& r = interpolationRecords[i];
        return {r.dOutTime, r.dOutValue, r.dInTime, r.dInValue};
    }
    void setStreamingIn(bool b) { bStreamingIn = b; }
};

int iModelFind(Keys<Curve> const& keys, float time)
{
    auto const at = std::find_if(keys.begin(), keys.end(), [time](auto const& key) { return key.first == time; });
    return at == keys.end() ? -1 : int(at - keys.begin());
}

// The scan's rules: a value lands on the first key at its time, else before the first key after it.
int iModelSet(Keys<Curve>& keys, float time, double value)
{
    int at = iModelFind(keys, time);
    if (at < 0) {
        auto const after = std::find_if(keys.begin(), keys.end(), [time](auto const& key) { return key.first > time; });
        at = int(after - keys.begin());
        keys.insert(after, {time, value});
    }
    keys[size_t(at)].second = value;
    return at;
}

} // namespace

TEST(ParameterKeys, ConstructorsLeaveRulesUnsetAndAStaticParameterIgnoresKeysAndRules)
{
    Parameter<int> two(true, "Gain");
    EXPECT_EQ(two.qstrDisplayName(), "Gain");
    EXPECT_EQ(std::make_pair(two.extrapolationBefore(), two.interpolation(0.0f)),
              std::make_pair(ExtrapolationUnset, InterpolationUnset));
    two.vSetDefault(9);
    expectReads(two, {{3.0f, 0}}); // keyframed without keys: the static value, not the default
    Parameter<bool> none;
    EXPECT_TRUE(none.isKeyframed() && none.qstrScriptName().isEmpty());
    EXPECT_EQ(none.qstrDisplayName(), "Not Set");

    Parameter<int> flat(false, "F", 3, InterpolationLinear, ExtrapolationLinear);
    flat.hide(true);
    EXPECT_TRUE(Parameter<int>(flat).isHidden()); // a copy keeps the hidden flag
    ChangeRecorder rec(flat);
    flat.vSetExtrapolationBefore(ExtrapolationLinear);
    flat.vSetInterpolationData(IType(), 0);
    EXPECT_TRUE(rec.events.empty());
    EXPECT_EQ(std::make_tuple(flat.extrapolationBefore(), flat.extrapolationAfter(), flat.interpolation(1.0f),
                              flat.interpolationData(0).eType, flat.keyframeValue(0), flat.iAddKeyframe(1.0f)),
              std::make_tuple(ExtrapolationHold, ExtrapolationHold, InterpolationStep, InterpolationStep, 3, -1));
    EXPECT_EQ(flat.vSetValue(6, 1.0f), -1);
    EXPECT_EQ(state(flat), "6 |");
    EXPECT_EQ(rec.events, (Events{{Change::ValueChanged, 0xFFFFFFFFu}}));

    // The untyped view's operations sit next to each other in the virtual table (Itanium: 1 + offset).
    auto const slot = [](auto pmf) { std::ptrdiff_t p; std::memcpy(&p, &pmf, sizeof p); return p; };
    EXPECT_EQ(slot(&ParameterWithoutType::vSetExtrapolationBefore) - slot(&ParameterWithoutType::streamInValue),
              std::ptrdiff_t(sizeof(void*)));
}

TEST(ParameterKeys, SetValueInsertsInOrderAndSignals)
{
    Parameter<int> p(true, "P", 0, InterpolationStep, ExtrapolationHold);
    ChangeRecorder rec(p);
    for (auto const& row : {std::make_tuple(5, 10.0f, 0), {3, 0.0f, 0}, {4, 5.0f, 1}, {8, 5.0f, 1},
                            {9, std::nextafter(5.0f, 6.0f), 2}}) // the same time to the last bit, then one step on
        EXPECT_EQ(p.vSetValue(std::get<0>(row), std::get<1>(row)), std::get<2>(row));
    EXPECT_EQ(state(p), "0 | 0:3S 5:8S 5:9S 10:5S");
    EXPECT_EQ(Events(rec.events.begin() + 4, rec.events.begin() + 7),
              (Events{{Change::KeyframeAdded, 1}, {Change::ValueChanged, 1}, {Change::ValueChanged, 1}}));
}

TEST(ParameterKeys, SetValueAndAddKeyframeInheritFromOppositeSides)
{
    Probe p(InterpolationLinear, {{0, 0}, {10, 10}, {20, 20}});
    p.vSetInterpolation(InterpolationStep, 0.0f);
    p.vSetInterpolation(InterpolationBezier, 10.0f);
    p.vSetValue(5.0, 5.0f); // between keys 0 and 1: key 1's kind
    p.vSetInterpolation(InterpolationStep, 20.0f);
    ChangeRecorder rec(p);
    EXPECT_EQ(p.iAddKeyframe(15.0f), 3); // between keys 2 and 3: key 2's kind, the segment it splits
    EXPECT_EQ(rec.events, (Events{{Change::KeyframeAdded, 3}})); // no ValueChanged from iAddKeyframe
    // Keys at the ends take the default kind; a key at an existing time is refused silently.
    for (auto const& row : {std::make_pair(30.0f, 5), {-5.0f, 0}, {15.0f, -1}})
        EXPECT_EQ(p.iAddKeyframe(row.first), row.second);
    EXPECT_EQ(state(p), "4 | -5:0L 0:0S 5:5B 10:10B 15:15B 20:20S 30:20L");
    EXPECT_EQ(rec.events.size(), 3u);

    Probe q; // an added key keeps the curve where it was
    q.iAddKeyframe(5.0f);
    expectReads(q, {{5.0f, 5.0}, {7.5f, 7.5}});
}

TEST(ParameterKeys, AppendedKeyReinitialisesTheFormerLastRecordExceptWhileStreaming)
{
    Probe p(InterpolationBezier, {{0, 0}});
    EXPECT_EQ(p.handles(0), std::make_tuple(0.0, 0.0, 0.0, 0.0));
    p.vSetValue(10.0, 10.0f);
    EXPECT_EQ(p.handles(0), std::make_tuple(1.0, 1.0, -1.0, -1.0));
    EXPECT_EQ(std::get<0>(p.handles(1)), 0.0); // the new last record starts with zero handles
    p.setStreamingIn(true);
    p.vSetValue(30.0, 20.0f);
    EXPECT_EQ(std::get<0>(p.handles(1)), 0.0);
    p.setStreamingIn(false);

    // A key inserted before another takes a record spanning to it; the record before is left alone.
    p.vSetValue(2.0, 5.0f);
    EXPECT_DOUBLE_EQ(std::get<0>(p.handles(0)), 1.0);
    EXPECT_DOUBLE_EQ(std::get<0>(p.handles(1)), 0.5);
    EXPECT_DOUBLE_EQ(std::get<1>(p.handles(1)), 0.8);
}

TEST(ParameterKeys, GettersOutOfRangeAndSearchesWithTheirTieRules)
{
    Probe p; // 0:0, 10:10, 20:30
    EXPECT_EQ(std::make_tuple(p.keyframeTime(7), p.keyframeValue(7), p.interpolation(7u), p.interpolationData(7).eType),
              std::make_tuple(0.0f, 30.0, InterpolationStep, InterpolationLinear));
    EXPECT_EQ(p.interpolationData(7).dOutTime, 0.0);
    // Each row: a search, the time it starts from, the key time found, or -1: none, the argument left alone.
    for (auto const& row : {std::make_tuple(&Probe::bNearestKeyframeTime, 5.0f, 10.0f), // halfway: the later key
                            {&Probe::bNearestKeyframeTime, 4.9f, 0.0f}, {&Probe::bPreviousKeyframe, 0.0f, -1.0f},
                            {&Probe::bPreviousKeyframe, 10.0f, 0.0f}, {&Probe::bPreviousKeyframe, 50.0f, 20.0f},
                            {&Probe::bNextKeyframe, 10.0f, 20.0f}, {&Probe::bNextKeyframe, -1.0f, 0.0f},
                            {&Probe::bNextKeyframe, 20.0f, -1.0f}, {&Probe::bNextKeyframe, 21.0f, -1.0f}}) {
        float t = -1.0f;
        EXPECT_EQ((p.*std::get<0>(row))(std::get<1>(row), t), std::get<2>(row) != -1.0f) << std::get<1>(row);
        EXPECT_EQ(t, std::get<2>(row)) << std::get<1>(row);
    }
    unsigned int first = 99, last = 99;
    EXPECT_TRUE(p.bNearestKeyframeIndex(-3.0f, first) && p.bNearestKeyframeIndex(99.0f, last));
    EXPECT_EQ(std::make_pair(first, last), std::make_pair(0u, 2u));
    Parameter<int> empty(true, "E");
    float t = 0.0f;
    EXPECT_FALSE(empty.bNearestKeyframeTime(0.0f, t) || empty.bPreviousKeyframe(0.0f, t));
    // interpolation(float): key at t, else the record before the next later key, else the last.
    p.vSetInterpolation(InterpolationStep, 10.0f);
    for (auto const& row : {std::make_pair(10.0f, InterpolationStep), {15.0f, InterpolationStep},
                            {5.0f, InterpolationLinear}, {-5.0f, InterpolationLinear}})
        EXPECT_EQ(p.interpolation(row.first), row.second) << "at " << row.first;
}

TEST(ParameterKeys, DeletionAndReset)
{
    Probe p(InterpolationLinear, {{1, 8}});
    ChangeRecorder rec(p);
    p.vDeleteKeyframe(2.0f); // no key there
    EXPECT_TRUE(rec.events.empty());
    p.vDeleteKeyframe(1.0f); // the only key: its value stays as the static value
    EXPECT_EQ(state(p), "8 |");
    EXPECT_EQ(rec.events, (Events{{Change::KeyframeDeleted, 0}}));

    withKeys(p, {{0.0f, 1.0}, {5.0f, 2.0}}).vDeleteAllKeyframes(); // the older static value comes back
    EXPECT_EQ(state(p), "8 |");
    EXPECT_EQ(rec.events.back(), ChangeRecorder::Event(Change::AllKeyframesDeleted, 0));

    withKeys(p, {{0.0f, 1.0}, {5.0f, 2.0}});
    rec.events.clear();
    p.vReset(2.5f); // between keys: nothing at all
    EXPECT_TRUE(rec.events.empty());
    p.vReset(5.0f); // at a key: deletes it, the default plays no part
    EXPECT_EQ(state(p), "8 | 0:1L");
    p.vDeleteAllKeyframes();
    p.vReset(0.0f); // no keys: the default becomes the static value
    EXPECT_EQ(state(p), "4 |");
    EXPECT_EQ(rec.events.back(), ChangeRecorder::Event(Change::ParameterReset, 0));
}

TEST(ParameterKeys, MoveStayingAndCrossingAndReadsAtSharedTimes)
{
    Probe p; // 0:0, 10:10, 20:30
    ChangeRecorder rec(p);
    // To exactly a neighbour's time: stays, two keys at one time.
    EXPECT_EQ(p.moveAndChangeKeyframe(12.0, 10.0f, 20.0f), 1);
    EXPECT_EQ(state(p), "4 | 0:0L 20:12L 20:30L");
    EXPECT_EQ(rec.events, (Events{{Change::KeyframeMoved, 1}}));
    EXPECT_EQ(p.recordCount(), 3);

    // One step beyond crosses: inner signals stay blocked, one record too many is left.
    Probe q;
    ChangeRecorder qrec(q);
    EXPECT_EQ(q.moveAndChangeKeyframe(500.0, 10.0f, 25.0f), 2);
    EXPECT_EQ(qrec.events, (Events{{Change::KeyframeReordered, qrec.events.at(0).second}}));
    EXPECT_EQ(qrec.lists, (std::vector<QList<unsigned int>>{{1u, 2u}}));
    EXPECT_EQ(state(q), "4 | 0:0L 20:30L 25:500L");
    EXPECT_EQ(q.recordCount(), 4);
    EXPECT_EQ(q.value(25.0f, nullptr), 500.0);
    EXPECT_FALSE(q.signalsBlocked());

    // Reads at a key return its stored value; of two keys at one time the halving search meets the earlier.
    Probe t(InterpolationLinear, {{0.0f, 1.0}, {10.0f, 2.0}, {20.0f, 3.0}, {25.0f, 4.0}, {30.0f, 5.0}});
    ASSERT_EQ(t.moveAndChangeKeyframe(9.0, 25.0f, 20.0f), 3);
    expectReads(t, {{10.0f, 2.0}, {15.0f, 2.5}, {20.0f, 3.0}, {25.0f, 9.0 + (5.0 - 9.0) / 2.0}});

    Probe s; // a caller's own block survives the move
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
    EXPECT_EQ(state(plain), "1 | 1:2L");
    EXPECT_EQ(std::make_pair(plain.qstrScriptName(), plain.defaultValue()), std::make_pair(QString("Plain"), 3.0));
    EXPECT_EQ(rec.events.back(), ChangeRecorder::Event(Change::ParameterReplaced, 0));
    rec.events.clear();
    Parameter<int> wrongType(true, "W");
    plain.vCopyKeyframeDataFrom(&wrongType);
    plain.vCopyKeyframeDataFrom(nullptr);
    EXPECT_TRUE(rec.events.empty());

    Probe a; // a numeric parameter copies from a plain one of its type safely
    a.vCopyKeyframeDataFrom(&other);
    EXPECT_EQ(state(a), "1 | 1:2L");
    Parameter<double> assigned(false, "X");
    assigned = other;
    EXPECT_EQ(std::make_pair(assigned.qstrScriptName(), assigned.defaultValue()), std::make_pair(QString("Other"), 1.0));
    EXPECT_EQ(state(assigned), "1 | 1:2L");
}

// Keys are looked up by halving while they are known to be in order, and by a scan from the first key
// otherwise (NaN times and moves can leave them out of order). Both must find what the scan finds.
TEST(ParameterKeys, SetMoveAndDeleteFindTheKeysTheScanFinds)
{
    float const times[] = {0.0f, 1.0f, 2.0f, 3.0f, 5.0f, 8.0f, -1.0f, -0.0f, std::nanf("")};
    std::mt19937 random(3);
    for (int round = 0; round < 200; ++round) {
        Curve parameter(true, "P", 0.0, -1e9, 1e9, InterpolationLinear, ExtrapolationHold);
        Keys<Curve> model;
        for (int step = 0; step < 40; ++step) {
            float const time = times[random() % 9];
            int const kind = random() % 6, at = iModelFind(model, time);
            float const to = kind == 0 ? times[random() % 9] : time;
            // A move that stays in place may leave the keys out of order around a NaN neighbour.
            bool const bStays = kind == 0 && at >= 0 && (at == 0 || !(to < model[size_t(at) - 1].first)) &&
                                (at + 1 == int(model.size()) || !(model[size_t(at) + 1].first < to));
            if (bStays)
                model[size_t(at)] = {to, step};
            else if (at >= 0 && kind < 2)
                model.erase(model.begin() + at);
            if (kind == 0)
                EXPECT_EQ(parameter.moveAndChangeKeyframe(step, time, to),
                          bStays ? at : at >= 0 ? iModelSet(model, to, step) : -1);
            else if (kind == 1)
                parameter.vDeleteKeyframe(time);
            else
                EXPECT_EQ(parameter.vSetValue(step, time), iModelSet(model, time, step));
            ASSERT_EQ(parameter.keyframeCount(), model.size());
            for (unsigned int i = 0; i < model.size(); ++i) {
                float const stored = parameter.keyframeTime(i);
                EXPECT_TRUE(stored == model[i].first || (std::isnan(stored) && std::isnan(model[i].first)));
                EXPECT_EQ(parameter.keyframeValue(i), model[i].second);
            }
            for (float probe : times)
                EXPECT_EQ(parameter.bKeyframeAt(probe), iModelFind(model, probe) >= 0);
        }
    }
}
