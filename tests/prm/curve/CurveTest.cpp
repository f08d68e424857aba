#include "prm/Fixtures.h"
#include "prm/curve/CubeRoots.h"
#include "prm/curve/Interpolate.h"
#include "prm/NumericParameter.h"

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Prm;

namespace {

template <class T>
NumericParameter<T> twoKeys(T v0, T v1, Interpolation kind, Extrapolation rule)
{
    NumericParameter<T> p(true, "Curve", T(), std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max(),
                          kind, rule);
    p.vSetValue(v0, 0.0f);
    p.vSetValue(v1, 10.0f);
    return p;
}

void vSetHandles(NumericParameter<double>& p, unsigned int index, double outTime, double outValue, double inTime,
                 double inValue)
{
    IType record = p.interpolationData(index);
    record.dOutTime = outTime;
    record.dOutValue = outValue;
    record.dInTime = inTime;
    record.dInValue = inValue;
    p.vSetInterpolationData(record, index);
}

/// A custom rule that reports the side and supports reading without keys.
class SideExtrapolator : public ParamExtrapolator<double> {
public:
    double extrapolate(Parameter<double> const&, bool bBefore, float time, Cache*) const override
    {
        return bBefore ? -time : 1000.0 + time;
    }
};

class CustomParameter : public NumericParameter<double> {
public:
    CustomParameter() : NumericParameter<double>(true, "C", 5.0, -1e9, 1e9, InterpolationLinear, ExtrapolationHold)
    {
        customExtrapolators.append(&method);
    }
    SideExtrapolator method;
};

} // namespace

TEST(Curve, CubeRootsFindsTheRealRoots)
{
    double const c[3] = {-6.0, 11.0, -6.0}; // (s-1)(s-2)(s-3)
    double roots[3][2];
    ASSERT_EQ(cuberoots(c, roots), 3);
    double found[3] = {roots[0][0], roots[1][0], roots[2][0]};
    std::sort(found, found + 3);
    for (int i = 0; i < 3; ++i)
        EXPECT_NEAR(found[i], i + 1.0, 1e-12);

    double const one[3] = {-1.0, 1.0, 0.0}; // s^3 + s - 1: one real root
    ASSERT_EQ(cuberoots(one, roots), 1);
    EXPECT_NEAR(roots[0][0] * roots[0][0] * roots[0][0] + roots[0][0], 1.0, 1e-12);

    double const bad[3] = {std::numeric_limits<double>::infinity(), 0.0, 0.0};
    EXPECT_EQ(cuberoots(bad, roots), 0);
}

TEST(Curve, StepLinearAndBezierBetweenKeys)
{
    expectReads(twoKeys(0.0, 10.0, InterpolationStep, ExtrapolationHold), {{9.9f, 0.0}, {10.0f, 10.0}});
    expectReads(twoKeys(0.0, 10.0, InterpolationLinear, ExtrapolationHold), {{2.5f, 2.5}});
    // Truncation, not rounding.
    expectReads(twoKeys(0, 10, InterpolationLinear, ExtrapolationHold), {{4.9f, 4}, {9.99f, 9}});

    // Default handles lie on the chord, so the curve starts straight.
    NumericParameter<double> bezier = twoKeys(0.0, 10.0, InterpolationBezier, ExtrapolationHold);
    EXPECT_NEAR(bezier.value(5.0f, nullptr), 5.0, 1e-9);
    EXPECT_NEAR(bezier.value(1.0f, nullptr), 1.0, 1e-9);
    IType const chord = bezier.interpolationData(0);
    vSetHandles(bezier, 0, chord.dOutTime, 0.0, chord.dInTime, 0.0);
    double const early = bezier.value(1.0f, nullptr);
    EXPECT_GT(early, 0.0);
    EXPECT_LT(early, 1.0); // flat handles ease in
    EXPECT_NEAR(bezier.value(5.0f, nullptr), 5.0, 1e-9);
    EXPECT_EQ(bezier.value(0.0f, nullptr), 0.0);

    // Handles of exactly a third of the span in time leave no root to find: the zero value.
    NumericParameter<double> third(true, "T", 0.0, -1.0, 100.0, InterpolationBezier, ExtrapolationHold);
    withKeys(third, {{0.0f, 5.0}, {12.0f, 7.0}});
    IType const fresh = third.interpolationData(0);
    vSetHandles(third, 0, 4.0, fresh.dOutValue, -4.0, fresh.dInValue);
    EXPECT_EQ(third.value(6.0f, nullptr), 0.0);
    third.vSetMinimum(2.0); // and the clamp applies to it
    EXPECT_EQ(third.value(6.0f, nullptr), 2.0);
}

TEST(Curve, ExtrapolationRules)
{
    expectReads(twoKeys(2.0, 4.0, InterpolationLinear, ExtrapolationHold), {{-5.0f, 2.0}, {50.0f, 4.0}});
    expectReads(twoKeys(2.0, 4.0, InterpolationLinear, ExtrapolationLinear), {{-10.0f, 0.0}, {20.0f, 6.0}});
    // A stepped end segment has no slope.
    expectReads(twoKeys(2.0, 4.0, InterpolationStep, ExtrapolationLinear), {{20.0f, 4.0}});

    // After a Bezier segment the line follows the end key's handle.
    NumericParameter<double> bezier = twoKeys(0.0, 10.0, InterpolationBezier, ExtrapolationLinear);
    vSetHandles(bezier, 0, 1.0, 0.5, -1.0, -2.0);
    EXPECT_DOUBLE_EQ(bezier.value(12.0f, nullptr), 14.0);
    EXPECT_DOUBLE_EQ(bezier.value(-2.0f, nullptr), -1.0);

    NumericParameter<double> one(true, "One", 0.0, -10.0, 10.0, InterpolationLinear, ExtrapolationLinear);
    one.vSetValue(3.0, 1.0f);
    expectReads(one, {{8.0f, 3.0}}); // one key: linear holds

    NumericParameter<double> unset = twoKeys(2.0, 4.0, InterpolationLinear, ExtrapolationUnset);
    expectReads(unset, {{20.0f, 0.0}});
    unset.vSetMinimum(1.0);
    expectReads(unset, {{20.0f, 1.0}});

    // An unset end segment is sampled a tenth of the way in, which reads the zero value.
    EXPECT_DOUBLE_EQ(twoKeys(2.0, 4.0, InterpolationUnset, ExtrapolationLinear).value(-1.0f, nullptr), 4.0);
    // After the curve the last segment is sampled from its right end, a tenth back towards key n - 2; the
    // first custom kind samples as a step there, so the line runs through key n - 2's value at time 29.
    NumericParameter<double> sampled = twoKeys(0.0, 10.0, InterpolationLinear, ExtrapolationLinear);
    withKeys(sampled, {{20.0f, 30.0}, {30.0f, 60.0}});
    IType custom = sampled.interpolationData(2);
    custom.eType = InterpolationCustomFirst;
    sampled.vSetInterpolationData(custom, 2);
    EXPECT_DOUBLE_EQ(sampled.value(31.0f, nullptr), 90.0);
}

TEST(Curve, FreshBezierHandlesFollowTheValueTypesArithmetic)
{
    IType const record = twoKeys(10u, 0u, InterpolationBezier, ExtrapolationHold).interpolationData(0);
    EXPECT_DOUBLE_EQ(record.dOutTime, 1.0);
    EXPECT_NEAR(record.dOutValue, 4294967286.0 * 0.1, 1e-3);
    EXPECT_DOUBLE_EQ(
        twoKeys<unsigned char>(10, 0, InterpolationBezier, ExtrapolationHold).interpolationData(0).dOutValue, -1.0);
    EXPECT_DOUBLE_EQ(twoKeys(10, 0, InterpolationBezier, ExtrapolationHold).interpolationData(0).dInValue, 1.0);
}

TEST(Curve, ClampingOrderNaNAndCrossedLimits)
{
    NumericParameter<double> p(true, "P", 50.0, 0.0, 10.0, InterpolationLinear, ExtrapolationHold);
    EXPECT_EQ(p.staticValue(), 50.0); // the constructor does not clamp
    EXPECT_EQ(p.value(0.0f, nullptr), 10.0);
    withKeys(p, {{1.0f, 20.0}, {2.0f, std::nan("")}});
    EXPECT_EQ(keysOf(p), (Keys<decltype(p)>{{1.0f, 10.0}, {2.0f, 0.0}}));

    // A move stores unclamped; reads clamp, the double view of the key does not.
    EXPECT_EQ(p.moveAndChangeKeyframe(99.0, 1.0f, 1.5f), 0);
    EXPECT_EQ(p.keyframeValueAsDouble(0), 99.0);
    EXPECT_EQ(p.value(1.5f, nullptr), 10.0);
    p.vSetMinimum(20.0); // crossed: the minimum wins everywhere
    expectReads(p, {{1.5f, 20.0}, {100.0f, 20.0}});

    NumericParameter<unsigned int> u(true, "U", 5u, 0u, 100u, InterpolationLinear, ExtrapolationHold);
    u.setValueFromDouble(-1.0, 0.0f); // converted first: 4294967295, then clamped to the maximum
    EXPECT_EQ(u.keyframeValue(0), 100u);
    u.moveKeyframeAsDouble(-1.0, 0.0f, 0.0f); // clamped first: 0
    EXPECT_EQ(u.keyframeValue(0), 0u);

    NumericParameter<int> i(false, "I", 0, -100, 100, InterpolationStep, ExtrapolationHold);
    i.setValueFromDouble(0.9, 0.0f);
    EXPECT_EQ(i.staticValue(), 0);
    EXPECT_EQ(i.value2DisplayAsDouble(7.8, 0.0f), 7.0);
    NumericParameter<bool> b(false, "B", false, false, true, InterpolationStep, ExtrapolationHold);
    b.setValueFromDouble(0.5, 0.0f);
    EXPECT_TRUE(b.staticValue());
    EXPECT_TRUE(b.isInteger());
    EXPECT_FALSE(p.isInteger());
}

TEST(Curve, ConversionsFromDoubleNeverRunUndefinedBehaviour)
{
    double const nan = std::nan("");
    EXPECT_EQ(tFromDouble<int>(nan), std::numeric_limits<int>::min());
    EXPECT_EQ(tFromDouble<int>(1e20), std::numeric_limits<int>::min());
    EXPECT_EQ(tFromDouble<int>(-2.9), -2);
    EXPECT_EQ(tFromDouble<unsigned int>(-1.0), 4294967295u);
    EXPECT_EQ(tFromDouble<unsigned int>(4294967296.0 + 7.0), 7u);
    EXPECT_EQ(tFromDouble<unsigned int>(1e30), 0u);
    EXPECT_EQ(tFromDouble<unsigned char>(300.7), 44);
    EXPECT_EQ(tFromDouble<unsigned char>(-1.0), 255);
    EXPECT_TRUE(tFromDouble<bool>(nan));
    EXPECT_FALSE(tFromDouble<bool>(0.0));
    EXPECT_EQ(tFromDouble<float>(0.1), 0.1f);
}

TEST(Curve, CustomMethodsAndTheirLists)
{
    CustomParameter p;
    EXPECT_TRUE(p.hasCustomExtrapolationMethods());
    EXPECT_FALSE(p.hasCustomInterpolationMethods());
    EXPECT_EQ(p.CustomExtrapolationMethodFromNameIndex(0), ExtrapolationCustomFirst);
    EXPECT_EQ(p.CustomInterpolationMethodFromNameIndex(2), Interpolation(6));
    EXPECT_EQ(p.customExtrapolationMethod(ExtrapolationCustomFirst), &p.method);
    int const lowest = std::numeric_limits<int>::min();
    for (int kind : {4, int(ExtrapolationHold), lowest})
        EXPECT_EQ(p.customExtrapolationMethod(Extrapolation(kind)), nullptr) << kind;
    for (int kind : {4, lowest})
        EXPECT_EQ(p.customInterpolationMethod(Interpolation(kind)), nullptr) << kind;

    p.vSetExtrapolationAfter(ExtrapolationCustomFirst);
    EXPECT_FALSE(p.supportsExtrapolationFromNoKeys());
    EXPECT_EQ(p.value(3.0f, nullptr), 5.0);
    p.method.bSupportsNoKeys = true;
    EXPECT_EQ(p.value(3.0f, nullptr), 1003.0); // asked without keys, with the bool false

    p.vSetValue(1.0, 0.0f);
    expectReads(p, {{2.0f, 1002.0}, {-2.0f, 1.0}}); // before: hold
    p.vSetExtrapolationBefore(Extrapolation(9)); // no such method: the zero value
    expectReads(p, {{-2.0f, 0.0}});

    // A custom kind without its method reads as the engine's own curve reads it.
    p.vSetValue(3.0, 10.0f);
    p.vSetInterpolation(InterpolationCustomFirst, 0.0f);
    expectReads(p, {{5.0f, 1.0}});
    p.vSetInterpolation(Interpolation(5), 0.0f);
    expectReads(p, {{5.0f, 0.0}});

    CustomParameter copy(p);
    NumericParameter<double> const& base = copy;
    NumericParameter<double> plainCopy(base);
    EXPECT_FALSE(plainCopy.hasCustomExtrapolationMethods()); // the lists do not travel
}

TEST(Curve, ScalingByAFactor)
{
    NumericParameter<float> f(true, "F", 3.0f, 0.0f, 100.0f, InterpolationLinear, ExtrapolationHold);
    ChangeRecorder rec(f);
    f *= 2.0;
    EXPECT_EQ(f.staticValue(), 3.0f); // no keys: nothing scaled, nothing raised
    EXPECT_TRUE(rec.events.empty());
    withKeys(f, {{0.0f, 10.0f}, {1.0f, 60.0f}});
    f *= 2.0;
    EXPECT_EQ(keysOf(f), (Keys<decltype(f)>{{0.0f, 20.0f}, {1.0f, 100.0f}})); // clamped

    NumericParameter<unsigned int> u(true, "U", 0u, 0u, 1000u, InterpolationLinear, ExtrapolationHold);
    u.vSetValue(7u, 0.0f);
    u *= 1.5;
    EXPECT_EQ(u.keyframeValue(0), 10u);

    // A key at a NaN time (a damaged text) cannot be set by its time: it keeps its value, the loop ends,
    // and the keys around it, infinite times included, are scaled.
    NumericParameter<float> g(true, "G", 0.0f, -100.0f, 100.0f, InterpolationLinear, ExtrapolationHold);
    float const inf = std::numeric_limits<float>::infinity();
    for (char const* line : {"keyframes.append( Key( 1, 2, Linear ) )", "keyframes.append( Key( nan, 3, Linear ) )",
                             "keyframes.append( Key( 5, 4, Linear ) )", "keyframes.append( Key( inf, 5, Linear ) )"})
        EXPECT_TRUE(g.bStreamIn(line));
    g *= 2.0;
    Keys<decltype(g)> const scaled{{1.0f, 4.0f}, {std::nanf(""), 3.0f}, {5.0f, 8.0f}, {inf, 10.0f}};
    ASSERT_EQ(g.keyframeCount(), scaled.size());
    for (unsigned int i = 0; i < scaled.size(); ++i) {
        float const t = g.keyframeTime(i);
        EXPECT_TRUE(t == scaled[i].first || (std::isnan(t) && std::isnan(scaled[i].first))) << i;
        EXPECT_EQ(g.keyframeValue(i), scaled[i].second) << i;
    }
}
