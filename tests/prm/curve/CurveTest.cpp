#include "prm/TextCases.h"
#include "prm/curve/CubeRoots.h"
#include "prm/curve/Interpolate.h"
#include "prm/NumericParameter.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>

using namespace Prm;

namespace {

template <class T>
NumericParameter<T> twoKeys(T v0, T v1, Interpolation kind, Extrapolation rule = ExtrapolationHold)
{
    NumericParameter<T> p(true, "Curve", T(), std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max(),
                          kind, rule);
    p.vSetValue(v0, 0.0f);
    p.vSetValue(v1, 10.0f);
    return p;
}

/// A custom rule that reports the side and supports reading without keys.
class SideExtrapolator : public ParamExtrapolator<double> {
public:
    double extrapolate(Parameter<double> const&, bool bBefore, float time, Cache*) const override
    {
        return bBefore ? -time : 1000.0 + time;
    }
};

class CustomParameter : public Curve {
public:
    CustomParameter() : Curve(true, "C", 5.0, -1e9, 1e9, InterpolationLinear, ExtrapolationHold)
    {
        customExtrapolators.append(&method);
    }
    SideExtrapolator method;
};

} // namespace

TEST(Curve, CubeRootsFindsTheRealRoots)
{
    double roots[3][2];
    double const three[3] = {-6.0, 11.0, -6.0}; // (s-1)(s-2)(s-3)
    ASSERT_EQ(cuberoots(three, roots), 3);
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

// Reads of step, linear, Bezier and extrapolated curves are cases of the data file.
TEST(Curve, DataFileCasesAndFreshBezierHandles)
{
    vRunTextCases("Curve.txt");
    // Fresh handles lie on the chord, so the curve starts straight; they follow the value type's arithmetic.
    Curve bezier = twoKeys(0.0, 10.0, InterpolationBezier);
    EXPECT_NEAR(bezier.value(1.0f, nullptr), 1.0, 1e-9);
    EXPECT_NEAR(bezier.value(5.0f, nullptr), 5.0, 1e-9);
    IType const record = twoKeys(10u, 0u, InterpolationBezier).interpolationData(0);
    EXPECT_DOUBLE_EQ(record.dOutTime, 1.0);
    EXPECT_NEAR(record.dOutValue, 4294967286.0 * 0.1, 1e-3);
    EXPECT_DOUBLE_EQ(twoKeys<unsigned char>(10, 0, InterpolationBezier).interpolationData(0).dOutValue, -1.0);
    EXPECT_DOUBLE_EQ(twoKeys(10, 0, InterpolationBezier).interpolationData(0).dInValue, 1.0);
}

TEST(Curve, ClampingOrderNaNAndCrossedLimits)
{
    Curve p(true, "P", 50.0, 0.0, 10.0, InterpolationLinear, ExtrapolationHold);
    expectReads(p, {{0.0f, 10.0}}); // the constructor does not clamp, the read does
    EXPECT_EQ(state(withKeys(p, {{1.0f, 20.0}, {2.0f, std::nan("")}})), "50 | 1:10L 2:0L");
    // A move stores unclamped; reads clamp, the double view of the key does not.
    EXPECT_EQ(p.moveAndChangeKeyframe(99.0, 1.0f, 1.5f), 0);
    EXPECT_EQ(p.keyframeValueAsDouble(0), 99.0);
    expectReads(p, {{1.5f, 10.0}});
    p.vSetMinimum(20.0); // crossed: the minimum wins everywhere
    expectReads(p, {{1.5f, 20.0}, {100.0f, 20.0}});

    NumericParameter<unsigned int> u(true, "U", 5u, 0u, 100u, InterpolationLinear, ExtrapolationHold);
    u.setValueFromDouble(-1.0, 0.0f); // converted first: 4294967295, then clamped to the maximum
    EXPECT_EQ(u.keyframeValue(0), 100u);
    u.moveKeyframeAsDouble(-1.0, 0.0f, 0.0f); // clamped first: 0
    EXPECT_EQ(u.keyframeValue(0), 0u);
    NumericParameter<int> i(false, "I", 0, -100, 100, InterpolationStep, ExtrapolationHold);
    i.setValueFromDouble(0.9, 0.0f);
    EXPECT_EQ(std::make_pair(i.staticValue(), i.value2DisplayAsDouble(7.8, 0.0f)), std::make_pair(0, 7.0));
    NumericParameter<bool> b(false, "B", false, false, true, InterpolationStep, ExtrapolationHold);
    b.setValueFromDouble(0.5, 0.0f);
    EXPECT_TRUE(b.staticValue() && b.isInteger() && !p.isInteger());
}

TEST(Curve, ConversionsFromDoubleNeverRunUndefinedBehaviour)
{
    double const nan = std::nan("");
    for (auto const& row : {std::make_pair(nan, std::numeric_limits<int>::min()),
                            {1e20, std::numeric_limits<int>::min()}, {-2.9, -2}})
        EXPECT_EQ(tFromDouble<int>(row.first), row.second) << row.first;
    for (auto const& row : {std::make_pair(-1.0, 4294967295u), {4294967296.0 + 7.0, 7u}, {1e30, 0u}})
        EXPECT_EQ(tFromDouble<unsigned int>(row.first), row.second) << row.first;
    EXPECT_EQ(tFromDouble<unsigned char>(300.7), 44);
    EXPECT_EQ(tFromDouble<unsigned char>(-1.0), 255);
    EXPECT_TRUE(tFromDouble<bool>(nan) && !tFromDouble<bool>(0.0));
    EXPECT_EQ(tFromDouble<float>(0.1), 0.1f);
}

TEST(Curve, CustomMethodsAndTheirLists)
{
    CustomParameter p;
    EXPECT_TRUE(p.hasCustomExtrapolationMethods() && !p.hasCustomInterpolationMethods());
    EXPECT_EQ(p.CustomExtrapolationMethodFromNameIndex(0), ExtrapolationCustomFirst);
    EXPECT_EQ(p.CustomInterpolationMethodFromNameIndex(2), Interpolation(6));
    EXPECT_EQ(p.customExtrapolationMethod(ExtrapolationCustomFirst), &p.method);
    EXPECT_EQ(p.customExtrapolationMethod(ExtrapolationHold), nullptr);
    for (int kind : {4, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(p.customExtrapolationMethod(Extrapolation(kind)), nullptr) << kind;
        EXPECT_EQ(p.customInterpolationMethod(Interpolation(kind)), nullptr) << kind;
    }

    p.vSetExtrapolationAfter(ExtrapolationCustomFirst);
    EXPECT_FALSE(p.supportsExtrapolationFromNoKeys());
    expectReads(p, {{3.0f, 5.0}});
    p.method.bSupportsNoKeys = true;
    expectReads(p, {{3.0f, 1003.0}}); // asked without keys, with the bool false
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
    EXPECT_FALSE(Curve(static_cast<Curve const&>(copy)).hasCustomExtrapolationMethods()); // the lists stay
}

TEST(Curve, ScalingByAFactor)
{
    NumericParameter<float> f(true, "F", 3.0f, 0.0f, 100.0f, InterpolationLinear, ExtrapolationHold);
    ChangeRecorder rec(f);
    f *= 2.0;
    EXPECT_EQ(state(f), "3 |"); // no keys: nothing scaled, nothing raised
    EXPECT_TRUE(rec.events.empty());
    withKeys(f, {{0.0f, 10.0f}, {1.0f, 60.0f}}) *= 2.0;
    EXPECT_EQ(state(f), "3 | 0:20L 1:100L"); // clamped
    NumericParameter<unsigned int> u(true, "U", 0u, 0u, 1000u, InterpolationLinear, ExtrapolationHold);
    withKeys(u, {{0.0f, 7u}}) *= 1.5;
    EXPECT_EQ(state(u), "0 | 0:10L");

    // A key at a NaN time (a damaged text) cannot be set by its time: it keeps its value, the loop ends,
    // and the keys around it, infinite times included, are scaled.
    NumericParameter<float> g(true, "G", 0.0f, -100.0f, 100.0f, InterpolationLinear, ExtrapolationHold);
    for (char const* line : {"keyframes.append( Key( 1, 2, Linear ) )", "keyframes.append( Key( nan, 3, Linear ) )",
                             "keyframes.append( Key( 5, 4, Linear ) )", "keyframes.append( Key( inf, 5, Linear ) )"})
        EXPECT_TRUE(g.bStreamIn(line));
    g *= 2.0;
    EXPECT_EQ(state(g), "0 | 1:4L nan:3L 5:8L inf:10L");
}
