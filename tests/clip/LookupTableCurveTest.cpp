// Integer-input tables, checked against the curves written out here with their constants.
#include "clip/LookupTableHelperMethods.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>
#include <vector>

// Integer input needs none of the float-input outputs nor a forward table.
#define NO_FLOAT_INPUT nullptr, nullptr, nullptr, nullptr, nullptr, nullptr

namespace {

template <typename T> bool bNonDecreasing(std::vector<T> const& table)
{
    return std::is_sorted(table.begin(), table.end());
}

// Film curve with reference white 685, reference black 95, gamma 1 into 16-bit output.
double dFilm16(double code)
{
    double const gain = 65535.0 / (1 - std::pow(10.0, double((95.0f - 685.0f) * 0.002f)));
    return std::pow(10.0, (code - 685.0) * 0.002) * gain - (gain - 65535.0);
}

} // namespace

TEST(LookupTableLog, DefaultSixteenBitLogToLinearHasBlackRunAndSaturation)
{
    std::vector<unsigned short> table(65536, 7);
    ASSERT_TRUE(gbCreate16BitLogLinLookup(16, 0.0f, 685.0f, 95.0f, 1.0f, 0.0f, table.data()));
    // Code 95 is index 95 * 64, code 685 index 685 * 64.
    for (int i = 0; i <= 6080; ++i)
        ASSERT_EQ(table[i], 0) << i;
    EXPECT_GT(table[6200], 0);
    for (int i = 43840; i < 65536; ++i)
        ASSERT_EQ(table[i], 65535) << i;
    EXPECT_LT(table[43839], 65535);
    for (int i : {6500, 20000, 30000, 43000})
        EXPECT_EQ(table[i], std::trunc(dFilm16(i / 64.0) + 0.5)) << i;
    EXPECT_TRUE(bNonDecreasing(table));
}

TEST(LookupTableLog, ReferenceBlackAboveWhiteIsOneBelowWhite)
{
    std::vector<unsigned char> swapped(1024), explicitBlack(1024), lower(1024);
    for (auto [black, table] : {std::pair{700.0f, &swapped}, {684.0f, &explicitBlack}, {600.0f, &lower}})
        ASSERT_TRUE(gbCreate8BitLogLinLookup(10, 0.0f, 685.0f, black, 1.0f, 0.0f, table->data()));
    EXPECT_EQ(swapped, explicitBlack);
    EXPECT_NE(swapped, lower);
    EXPECT_EQ(swapped[684], 0);
    EXPECT_EQ(swapped[685], 255);
}

TEST(LookupTableLog, SoftClipBendsTheShoulderBelowTop)
{
    std::vector<unsigned short> hard(1024), soft(1024);
    ASSERT_TRUE(gbCreate16BitLogLinLookup(10, 0.0f, 685.0f, 95.0f, 1.0f, 0.0f, hard.data()));
    ASSERT_TRUE(gbCreate16BitLogLinLookup(10, 0.0f, 685.0f, 95.0f, 1.0f, 20.0f, soft.data()));
    // Soft clip 20: knee at code 665, shoulder pow(c - 665, 0.2) * slope + kneeValue.
    double const kneeValue = dFilm16(665.0);
    double const slope = (65535.0 - kneeValue) / std::pow(100.0, 0.2);
    for (int code : {666, 670, 680, 700})
        EXPECT_EQ(soft[code], std::trunc(std::pow(code - 665.0, 0.2) * slope + kneeValue + 0.5)) << code;
    EXPECT_LT(soft[685], 65535);
    EXPECT_EQ(hard[685], 65535);
    EXPECT_EQ(soft[1023], 65535); // clamped, the shoulder overshoots top here
    EXPECT_EQ(soft[600], hard[600]);
    EXPECT_TRUE(bNonDecreasing(soft));
}

TEST(LookupTableLog, FloatLogToLinearIsUnclippedAndRunsPastWhite)
{
    std::vector<float> table(1024);
    ASSERT_TRUE(gbCreate32BitFloatLogLinLookup(10, 0.0f, 685.0f, 95.0f, 1.0f, 0.0f, table.data()));
    double const gain = 1.0 / (1 - std::pow(10.0, double((95.0f - 685.0f) * 0.002f)));
    auto film = [&](double code) { return std::pow(10.0, (code - 685.0) * 0.002) * gain - (gain - 1.0); };
    EXPECT_LT(table[0], 0.0f);
    EXPECT_FLOAT_EQ(table[0], float(film(0.0)));
    EXPECT_NEAR(table[95], 0.0f, 1e-6);
    EXPECT_NEAR(table[685], 1.0f, 1e-6);
    EXPECT_FLOAT_EQ(table[1023], float(film(1023.0)));
    EXPECT_GT(table[1023], 1.0f);
    EXPECT_LT(*std::max_element(table.begin(), table.end()), 1e8f);
    EXPECT_TRUE(bNonDecreasing(table));
}

TEST(LookupTableLog, LinearToLogInvertsTheFilmCurve)
{
    std::vector<unsigned short> toLinear(65536), toLog(65536);
    ASSERT_TRUE(gbCreate16BitLogLinLookup(16, 0.0f, 685.0f, 95.0f, 1.0f, 0.0f, toLinear.data()));
    ASSERT_TRUE(gbCreate16BitLinLogLookup(16, 0.0f, 685.0f, 95.0f, 1.0f, 0.0f, toLog.data(), NO_FLOAT_INPUT));
    // Log output is code * 64; linear 0 sits at reference black.
    EXPECT_EQ(toLog[0], 95 * 64);
    EXPECT_EQ(toLog[65535], 685 * 64);
    double const gain = 65535.0 / (1 - std::pow(10.0, double((95.0f - 685.0f) * 0.002f)));
    double const L = 1.0 / (std::log(10.0) * double(0.002f));
    float const code = float(std::log((32768.0 + gain - 65535.0) / gain) * L) + 685.0f;
    EXPECT_EQ(toLog[32768], std::trunc(double(code * 64.0f) + 0.5));
    for (int code64 = 8000; code64 < 43000; code64 += 997)
        EXPECT_NEAR(toLog[toLinear[code64]], code64, 64) << code64;
    EXPECT_TRUE(bNonDecreasing(toLog));

    std::vector<float> floatOut(256, 3.0f);
    ASSERT_TRUE(gbCreate32BitFloatLinLogLookup(8, 0.0f, 685.0f, 95.0f, 1.0f, 0, floatOut.data(), NO_FLOAT_INPUT));
    EXPECT_TRUE(std::all_of(floatOut.begin(), floatOut.end(), [](float v) { return v == 0.5f; }));
}

TEST(LookupTablePanalog, LimitsOfTheIntegerTables)
{
    double const p = std::pow(10.0, 2.15);
    double const k = 6 / (p - 1);
    std::vector<unsigned char> toLinear(256);
    ASSERT_TRUE(gbCreate8BitPanalogLinLookup(8, toLinear.data(), false));
    EXPECT_EQ(toLinear[16], 0);  // code 64
    EXPECT_EQ(toLinear[255], 255); // code 1020
    double const e = std::pow(10.0, (400.0 - 64) / 955 * 2.15) / p;
    EXPECT_EQ(toLinear[100], std::trunc(((k + 6) * e - k) * 42.5 + 0.5));
    EXPECT_TRUE(bNonDecreasing(toLinear));

    std::vector<unsigned short> toLog(65536);
    ASSERT_TRUE(gbCreate16BitLinPanalogLookup(16, toLog.data(), NO_FLOAT_INPUT));
    EXPECT_EQ(toLog[0], 64 * 64);
    EXPECT_EQ(*std::max_element(toLog.begin(), toLog.end()), 65216);
    // The input is index times a single-precision step, multiplied in single precision.
    float const step = 6.0f / 65535;
    for (int i : {13636, 15989, 30239}) {
        double const code = std::log10(p * ((float(i) * step + k) / (k + 6))) / 2.15 * 955 + 64;
        EXPECT_EQ(toLog[i], std::trunc(code * 64 + 0.5)) << i;
    }
    EXPECT_TRUE(bNonDecreasing(toLog));
    std::vector<unsigned char> toLog8(256);
    ASSERT_TRUE(gbCreate8BitLinPanalogLookup(8, toLog8.data(), NO_FLOAT_INPUT));
    EXPECT_EQ(toLog8[255], 255);
    EXPECT_EQ(toLog8[0], 16);
}

TEST(LookupTablePanalog, FloatMembersKeepTheirConstantResults)
{
    std::vector<float> table(1024, 3.0f);
    ASSERT_TRUE(gbCreate32BitFloatPanalogLinLookup(10, table.data(), false));
    EXPECT_TRUE(std::all_of(table.begin(), table.end(), [](float v) { return v == 0.0f; }));
    ASSERT_TRUE(gbCreate32BitFloatPanalogLinLookup(10, table.data(), true));
    EXPECT_NEAR(table[64], 0.0f, 1e-6);
    EXPECT_NEAR(table[1019], 1.0f, 1e-6);
    EXPECT_GT(table[1023], 1.0f);
    EXPECT_TRUE(bNonDecreasing(table));
    std::fill(table.begin(), table.end(), 3.0f);
    ASSERT_TRUE(gbCreate32BitFloatLinPanalogLookup(8, table.data(), NO_FLOAT_INPUT));
    EXPECT_TRUE(std::all_of(table.begin(), table.begin() + 256, [](float v) { return v == 0.0f; }));
}

TEST(LookupTableGamma, GammaOneIsLinearAndOtherGammasFollowThePower)
{
    std::vector<unsigned char> t8(256);
    std::vector<unsigned short> t16(256);
    std::vector<float> tf(256), dummy(256);
    ASSERT_TRUE(gbCreate8BitGammaLookup(8, 1.0f, t8.data(), NO_FLOAT_INPUT));
    ASSERT_TRUE(gbCreate16BitGammaLookup(8, 1.0f, t16.data(), NO_FLOAT_INPUT));
    ASSERT_TRUE(gbCreate32BitFloatGammaLookup(8, 1.0f, tf.data()));
    for (int i = 0; i < 256; ++i) {
        EXPECT_EQ(t8[i], i);
        EXPECT_EQ(t16[i], 257 * i);
        EXPECT_FLOAT_EQ(tf[i], i / 255.0f);
    }

    std::vector<unsigned short> curve(65536);
    ASSERT_TRUE(gbCreate16BitGammaLookup(16, 2.2f, curve.data(), NO_FLOAT_INPUT));
    double const g = 1.0f / 2.2f;
    for (int i : {1, 100, 1000, 30000, 65535})
        EXPECT_EQ(curve[i], std::trunc(std::pow(i, g) * (65535.0 / std::pow(65535.0f, g)) + 0.5)) << i;
    EXPECT_EQ(curve[0], 0);
    EXPECT_TRUE(bNonDecreasing(curve));
    ASSERT_TRUE(gbCreate32BitFloatGammaLookupDummy(8, 2.2f, dummy.data(), NO_FLOAT_INPUT));
    ASSERT_TRUE(gbCreate32BitFloatGammaLookup(8, 2.2f, tf.data()));
    EXPECT_EQ(dummy, tf);
    EXPECT_FLOAT_EQ(tf[255], 1.0f);
}

TEST(LookupTableLog, DegenerateArgumentsAreSurvived)
{
    std::vector<unsigned short> table(1024, 7);
    for (auto [bits, out] : {std::pair{33, table.data()}, {-1, table.data()}, {10, nullptr}})
        EXPECT_FALSE(gbCreate16BitLogLinLookup(bits, 0.0f, 685.0f, 95.0f, 1.0f, 0.0f, out)) << bits;
    EXPECT_EQ(table[0], 7);
    // Gamma 0, far offsets and a NaN soft clip give garbage entries, but stay inside the table.
    for (auto [offset, gamma, softClip] : {std::tuple{0.0f, 0.0f, 10.0f}, {3e9f, 1.0f, 10.0f}, {-3e9f, 1.0f, NAN}})
        EXPECT_TRUE(gbCreate16BitLogLinLookup(10, offset, 685.0f, 95.0f, gamma, softClip, table.data())) << offset;
    EXPECT_TRUE(gbCreate16BitLinLogLookup(10, 3e9f, 685.0f, 95.0f, 0.0f, 5.0f, table.data(), NO_FLOAT_INPUT));
    EXPECT_TRUE(gbCreate16BitGammaLookup(10, 0.0f, table.data(), NO_FLOAT_INPUT));
    EXPECT_TRUE(gbCreate16BitGammaLookup(0, 2.2f, table.data(), NO_FLOAT_INPUT));
    EXPECT_TRUE(gbCreate16BitLinPanalogLookup(0, table.data(), NO_FLOAT_INPUT));
    // Float input without a forward table cannot be built.
    EXPECT_FALSE(gbCreate16BitGammaLookup(32, 2.2f, table.data(), NO_FLOAT_INPUT));
}
