// The table builders and the tables a clip builds, checked against the curves written out here.
#include "clip/ClipInfo.h"
#include "clip/Fixtures.h"
#include "clip/LookupTableHelperMethods.h"
#include "gandalf/Error.h"

#include <Imath/half.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <numeric>
#include <vector>

#define NO_FLOAT_INPUT nullptr, nullptr, nullptr, nullptr, nullptr, nullptr

namespace {

using Curve = std::function<double(double)>;

// The film curve between code values (0 to 1024) and linear values (0 to top at black and white), with the
// soft clip's shoulder above white - softClip.
struct Film {
    double white, black, gamma, softClip, top;

    double gain() const { return top / (1.0 - std::pow(10.0, double(float((black - white) * 0.002f / gamma)))); }
    double curve(double code) const { return std::pow(10.0, (code - white) * 0.002 / gamma) * gain() - gain() + top; }
    double knee() const { return white - softClip; }
    double slope() const { return (top - curve(knee())) / std::pow(5 * softClip, softClip / 100); }
    double linear(double code) const
    {
        if (softClip <= 0 || code <= knee())
            return curve(code);
        return std::pow(code - knee(), softClip / 100) * slope() + curve(knee());
    }
    double code(double linear) const
    {
        if (softClip <= 0 || linear <= curve(knee()))
            return white + std::log10((linear + gain() - top) / gain()) * gamma / 0.002;
        return std::pow((linear - curve(knee())) / slope(), 100 / softClip) + knee();
    }
};

Film const defaultFilm16{685, 95, 1, 0, 65535};

double const dP = std::pow(10.0, 2.15);
double const dK = 6.0 / (dP - 1.0);

// Panalog code value (64 to 1019) to linear 0 to 6, and back.
double dPanalog(double code)
{
    return (dK + 6.0) * std::pow(10.0, (code - 64.0) / 955.0 * 2.15) / dP - dK;
}

double dInversePanalog(double linear)
{
    return std::clamp(std::log10(dP * ((linear + dK) / (dK + 6.0))) / 2.15 * 955.0 + 64.0, 64.0, 1019.0);
}

double dRound(double v)
{
    return std::trunc(v + 0.5);
}

// A table built by `build` into `entries` entries, as doubles.
template <typename T, typename Build>
std::vector<double> vBuilt(int entries, Build build)
{
    std::vector<T> table(entries, T(7));
    EXPECT_TRUE(build(table.data()));
    return std::vector<double>(table.begin(), table.end());
}

struct TwoSegments {
    float lowScale = 0, lowOffset = 0, split = 0, highScale = 0, highOffset = 0;
    long index(float x) const
    {
        return x <= split ? std::lround((x - lowOffset) * lowScale) : std::lround((x - highOffset) * highScale);
    }
};

// Every probed grid input of a float-input table must fall on its own entry, holding `curve` at the input
// as an integer table stores it (truncated, wrapping). Inputs where the curve has no value are skipped.
template <typename T>
void vExpectLookups(std::vector<T> const& table, TwoSegments const& s, std::function<double(float)> curve)
{
    float const lowStep = 1 / s.lowScale, highStep = 1 / s.highScale;
    float const highStart = s.highOffset + highStep * 32768;
    int checked = 0;
    for (int i : {1, 500, 9000, 20000, 25000, 30000, 32767}) {
        for (auto [entry, x] : {std::pair{i, i * lowStep + s.lowOffset}, {32768 + i, i * highStep + highStart}}) {
            if ((entry < 32768) != (x <= s.split) || !(std::abs(curve(x)) < 2e9))
                continue;
            ASSERT_EQ(s.index(x), entry);
            EXPECT_EQ(table[entry], static_cast<T>(static_cast<std::uint32_t>(std::int64_t(curve(x))))) << entry;
            ++checked;
        }
    }
    EXPECT_GE(checked, 4);
}

} // namespace

TEST(LookupTable, LimitsRoundingAndQuirksOfEachCurve)
{
    using U8 = unsigned char;
    using U16 = unsigned short;
    auto const log16 = vBuilt<U16>(65536, [](U16* t) { return gbCreate16BitLogLinLookup(16, 0, 685, 95, 1, 0, t); });
    auto const soft = vBuilt<U16>(1024, [](U16* t) { return gbCreate16BitLogLinLookup(10, 0, 685, 95, 1, 20, t); });
    auto const logFloat = vBuilt<float>(1024, [](float* t) {
        return gbCreate32BitFloatLogLinLookup(10, 0, 685, 95, 1, 0, t);
    });
    auto const toLog = vBuilt<U16>(65536, [](U16* t) {
        return gbCreate16BitLinLogLookup(16, 0, 685, 95, 1, 0, t, NO_FLOAT_INPUT);
    });
    auto const toLogFloat = vBuilt<float>(256, [](float* t) {
        return gbCreate32BitFloatLinLogLookup(8, 0, 685, 95, 1, 0, t, NO_FLOAT_INPUT);
    });
    auto const panalog = vBuilt<U8>(256, [](U8* t) { return gbCreate8BitPanalogLinLookup(8, t, false); });
    auto const toPanalog8 = vBuilt<U8>(256, [](U8* t) { return gbCreate8BitLinPanalogLookup(8, t, NO_FLOAT_INPUT); });
    auto const toPanalog = vBuilt<U16>(65536, [](U16* t) {
        return gbCreate16BitLinPanalogLookup(16, t, NO_FLOAT_INPUT);
    });
    auto const panalogFloat = vBuilt<float>(1024, [](float* t) {
        return gbCreate32BitFloatPanalogLinLookup(10, t, false);
    });
    auto const toPanalogFloat = vBuilt<float>(1024, [](float* t) {
        return gbCreate32BitFloatLinPanalogLookup(10, t, NO_FLOAT_INPUT);
    });
    auto const gamma = vBuilt<U16>(65536, [](U16* t) { return gbCreate16BitGammaLookup(16, 2.2f, t, NO_FLOAT_INPUT); });

    // The linear-to-log code is rounded to single precision before it is scaled; the Panalog input is the
    // index times a single-precision step.
    double const L = 1.0 / (std::log(10.0) * double(0.002f)), gain = defaultFilm16.gain();
    float const code = float(std::log((32768.0 + gain - 65535.0) / gain) * L) + 685.0f;
    auto const toPanalogAt = [](int i) { return dRound(dInversePanalog(float(i) * (6.0f / 65535)) * 64); };
    double const g = 1.0f / 2.2f;
    auto const gammaAt = [g](int i) { return dRound(std::pow(i, g) * (65535.0 / std::pow(65535.0f, g))); };
    Film const softFilm{685, 95, 1, 20, 65535};
    // Entries [from, to) of a table lie in [lo, hi].
    struct Range { std::vector<double> const& table; int from, to; double lo, hi; };
    Range const ranges[] = {
        {log16, 0, 6081, 0, 0}, {log16, 6200, 43840, 1, 65534}, {log16, 43840, 65536, 65535, 65535},  // code 95, 685
        {log16, 20000, 20001, dRound(defaultFilm16.curve(312.5)), dRound(defaultFilm16.curve(312.5))},
        {soft, 600, 601, dRound(softFilm.linear(600)), dRound(softFilm.linear(600))},
        {soft, 670, 671, dRound(softFilm.linear(670)), dRound(softFilm.linear(670))},
        {soft, 700, 701, dRound(softFilm.linear(700)), dRound(softFilm.linear(700))},
        {soft, 685, 686, 0, 65534}, {soft, 1023, 1024, 65535, 65535},  // the shoulder overshoots and is clamped
        {logFloat, 0, 1, -1, -1e-3}, {logFloat, 1023, 1024, 1.001, 1e8},  // unclipped, and no 1e9 marker
        {toLog, 0, 1, 95 * 64, 95 * 64}, {toLog, 65535, 65536, 685 * 64, 685 * 64},
        {toLog, 32768, 32769, dRound(double(code * 64.0f)), dRound(double(code * 64.0f))},
        {toLogFloat, 0, 256, 0.5, 0.5},  // the float member scales by 0
        {panalog, 16, 17, 0, 0}, {panalog, 255, 256, 255, 255},  // codes 64 and 1020
        {panalog, 100, 101, dRound(dPanalog(400.0) * 42.5), dRound(dPanalog(400.0) * 42.5)},
        {toPanalog8, 0, 1, 16, 16}, {toPanalog8, 255, 256, 255, 255},
        {toPanalog, 0, 1, 64 * 64, 64 * 64}, {toPanalog, 0, 65536, 0, 65216}, {toPanalog, 65535, 65536, 65216, 65216},
        {toPanalog, 13636, 13637, toPanalogAt(13636), toPanalogAt(13636)},
        {toPanalog, 15989, 15990, toPanalogAt(15989), toPanalogAt(15989)},
        {toPanalog, 30239, 30240, toPanalogAt(30239), toPanalogAt(30239)},
        {panalogFloat, 0, 1024, 0, 0}, {toPanalogFloat, 0, 1024, 0, 0},  // unless normalised, only zeros
        {gamma, 0, 1, 0, 0}, {gamma, 1, 2, gammaAt(1), gammaAt(1)}, {gamma, 1000, 1001, gammaAt(1000), gammaAt(1000)},
        {gamma, 30000, 30001, gammaAt(30000), gammaAt(30000)}, {gamma, 65535, 65536, 65535, 65535},
    };
    for (Range const& r : ranges) {
        auto const [low, high] = std::minmax_element(r.table.begin() + r.from, r.table.begin() + r.to);
        EXPECT_TRUE(*low >= r.lo && *high <= r.hi) << &r - ranges << ": " << *low << " to " << *high;
    }

    // Reference black above white counts as one below white.
    auto const logWithBlack = [](float black) {
        return vBuilt<U8>(1024, [&](U8* t) { return gbCreate8BitLogLinLookup(10, 0, 685, black, 1, 0, t); });
    };
    EXPECT_TRUE(logWithBlack(700) == logWithBlack(684) && logWithBlack(700) != logWithBlack(600));

    // Gamma 1 is the identity; the dummy float member is the plain one.
    std::vector<double> identity(256);
    std::iota(identity.begin(), identity.end(), 0.0);
    EXPECT_EQ(identity, vBuilt<U8>(256, [](U8* t) { return gbCreate8BitGammaLookup(8, 1, t, NO_FLOAT_INPUT); }));
    auto const float8 = vBuilt<float>(256, [](float* t) { return gbCreate32BitFloatGammaLookup(8, 2.2f, t); });
    EXPECT_EQ(float8, vBuilt<float>(256, [](float* t) {
        return gbCreate32BitFloatGammaLookupDummy(8, 2.2f, t, NO_FLOAT_INPUT);
    }));
}

TEST(LookupTable, FloatInputTablesLookUpThroughTheirFiveFloats)
{
    Film const film{685, 95, 1, 0, 1};
    double const L = 1.0 / (std::log(10.0) * double(0.002f));
    std::vector<float> forward(65536);
    std::vector<unsigned short> table(65536);
    TwoSegments s;
    ASSERT_TRUE(gbCreate32BitFloatLogLinLookup(16, 0.0f, 685.0f, 95.0f, 1.0f, 0.0f, forward.data()));
    ASSERT_TRUE(gbCreate16BitLinLogLookup(32, 0.0f, 685.0f, 95.0f, 1.0f, 0.0f, table.data(), &s.lowScale,
                                          &s.lowOffset, &s.split, &s.highScale, &s.highOffset, forward.data()));
    EXPECT_TRUE(s.lowOffset == forward[0] && s.lowScale == 1 / (forward[64] - forward[0]));
    vExpectLookups(table, s, [&](float x) {
        return std::trunc((float(std::log((x + film.gain() - 1.0) / film.gain()) * L) + 685.0f) * 64.0f + 0.5f);
    });

    std::vector<unsigned char> table8(65536);
    ASSERT_TRUE(gbCreate32BitFloatPanalogLinLookup(8, forward.data(), true));
    ASSERT_TRUE(gbCreate8BitLinPanalogLookup(32, table8.data(), &s.lowScale, &s.lowOffset, &s.split,
                                             &s.highScale, &s.highOffset, forward.data()));
    // No floor at 64, no limit at 1019, no rounding term.
    vExpectLookups(table8, s, [&](float x) {
        return std::trunc((std::log10(dP * ((x * 6.0f + dK) / (dK + 6))) / 2.15 * 955 + 64) * 0.25);
    });

    // The gamma table builds its finer end first: the high end for a steep start, the low end for a flat one.
    for (float forwardGamma : {2.2f, 0.5f}) {
        ASSERT_TRUE(gbCreate32BitFloatGammaLookup(16, forwardGamma, forward.data()));
        ASSERT_TRUE(gbCreate16BitGammaLookup(32, 1.0f / forwardGamma, table.data(), &s.lowScale, &s.lowOffset,
                                             &s.split, &s.highScale, &s.highOffset, forward.data()));
        double const g = 1.0f / (1.0f / forwardGamma);
        vExpectLookups(table, s, [&](float x) { return std::trunc(std::pow(x, g) * 65535.0 + 0.5); });
        if (forwardGamma > 1)
            EXPECT_FLOAT_EQ(s.split, (forward[65535] - forward[65534]) * 8 * -32767.0f + forward[65535]);
        else
            EXPECT_EQ(s.lowOffset, forward[0]);
    }
}

TEST(LookupTable, FloatOutputMembersRefuseFloatInputWithOneTraceEntry)
{
    float u[5] = {};
    float* const v = u + 4;
    std::vector<float> forward(256, 0.5f), table(4, 9.0f);
    float* const t = table.data();
    float* const f = forward.data();
    // A null table is refused the same way: the refusal does not depend on it. The gamma members have
    // already set entry 0.
    struct Case { int line; std::function<bool(float*)> build; float entry0; };
    Case const cases[] = {
        {474, [&](float* p) { return gbCreate32BitFloatLinLogLookup(32, 0, 685, 95, 1, 0, p, u, u, u, u, v, f); }, 9},
        {159, [&](float* p) { return gbCreate32BitFloatLinPanalogLookup(32, p, u, u + 1, u + 2, u + 3, v, f); }, 9},
        {683, [](float* p) { return gbCreate32BitFloatGammaLookup(32, 2.2f, p); }, 0},
        {683, [&](float* p) { return gbCreate32BitFloatGammaLookupDummy(32, 2.2f, p, u, u, u, u, v, f); }, 0},
    };
    for (Case const& c : cases) {
        for (float* const out : {t, static_cast<float*>(nullptr)}) {
            std::fill(table.begin(), table.end(), 9.0f);
            gan_err_register_fileline("earlier", 1, "elsewhere", 1, "stale", 3);
            EXPECT_FALSE(c.build(out));
            ASSERT_EQ(gan_err_get_error_count(), 1);
            char const *func = nullptr, *file = nullptr, *message = nullptr;
            int code = 0, line = 0, number = -1;
            ASSERT_EQ(gan_err_get_error(0, &func, &code, &file, &line, &message, &number), 1);
            EXPECT_STREQ(func, "CREATE_LINEAR_TO_LOG_LOOKUP");
            EXPECT_TRUE(code == 12 && line == c.line && number == 0 && std::strlen(message) == 0);
            EXPECT_STREQ(file, "LookupTableHelperMethods");
            EXPECT_TRUE(table[0] == (out ? c.entry0 : 9.0f) && table[1] == 9.0f);
            EXPECT_TRUE(std::all_of(u, u + 5, [](float v) { return v == 0.0f; }));
        }
    }
    gan_err_flush_trace();
}

TEST(LookupTable, DegenerateArgumentsAreSurvived)
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

namespace {

struct Colour {
    _TQ_COLORSPACE colourspace;
    float gamma, offset, white, black, softClip;
    int firstCode8, lastCode8;  // where the forward curve rises, for the float-input round trip
};

struct Expected {
    Curve to16From8, to8From16, forward16, inverse16, floatFrom8, floatFrom16;
};

Expected expectedFor(Colour const& c)
{
    double const g = c.gamma;
    if (c.colourspace == TQ_COLORSPACE_GAMMA)
        return {[=](double i) { return 65535.0 * std::pow(i / 255.0, 1.0 / g); },
                [=](double i) { return 255.0 * std::pow(i / 65535.0, g); },
                [=](double i) { return 65535.0 * std::pow(i / 65535.0, 1.0 / g); },
                [=](double i) { return 65535.0 * std::pow(i / 65535.0, g); },
                [=](double i) { return std::pow(i / 255.0, 1.0 / g); },
                [=](double i) { return std::pow(i / 65535.0, 1.0 / g); }};
    if (c.colourspace == TQ_COLORSPACE_LOGARITHMIC) {
        // The offset is the code value of entry 0, in whole table steps; the log output is shifted by it.
        Film const f16{c.white, c.black, g, c.softClip, 65535}, fFloat{c.white, c.black, g, c.softClip, 1};
        double const i8 = std::trunc(c.offset / 4), i16 = std::trunc(c.offset * 64);
        return {[=](double i) { return std::clamp(f16.linear((i8 + i) * 4), 0.0, 65535.0); },
                [=](double i) { return f16.code(i) / 4 - i8; },
                [=](double i) { return std::clamp(f16.linear((i16 + i) / 64), 0.0, 65535.0); },
                [=](double i) { return f16.code(i) * 64 - i16; },
                [=](double i) { return fFloat.linear((i8 + i) * 4); },
                [=](double i) { return fFloat.linear((i16 + i) / 64); }};
    }
    auto const limited = [](double code) {
        return code <= 64.0 ? 0.0 : code > 1019.0 ? 65535.0 : dPanalog(code) / 6.0 * 65535.0;
    };
    return {[=](double i) { return limited(i * 4.0); },
            [](double i) { return dInversePanalog(i / 65535.0 * 6.0) / 4.0; },
            [=](double i) { return limited(i / 64.0); },
            [](double i) { return dInversePanalog(i / 65535.0 * 6.0) * 64.0; },
            [](double i) { return dPanalog(i * 4.0) / 6.0; },
            [](double i) { return dPanalog(i / 64.0) / 6.0; }};
}

template <class T>
void vExpectCurve(T const* table, int entries, Curve const& curve, double tolerance, char const* name)
{
    ASSERT_NE(nullptr, table) << name;
    for (int i = 0; i < entries; ++i)
        ASSERT_NEAR(curve(i), double(table[i]), tolerance) << name << " entry " << i;
}

// Entry of a two-segment float-input table for the value x.
template <class T>
double dLookUp(T const* table, float const* segments, float x)
{
    float const index = x <= segments[2] ? (x - segments[1]) * segments[0] : (x - segments[4]) * segments[3];
    return table[std::clamp(int(index), 0, 65535)];
}

int iTablesOf(TQ_ColourspaceParameters const& c)
{
    std::vector<void const*> const tables = TQTest::tablesOf(c);
    return int(tables.size()) - int(std::count(tables.begin(), tables.end(), nullptr));
}

} // namespace

TEST(ClipInfoLookupTables, EachColourspaceAgainstItsCurves)
{
    Colour const cases[] = {{TQ_COLORSPACE_GAMMA, 2.2f, 0, 685, 95, 0, 1, 255},
                            {TQ_COLORSPACE_LOGARITHMIC, 0.6f, 0, 685, 95, 0, 24, 171},
                            {TQ_COLORSPACE_LOGARITHMIC, 0.6f, 20, 700, 90, 25, 19, 250},
                            {TQ_COLORSPACE_PANALOG, 1.0f, 0, 685, 95, 0, 17, 254}};
    for (Colour const& c : cases) {
        SCOPED_TRACE(testing::Message() << int(c.colourspace) << " offset " << c.offset);
        TQ_ClipInfo clip;
        TQ_ColourspaceParameters& t = clip.colourspace;
        t.colourspace = c.colourspace, t.gamma = c.gamma, t.offset = c.offset, t.refWhite = c.white;
        t.refBlack = c.black, t.softClip = c.softClip;
        clip.CreateLUTs();
        Expected const e = expectedFor(c);
        vExpectCurve(t.lut8To16, 256, e.to16From8, 1.0, "lut8To16");
        vExpectCurve(t.lut16To8, 65536, e.to8From16, 1.0, "lut16To8");
        vExpectCurve(t.lut16To16Forward, 65536, e.forward16, 1.0, "lut16To16Forward");
        vExpectCurve(t.lut16To16Inverse, 65536, e.inverse16, 1.0, "lut16To16Inverse");
        vExpectCurve(t.lut8ToFloat, 256, e.floatFrom8, 1e-6, "lut8ToFloat");
        vExpectCurve(t.lut16ToFloat, 65536, e.floatFrom16, 1e-6, "lut16ToFloat");
        EXPECT_EQ(c.colourspace == TQ_COLORSPACE_GAMMA, t.lutHalfToFloat != nullptr);

        // A value of a forward float table, looked up in the float-input table, gives its code back. A 16-bit
        // segment step spans up to 64 forward entries: one code value of the log curve.
        for (int i = c.firstCode8; i <= c.lastCode8; ++i)
            ASSERT_NEAR(i, dLookUp(t.lutFloatTo8, t.floatTo8Segments, t.lut8ToFloat[i]), 1.0) << i;
        for (int i = c.firstCode8 * 256; i <= c.lastCode8 * 256; i += 7)
            ASSERT_NEAR(i, dLookUp(t.lutFloatTo16, t.floatTo16Segments, t.lut16ToFloat[i]), 64.0) << i;
    }
}

TEST(ClipInfoLookupTables, HalfTablePassesSpecialValuesThrough)
{
    TQ_ClipInfo clip;
    clip.colourspace.gamma = 2.2f;
    clip.CreateLUTs();
    float const* const table = clip.colourspace.lutHalfToFloat;
    ASSERT_NE(nullptr, table);
    float const inverse = 1.0f / 2.2f, infinity = std::numeric_limits<float>::infinity();
    struct Case { std::uint16_t bits; float expected; };
    Case const cases[] = {
        {0x3400, std::pow(0.25f, inverse)}, {0x3C00, 1.0f}, {0x7BFF, std::pow(65504.0f, inverse)},
        {0x0001, std::pow(std::ldexp(1.0f, -24), inverse)}, {0x0000, 0.0f}, {0xBC00, -1.0f},
        {0xB400, -0.25f}, {0x7C00, infinity}, {0xFC00, -infinity}, {0x8001, -std::ldexp(1.0f, -24)},
    };
    for (Case const& c : cases)
        EXPECT_EQ(c.expected, table[c.bits]) << std::hex << c.bits;
    EXPECT_TRUE(std::signbit(table[0x8000]) && table[0x8000] == 0.0f);
    // NaNs pass through with their payloads and signs, bit for bit.
    for (std::uint16_t nan : {0x7C01, 0x7E00, 0x7FFF, 0xFE00, 0xFFFF}) {
        std::uint32_t bits = 0;
        std::memcpy(&bits, &table[nan], sizeof bits);
        EXPECT_EQ(imath_half_to_float_table[nan].i, bits) << std::hex << nan;
    }
}

TEST(ClipInfoLookupTables, WhichTablesExist)
{
    TQ_ClipInfo clip;
    TQ_ColourspaceParameters& c = clip.colourspace;
    clip.CreateLUTs();
    EXPECT_EQ(0, iTablesOf(c));
    // Float data alone asks for the gamma tables, with a curve of power 1; rebuilding frees the old ones.
    c.floatFormat = TQ_TRUE;
    clip.CreateLUTs();
    clip.CreateLUTs();
    EXPECT_EQ(9, iTablesOf(c));
    EXPECT_TRUE(c.lut16To16Forward[65535] == 65535 && c.lut16To16Inverse[1000] == 1000);
    // An unknown colourspace gets its tables but no half table, and the segment floats stay.
    c.colourspace = _TQ_COLORSPACE(3);
    c.floatTo8Segments[0] = 5.0f;
    clip.CreateLUTs();
    EXPECT_TRUE(iTablesOf(c) == 8 && c.lutHalfToFloat == nullptr && c.floatTo8Segments[0] == 5.0f);
    // Back to the defaults: every table is freed and none is built.
    c.colourspace = TQ_COLORSPACE_GAMMA, c.floatFormat = TQ_FALSE;
    clip.CreateLUTs();
    EXPECT_EQ(0, iTablesOf(c));

    // Any float may arrive through the text; building must stay defined for all of them.
    float const nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
    for (int colourspace = 0; colourspace < 3; ++colourspace) {
        for (float gamma : {0.0f, -1.0f, nan, inf, 1e-30f}) {
            c.colourspace = _TQ_COLORSPACE(colourspace), c.gamma = gamma;
            c.softClip = nan, c.offset = -1e30f, c.refBlack = 2000.0f, c.refWhite = -5.0f;
            clip.CreateLUTs();
            EXPECT_EQ(c.bConversionRequired(), c.lutFloatTo16 != nullptr) << colourspace << " " << gamma;
        }
    }
}
