// Two-segment tables for float input, and the failure of the float-output members asked for them.
#include "clip/LookupTableHelperMethods.h"
#include "gandalf/Error.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#define NO_OUTPUTS nullptr, nullptr, nullptr, nullptr, nullptr, nullptr

namespace {

struct TwoSegments {
    float lowScale = 0, lowOffset = 0, split = 0, highScale = 0, highOffset = 0;
    long index(float x) const
    {
        return x <= split ? std::lround((x - lowOffset) * lowScale) : std::lround((x - highOffset) * highScale);
    }
};

// Every probed grid input must fall on its own entry, and that entry must be `curve` at the input, stored
// with the truncating, wrapping conversion of an integer table. Inputs where the curve has no value
// (powers of negative inputs) are skipped.
template <typename T>
void vExpectLookups(std::vector<T> const& table, TwoSegments const& s, std::function<double(float)> rawCurve)
{
    auto defined = [&](float x) { return std::abs(rawCurve(x)) < 2e9; };
    auto curve = [&](float x) { return static_cast<T>(static_cast<std::uint32_t>(std::int64_t(rawCurve(x)))); };
    float const lowStep = 1 / s.lowScale, highStep = 1 / s.highScale;
    float const highStart = s.highOffset + highStep * 32768;
    int lowChecked = 0, highChecked = 0;
    for (int i : {1, 500, 9000, 20000, 25000, 30000, 32767}) {
        float const low = i * lowStep + s.lowOffset;
        if (low <= s.split && defined(low)) {
            ASSERT_EQ(s.index(low), i);
            EXPECT_EQ(table[i], curve(low)) << "low " << i;
            ++lowChecked;
        }
        float const high = i * highStep + highStart;
        if (high > s.split && defined(high)) {
            ASSERT_EQ(s.index(high), 32768 + i);
            EXPECT_EQ(table[32768 + i], curve(high)) << "high " << i;
            ++highChecked;
        }
    }
    EXPECT_GE(lowChecked + highChecked, 4);
}

void vExpectOneEntry(int line)
{
    ASSERT_EQ(gan_err_get_error_count(), 1);
    char const *func = nullptr, *file = nullptr, *message = nullptr;
    int code = 0, entryLine = 0, number = -1;
    ASSERT_EQ(gan_err_get_error(0, &func, &code, &file, &entryLine, &message, &number), 1);
    EXPECT_STREQ(func, "CREATE_LINEAR_TO_LOG_LOOKUP");
    EXPECT_EQ(code, 12);
    EXPECT_STREQ(file, "LookupTableHelperMethods");
    EXPECT_EQ(entryLine, line);
    EXPECT_STREQ(message, "");
    EXPECT_EQ(number, 0);
}

} // namespace

TEST(LookupTableFloatInput, LogTableLooksUpThroughItsFiveFloats)
{
    std::vector<float> forward(65536);
    ASSERT_TRUE(gbCreate32BitFloatLogLinLookup(16, 0.0f, 685.0f, 95.0f, 1.0f, 0.0f, forward.data()));
    std::vector<unsigned short> table(65536);
    TwoSegments s;
    ASSERT_TRUE(gbCreate16BitLinLogLookup(32, 0.0f, 685.0f, 95.0f, 1.0f, 0.0f, table.data(), &s.lowScale,
                                          &s.lowOffset, &s.split, &s.highScale, &s.highOffset,
                                          forward.data()));
    float const lowStep = forward[64] - forward[0];
    EXPECT_EQ(s.lowOffset, forward[0]);
    EXPECT_EQ(s.lowScale, 1 / lowStep);
    EXPECT_EQ(s.split, 32767 * lowStep + forward[0]);
    float const highStep = forward[32832] - forward[32768];
    EXPECT_EQ(s.highOffset, forward[32768] + highStep * -32768);
    double const gain = 1.0 / (1 - std::pow(10.0, double((95.0f - 685.0f) * 0.002f)));
    double const L = 1.0 / (std::log(10.0) * double(0.002f));
    vExpectLookups(table, s, [&](float x) {
        float const code = float(std::log((x + gain - 1.0) / gain) * L) + 685.0f;
        return std::trunc(code * 64.0f + 0.5f);
    });
    // Mid-grey sits near code 445 whichever segment holds it.
    EXPECT_NEAR(table[s.index(forward[445 * 64])], 445 * 64, 64);
}

TEST(LookupTableFloatInput, PanalogTableLooksUpThroughItsFiveFloats)
{
    std::vector<float> forward(256);
    ASSERT_TRUE(gbCreate32BitFloatPanalogLinLookup(8, forward.data(), true));
    std::vector<unsigned char> table(65536);
    TwoSegments s;
    ASSERT_TRUE(gbCreate8BitLinPanalogLookup(32, table.data(), &s.lowScale, &s.lowOffset, &s.split,
                                             &s.highScale, &s.highOffset, forward.data()));
    double const p = std::pow(10.0, 2.15);
    double const k = 6 / (p - 1);
    vExpectLookups(table, s, [&](float x) {
        return std::trunc((std::log10(p * ((x * 6.0f + k) / (k + 6))) / 2.15 * 955 + 64) * 0.25);
    });
}

TEST(LookupTableFloatInput, GammaTableBuildsTheFinerEndFirst)
{
    for (float forwardGamma : {2.2f, 0.5f}) { // steep start, then flat start
        std::vector<float> forward(65536);
        ASSERT_TRUE(gbCreate32BitFloatGammaLookup(16, forwardGamma, forward.data()));
        std::vector<unsigned short> table(65536);
        TwoSegments s;
        ASSERT_TRUE(gbCreate16BitGammaLookup(32, 1.0f / forwardGamma, table.data(), &s.lowScale, &s.lowOffset,
                                             &s.split, &s.highScale, &s.highOffset, forward.data()));
        double const g = 1.0f / (1.0f / forwardGamma);
        vExpectLookups(table, s, [&](float x) { return std::trunc(std::pow(x, g) * 65535.0 + 0.5); });
        if (forwardGamma > 1) // the high segment ends on the last forward entry
            EXPECT_FLOAT_EQ(s.split, (forward[65535] - forward[65534]) * 8 * -32767.0f + forward[65535]);
        else
            EXPECT_EQ(s.lowOffset, forward[0]);
    }
}

TEST(LookupTableFloatInput, FloatOutputMembersFailWithOneTraceEntry)
{
    float u[5] = {};
    std::vector<float> forward(256, 0.5f), table(4, 9.0f);
    float* const t = table.data();
    float* const f = forward.data();
    // A null table is refused the same way: the refusal does not depend on it.
    struct Case { int line; std::function<bool()> build; float entry0; bool bNullTable; };
    Case const cases[] = {
        {474, [&] { return gbCreate32BitFloatLinLogLookup(32, 0, 685, 95, 1, 0, t, u, u + 1, u + 2, u + 3, u + 4, f); },
         9.0f, false},
        {159, [&] { return gbCreate32BitFloatLinPanalogLookup(32, t, u, u + 1, u + 2, u + 3, u + 4, f); }, 9.0f, false},
        {683, [&] { return gbCreate32BitFloatGammaLookup(32, 2.2f, t); }, 0.0f, false},
        {683, [&] { return gbCreate32BitFloatGammaLookupDummy(32, 2.2f, t, u, u + 1, u + 2, u + 3, u + 4, f); }, 0.0f,
         false},
        {474, [] { return gbCreate32BitFloatLinLogLookup(32, 0, 685, 95, 1, 0, nullptr, NO_OUTPUTS); }, 0, true},
        {159, [] { return gbCreate32BitFloatLinPanalogLookup(32, nullptr, NO_OUTPUTS); }, 0, true},
        {683, [] { return gbCreate32BitFloatGammaLookup(32, 2.2f, nullptr); }, 0, true},
    };
    for (Case const& c : cases) {
        std::fill(table.begin(), table.end(), 9.0f);
        gan_err_register_fileline("earlier", 1, "elsewhere", 1, "stale", 3);
        EXPECT_FALSE(c.build());
        vExpectOneEntry(c.line);
        if (c.bNullTable)
            continue;
        EXPECT_EQ(table[0], c.entry0);
        EXPECT_EQ(table[1], 9.0f);
        for (float v : u)
            EXPECT_EQ(v, 0.0f);
    }
    gan_err_flush_trace();
}
