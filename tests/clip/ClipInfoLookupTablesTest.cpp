// The tables a clip builds for each colourspace, checked against the curves written out here in double
// precision, and the float-input tables by looking the forward tables' own values back up.
#include "clip/ClipInfo.h"
#include "clip/LookupTableHelperMethods.h"

#include <Imath/half.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <vector>

namespace {

using Curve = std::function<double(double)>;

struct Expected {
    Curve to16From8, to8From16, forward16, inverse16, floatFrom8, floatFrom16;
};

// Entry of a two-segment float-input table for the value x, by the five segment floats.
template <class T>
double dLookUp(T const* table, float const* segments, float x)
{
    float const index = x <= segments[2] ? (x - segments[1]) * segments[0] : (x - segments[4]) * segments[3];
    return table[std::clamp(int(index), 0, 65535)];
}

double dClamp(double v, double top)
{
    return std::clamp(v, 0.0, top);
}

// Film curve: code value (0 to 1024) to linear, 0 to top at black and white.
Curve film(double white, double black, double gamma, double top)
{
    double const gain = top / (1.0 - std::pow(10.0, (black - white) * 0.002 / gamma));
    return [=](double code) { return std::pow(10.0, (code - white) * 0.002 / gamma) * gain - (gain - top); };
}

Curve inverseFilm(double white, double black, double gamma, double top)
{
    double const gain = top / (1.0 - std::pow(10.0, (black - white) * 0.002 / gamma));
    return [=](double linear) { return white + std::log10((linear + gain - top) / gain) * gamma / 0.002; };
}

double const dP = std::pow(10.0, 2.15);
double const dK = 6.0 / (dP - 1.0);

// Panalog code value (64 to 1019) to linear 0 to 6, and back.
double dPanalog(double code)
{
    return (dK + 6.0) * std::pow(10.0, (code - 64.0) / 955.0 * 2.15) / dP - dK;
}

double dInversePanalog(double linear)
{
    return std::clamp(std::log10(dP * (linear + dK) / (dK + 6.0)) / 2.15 * 955.0 + 64.0, 64.0, 1019.0);
}

Expected expectedFor(_TQ_COLORSPACE colourspace, float fGamma)
{
    double const g = fGamma;
    switch (colourspace) {
    case TQ_COLORSPACE_GAMMA:
        return {[=](double i) { return 65535.0 * std::pow(i / 255.0, 1.0 / g); },
                [=](double i) { return 255.0 * std::pow(i / 65535.0, g); },
                [=](double i) { return 65535.0 * std::pow(i / 65535.0, 1.0 / g); },
                [=](double i) { return 65535.0 * std::pow(i / 65535.0, g); },
                [=](double i) { return std::pow(i / 255.0, 1.0 / g); },
                [=](double i) { return std::pow(i / 65535.0, 1.0 / g); }};
    case TQ_COLORSPACE_LOGARITHMIC: {
        Curve const lin16 = film(685, 95, g, 65535), linFloat = film(685, 95, g, 1);
        Curve const code = inverseFilm(685, 95, g, 65535);
        return {[=](double i) { return dClamp(lin16(i * 4.0), 65535); },
                [=](double i) { return code(i) / 4.0; },
                [=](double i) { return dClamp(lin16(i / 64.0), 65535); },
                [=](double i) { return code(i) * 64.0; },
                [=](double i) { return linFloat(i * 4.0); },
                [=](double i) { return linFloat(i / 64.0); }};
    }
    default:
        return {[](double i) { return i * 4.0 <= 64.0 ? 0.0 : i * 4.0 > 1019.0 ? 65535.0 : dPanalog(i * 4.0) / 6.0 * 65535.0; },
                [](double i) { return dInversePanalog(i / 65535.0 * 6.0) / 4.0; },
                [](double i) { return i / 64.0 <= 64.0 ? 0.0 : std::min(65535.0, dPanalog(i / 64.0) / 6.0 * 65535.0); },
                [](double i) { return dInversePanalog(i / 65535.0 * 6.0) * 64.0; },
                [](double i) { return dPanalog(i * 4.0) / 6.0; },
                [](double i) { return dPanalog(i / 64.0) / 6.0; }};
    }
}

template <class T>
void vExpectCurve(T const* table, int entries, Curve const& curve, double tolerance, char const* name)
{
    ASSERT_NE(nullptr, table) << name;
    for (int i = 0; i < entries; ++i)
        ASSERT_NEAR(curve(i), double(table[i]), tolerance) << name << " entry " << i;
}

} // namespace

TEST(ClipInfoLookupTables, EachColourspaceAgainstItsCurves)
{
    struct Case { _TQ_COLORSPACE colourspace; float gamma; int firstCode8, lastCode8; };
    // The float-input round trip is checked over the codes where the forward curve rises.
    Case const cases[] = {{TQ_COLORSPACE_GAMMA, 2.2f, 1, 255}, {TQ_COLORSPACE_LOGARITHMIC, 0.6f, 24, 171},
                          {TQ_COLORSPACE_PANALOG, 1.0f, 17, 254}};
    for (Case const& c : cases) {
        SCOPED_TRACE(int(c.colourspace));
        TQ_ClipInfo clip;
        clip.colourspace.colourspace = c.colourspace;
        clip.colourspace.gamma = c.gamma;
        clip.CreateLUTs();
        TQ_ColourspaceParameters const& t = clip.colourspace;
        Expected const e = expectedFor(c.colourspace, c.gamma);
        vExpectCurve(t.lut8To16, 256, e.to16From8, 1.0, "lut8To16");
        vExpectCurve(t.lut16To8, 65536, e.to8From16, 1.0, "lut16To8");
        vExpectCurve(t.lut16To16Forward, 65536, e.forward16, 1.0, "lut16To16Forward");
        vExpectCurve(t.lut16To16Inverse, 65536, e.inverse16, 1.0, "lut16To16Inverse");
        vExpectCurve(t.lut8ToFloat, 256, e.floatFrom8, 1e-6, "lut8ToFloat");
        vExpectCurve(t.lut16ToFloat, 65536, e.floatFrom16, 1e-6, "lut16ToFloat");
        EXPECT_EQ(c.colourspace == TQ_COLORSPACE_GAMMA, t.lutHalfToFloat != nullptr);

        // A value of a forward float table, looked up in the float-input table, gives its code back.
        for (int i = c.firstCode8; i <= c.lastCode8; ++i)
            ASSERT_NEAR(i, dLookUp(t.lutFloatTo8, t.floatTo8Segments, t.lut8ToFloat[i]), 1.0) << i;
        // A 16-bit segment step spans up to 64 forward entries: one code value of the log curve.
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
    float const inverse = 1.0f / 2.2f;
    float const infinity = std::numeric_limits<float>::infinity();
    struct Case { std::uint16_t bits; float expected; };
    Case const cases[] = {
        {0x3400, std::pow(0.25f, inverse)}, {0x3C00, 1.0f}, {0x7BFF, std::pow(65504.0f, inverse)},
        {0x0001, std::pow(std::ldexp(1.0f, -24), inverse)}, {0x0000, 0.0f}, {0xBC00, -1.0f},
        {0xB400, -0.25f}, {0x7C00, infinity}, {0xFC00, -infinity}, {0x8001, -std::ldexp(1.0f, -24)},
    };
    for (Case const& c : cases)
        EXPECT_EQ(c.expected, table[c.bits]) << std::hex << c.bits;
    EXPECT_TRUE(std::signbit(table[0x8000]) && table[0x8000] == 0.0f);
    for (std::uint16_t nan : {0x7C01, 0x7E00, 0x7FFF, 0xFE00, 0xFFFF})
        EXPECT_TRUE(std::isnan(table[nan])) << std::hex << nan;
    // The NaN payloads and signs are Imath's own, bit for bit.
    std::uint32_t bits = 0;
    std::memcpy(&bits, &table[0xFE00], sizeof bits);
    EXPECT_EQ(imath_half_to_float_table[0xFE00].i, bits);
}

TEST(ClipInfoLookupTables, WhichTablesExist)
{
    TQ_ClipInfo clip;
    TQ_ColourspaceParameters& c = clip.colourspace;
    auto const count = [&c] {
        void const* const tables[] = {c.lut16To16Forward, c.lut16To16Inverse, c.lut8To16, c.lut16To8,
                                      c.lut16ToFloat, c.lutFloatTo16, c.lut8ToFloat, c.lutFloatTo8,
                                      c.lutHalfToFloat};
        return std::count_if(std::begin(tables), std::end(tables), [](void const* t) { return t != nullptr; });
    };
    clip.CreateLUTs();
    EXPECT_EQ(0, count());

    // Float data alone asks for the gamma tables, with a curve of power 1; rebuilding frees the old ones.
    c.floatFormat = TQ_TRUE;
    clip.CreateLUTs();
    clip.CreateLUTs();
    EXPECT_EQ(9, count());
    EXPECT_EQ(65535, c.lut16To16Forward[65535]);
    EXPECT_EQ(1000, c.lut16To16Inverse[1000]);

    // An unknown colourspace gets zeroed tables and no half table.
    c.colourspace = _TQ_COLORSPACE(3);
    c.floatTo8Segments[0] = 5.0f;
    clip.CreateLUTs();
    EXPECT_EQ(8, count());
    EXPECT_EQ(nullptr, c.lutHalfToFloat);
    EXPECT_EQ(0.0f, *std::max_element(c.lut16ToFloat, c.lut16ToFloat + 65536));
    EXPECT_EQ(5.0f, c.floatTo8Segments[0]);

    // Back to the defaults: every table is freed and none is built.
    c.colourspace = TQ_COLORSPACE_GAMMA;
    c.floatFormat = TQ_FALSE;
    clip.CreateLUTs();
    EXPECT_EQ(0, count());
}

TEST(ClipInfoLookupTables, ValuesFromTextOutsideTheirRangeAreSurvived)
{
    // Any float may arrive through the text; building must stay defined for all of them.
    float const nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
    float const gammas[] = {0.0f, -1.0f, nan, inf, 1e-30f};
    for (int colourspace = 0; colourspace < 3; ++colourspace) {
        for (float gamma : gammas) {
            TQ_ClipInfo clip;
            TQ_ColourspaceParameters& c = clip.colourspace;
            c.colourspace = _TQ_COLORSPACE(colourspace), c.gamma = gamma;
            c.softClip = nan, c.offset = -1e30f, c.refBlack = 2000.0f, c.refWhite = -5.0f;
            clip.CreateLUTs();
            EXPECT_EQ(c.bConversionRequired(), c.lutFloatTo16 != nullptr) << colourspace << " " << gamma;
        }
    }
}

// Each table is exactly what its builder gives for the clip's own values, with the forward float table
// and segment floats it reads: a swapped argument or a table built from the wrong forward one shows here.
TEST(ClipInfoLookupTables, EachTableIsItsBuildersOutput)
{
    for (int colourspace = 0; colourspace < 3; ++colourspace) {
        SCOPED_TRACE(colourspace);
        TQ_ClipInfo clip;
        TQ_ColourspaceParameters& c = clip.colourspace;
        c.colourspace = _TQ_COLORSPACE(colourspace);
        c.gamma = 0.6f, c.offset = 20.0f, c.refWhite = 700.0f, c.refBlack = 90.0f, c.softClip = 25.0f;
        clip.CreateLUTs();

        std::vector<unsigned short> a(256), c16(65536), d(65536), i(65536);
        std::vector<unsigned char> b(65536), g(65536);
        std::vector<float> f(256), h(65536);
        float s8[5] = {}, s16[5] = {};
        float const o = c.offset, w = c.refWhite, k = c.refBlack, gm = c.gamma, sc = c.softClip, inv = 1.0f / gm;
        float* const z = nullptr;
        if (colourspace == 0) {
            gbCreate16BitGammaLookup(8, gm, a.data(), z, z, z, z, z, z);
            gbCreate8BitGammaLookup(16, inv, b.data(), z, z, z, z, z, z);
            gbCreate16BitGammaLookup(16, gm, c16.data(), z, z, z, z, z, z);
            gbCreate16BitGammaLookup(16, inv, d.data(), z, z, z, z, z, z);
            gbCreate32BitFloatGammaLookup(8, gm, f.data());
            gbCreate8BitGammaLookup(32, inv, g.data(), &s8[0], &s8[1], &s8[2], &s8[3], &s8[4], f.data());
            gbCreate32BitFloatGammaLookup(16, gm, h.data());
            gbCreate16BitGammaLookup(32, inv, i.data(), &s16[0], &s16[1], &s16[2], &s16[3], &s16[4], h.data());
        } else if (colourspace == 1) {
            gbCreate16BitLogLinLookup(8, o, w, k, gm, sc, a.data());
            gbCreate8BitLinLogLookup(16, o, w, k, gm, sc, b.data(), z, z, z, z, z, z);
            gbCreate16BitLogLinLookup(16, o, w, k, gm, sc, c16.data());
            gbCreate16BitLinLogLookup(16, o, w, k, gm, sc, d.data(), z, z, z, z, z, z);
            gbCreate32BitFloatLogLinLookup(8, o, w, k, gm, sc, f.data());
            gbCreate8BitLinLogLookup(32, o, w, k, gm, sc, g.data(), &s8[0], &s8[1], &s8[2], &s8[3], &s8[4],
                                     f.data());
            gbCreate32BitFloatLogLinLookup(16, o, w, k, gm, sc, h.data());
            gbCreate16BitLinLogLookup(32, o, w, k, gm, sc, i.data(), &s16[0], &s16[1], &s16[2], &s16[3], &s16[4],
                                      h.data());
        } else {
            gbCreate16BitPanalogLinLookup(8, a.data(), false);
            gbCreate8BitLinPanalogLookup(16, b.data(), z, z, z, z, z, z);
            gbCreate16BitPanalogLinLookup(16, c16.data(), false);
            gbCreate16BitLinPanalogLookup(16, d.data(), z, z, z, z, z, z);
            gbCreate32BitFloatPanalogLinLookup(8, f.data(), true);
            gbCreate8BitLinPanalogLookup(32, g.data(), &s8[0], &s8[1], &s8[2], &s8[3], &s8[4], f.data());
            gbCreate32BitFloatPanalogLinLookup(16, h.data(), true);
            gbCreate16BitLinPanalogLookup(32, i.data(), &s16[0], &s16[1], &s16[2], &s16[3], &s16[4], h.data());
        }
        auto const same = [](void const* table, auto const& expected) {
            return table && std::memcmp(table, expected.data(), expected.size() * sizeof expected[0]) == 0;
        };
        EXPECT_TRUE(same(c.lut8To16, a) && same(c.lut16To8, b) && same(c.lut16To16Forward, c16));
        EXPECT_TRUE(same(c.lut16To16Inverse, d) && same(c.lut8ToFloat, f) && same(c.lutFloatTo8, g));
        EXPECT_TRUE(same(c.lut16ToFloat, h) && same(c.lutFloatTo16, i));
        EXPECT_EQ(0, std::memcmp(s8, c.floatTo8Segments, sizeof s8));
        EXPECT_EQ(0, std::memcmp(s16, c.floatTo16Segments, sizeof s16));
    }
}
