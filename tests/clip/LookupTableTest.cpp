// The table builders and the tables a clip builds, checked against values of the curves worked out
// independently of the library.
#include "clip/ClipInfo.h"
#include "clip/Fixtures.h"
#include "clip/LookupTableHelperMethods.h"
#include "gandalf/Error.h"

#include <Imath/half.h>

#include <QFile>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>
#include <map>
#include <numeric>
#include <vector>

#define NO_FLOAT_INPUT nullptr, nullptr, nullptr, nullptr, nullptr, nullptr
#define SEGMENTS(s) s, s + 1, s + 2, s + 3, s + 4
// The table of `entries` entries of type T that `call` fills through `t`, as doubles.
#define BUILT(T, entries, call) vBuilt<T>(entries, [](T* t) { return call; })

namespace {

using U8 = unsigned char;
using U16 = unsigned short;

// The Panalog curve's constants, and the film curve's code scale with the single-precision 0.002.
double const dP = std::pow(10.0, 2.15), dK = 6.0 / (dP - 1.0), dL = 1.0 / (std::log(10.0) * double(0.002f));

// A table built by `build` into `entries` entries, as doubles.
template <typename T, typename Build>
std::vector<double> vBuilt(int entries, Build build)
{
    std::vector<T> table(entries, T(7));
    EXPECT_TRUE(build(table.data()));
    return std::vector<double>(table.begin(), table.end());
}

// Where `x` falls in a float-input table by its five floats: low scale, low offset, split, high scale and offset.
float fPosition(float const* s, float x)
{
    return x <= s[2] ? (x - s[1]) * s[0] : (x - s[4]) * s[3];
}

// Every probed grid input of a float-input table must fall on its own entry, holding `curve` at the input
// as an integer table stores it (truncated, wrapping). Inputs where the curve has no value are skipped.
template <typename T>
void vExpectLookups(std::vector<T> const& table, float const* s, std::function<double(float)> curve)
{
    float const lowStep = 1 / s[0], highStep = 1 / s[3], highStart = s[4] + highStep * 32768;
    int checked = 0;
    for (int i : {1, 500, 9000, 20000, 25000, 30000, 32767}) {
        for (auto [entry, x] : {std::pair{i, i * lowStep + s[1]}, {32768 + i, i * highStep + highStart}}) {
            if ((entry < 32768) != (x <= s[2]) || !(std::abs(curve(x)) < 2e9))
                continue;
            ASSERT_EQ(std::lround(fPosition(s, x)), entry);
            EXPECT_EQ(table[entry], static_cast<T>(static_cast<std::uint32_t>(std::int64_t(curve(x))))) << entry;
            ++checked;
        }
    }
    EXPECT_GE(checked, 4);
}

// The rows of a data file beside the tests, split at blanks; '#' starts a comment.
std::vector<QList<QByteArray>> rowsOf(char const* name)
{
    QFile file(QString(TQ_TEST_FOLDER "/data/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text)) << name;
    std::vector<QList<QByteArray>> rows;
    while (!file.atEnd())
        if (QByteArray const row = file.readLine().split('#')[0].simplified(); !row.isEmpty())
            rows.push_back(row.split(' '));
    return rows;
}

} // namespace

TEST(LookupTable, LimitsRoundingAndQuirksOfEachCurve)
{
    std::map<QByteArray, std::vector<double>> const tables = {
        {"log16", BUILT(U16, 65536, gbCreate16BitLogLinLookup(16, 0, 685, 95, 1, 0, t))},
        {"soft", BUILT(U16, 1024, gbCreate16BitLogLinLookup(10, 0, 685, 95, 1, 20, t))},
        {"logFloat", BUILT(float, 1024, gbCreate32BitFloatLogLinLookup(10, 0, 685, 95, 1, 0, t))},
        {"toLog", BUILT(U16, 65536, gbCreate16BitLinLogLookup(16, 0, 685, 95, 1, 0, t, NO_FLOAT_INPUT))},
        {"toLogFloat", BUILT(float, 256, gbCreate32BitFloatLinLogLookup(8, 0, 685, 95, 1, 0, t, NO_FLOAT_INPUT))},
        {"panalog", BUILT(U8, 256, gbCreate8BitPanalogLinLookup(8, t, false))},
        {"toPanalog8", BUILT(U8, 256, gbCreate8BitLinPanalogLookup(8, t, NO_FLOAT_INPUT))},
        {"toPanalog", BUILT(U16, 65536, gbCreate16BitLinPanalogLookup(16, t, NO_FLOAT_INPUT))},
        {"panalogFloat", BUILT(float, 1024, gbCreate32BitFloatPanalogLinLookup(10, t, false))},
        {"toPanalogFloat", BUILT(float, 1024, gbCreate32BitFloatLinPanalogLookup(10, t, NO_FLOAT_INPUT))},
        {"gamma", BUILT(U16, 65536, gbCreate16BitGammaLookup(16, 2.2f, t, NO_FLOAT_INPUT))},
    };
    for (QList<QByteArray> const& row : rowsOf("BuilderTables.txt")) {
        std::vector<double> const& table = tables.at(row[0]);
        double const lo = row[3].toDouble(), hi = row.size() > 4 ? row[4].toDouble() : lo;
        auto const [low, high] = std::minmax_element(table.begin() + row[1].toInt(), table.begin() + row[2].toInt());
        EXPECT_TRUE(*low >= lo && *high <= hi) << row.join(' ').constData() << ": " << *low << " to " << *high;
    }

    // Reference black above white counts as one below white.
    EXPECT_EQ(BUILT(U8, 1024, gbCreate8BitLogLinLookup(10, 0, 685, 700, 1, 0, t)),
              BUILT(U8, 1024, gbCreate8BitLogLinLookup(10, 0, 685, 684, 1, 0, t)));
    EXPECT_NE(BUILT(U8, 1024, gbCreate8BitLogLinLookup(10, 0, 685, 700, 1, 0, t)),
              BUILT(U8, 1024, gbCreate8BitLogLinLookup(10, 0, 685, 600, 1, 0, t)));
    // Gamma 1 is the identity; the dummy float member is the plain one.
    std::vector<double> identity(256);
    std::iota(identity.begin(), identity.end(), 0.0);
    EXPECT_EQ(identity, BUILT(U8, 256, gbCreate8BitGammaLookup(8, 1, t, NO_FLOAT_INPUT)));
    EXPECT_EQ(BUILT(float, 256, gbCreate32BitFloatGammaLookup(8, 2.2f, t)),
              BUILT(float, 256, gbCreate32BitFloatGammaLookupDummy(8, 2.2f, t, NO_FLOAT_INPUT)));
}

TEST(LookupTable, FloatInputTablesLookUpThroughTheirFiveFloats)
{
    std::vector<float> forward(65536);
    std::vector<unsigned short> table(65536);
    float s[5] = {};
    ASSERT_TRUE(gbCreate32BitFloatLogLinLookup(16, 0, 685, 95, 1, 0, forward.data()));
    ASSERT_TRUE(gbCreate16BitLinLogLookup(32, 0, 685, 95, 1, 0, table.data(), SEGMENTS(s), forward.data()));
    EXPECT_TRUE(s[1] == forward[0] && s[0] == 1 / (forward[64] - forward[0]));
    double const gain = 1 / (1 - std::pow(10.0, double(float((95.0 - 685.0) * 0.002f)))); // of the film curve up to 1
    vExpectLookups(table, s, [&](float x) {
        return std::trunc((float(std::log((x + gain - 1.0) / gain) * dL) + 685.0f) * 64.0f + 0.5f);
    });

    std::vector<unsigned char> table8(65536);
    ASSERT_TRUE(gbCreate32BitFloatPanalogLinLookup(8, forward.data(), true));
    ASSERT_TRUE(gbCreate8BitLinPanalogLookup(32, table8.data(), SEGMENTS(s), forward.data()));
    // No floor at 64, no limit at 1019, no rounding term.
    vExpectLookups(table8, s, [&](float x) {
        return std::trunc((std::log10(dP * ((x * 6.0f + dK) / (dK + 6))) / 2.15 * 955 + 64) * 0.25);
    });

    // The gamma table builds its finer end first: the high end for a steep start, the low end for a flat one.
    for (float forwardGamma : {2.2f, 0.5f}) {
        ASSERT_TRUE(gbCreate32BitFloatGammaLookup(16, forwardGamma, forward.data()));
        ASSERT_TRUE(gbCreate16BitGammaLookup(32, 1.0f / forwardGamma, table.data(), SEGMENTS(s), forward.data()));
        double const g = 1.0f / (1.0f / forwardGamma);
        vExpectLookups(table, s, [&](float x) { return std::trunc(std::pow(x, g) * 65535.0 + 0.5); });
        if (forwardGamma > 1)
            EXPECT_FLOAT_EQ(s[2], (forward[65535] - forward[65534]) * 8 * -32767.0f + forward[65535]);
        else
            EXPECT_EQ(s[1], forward[0]);
    }
}

TEST(LookupTable, RefusalsAndDegenerateArguments)
{
    float u[5] = {}, *const v = u + 4;
    std::vector<float> forward(256, 0.5f), table(4, 9.0f);
    float *const t = table.data(), *const f = forward.data();
    // The float-output members refuse float input with one trace entry, a null table the same way. The gamma
    // members have already set entry 0.
    struct Case { int line; std::function<bool(float*)> build; float entry0; };
    Case const cases[] = {
        {474, [&](float* p) { return gbCreate32BitFloatLinLogLookup(32, 0, 685, 95, 1, 0, p, u, u, u, u, v, f); }, 9},
        {159, [&](float* p) { return gbCreate32BitFloatLinPanalogLookup(32, p, SEGMENTS(u), f); }, 9},
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
            EXPECT_EQ(QByteArray(func) + " " + file, "CREATE_LINEAR_TO_LOG_LOOKUP LookupTableHelperMethods");
            EXPECT_TRUE(code == 12 && line == c.line && number == 0 && std::strlen(message) == 0);
            EXPECT_TRUE(table[0] == (out ? c.entry0 : 9.0f) && table[1] == 9.0f);
            EXPECT_TRUE(std::all_of(u, u + 5, [](float v) { return v == 0.0f; }));
        }
    }
    gan_err_flush_trace();

    std::vector<unsigned short> shorts(1024, 7);
    for (auto [bits, out] : {std::pair{33, shorts.data()}, {-1, shorts.data()}, {10, nullptr}})
        EXPECT_FALSE(gbCreate16BitLogLinLookup(bits, 0.0f, 685.0f, 95.0f, 1.0f, 0.0f, out)) << bits;
    EXPECT_EQ(shorts[0], 7);
    // Gamma 0, far offsets and a NaN soft clip give garbage entries, but stay inside the table.
    for (auto [offset, gamma, softClip] : {std::tuple{0.0f, 0.0f, 10.0f}, {3e9f, 1.0f, 10.0f}, {-3e9f, 1.0f, NAN}})
        EXPECT_TRUE(gbCreate16BitLogLinLookup(10, offset, 685.0f, 95.0f, gamma, softClip, shorts.data())) << offset;
    EXPECT_TRUE(gbCreate16BitLinLogLookup(10, 3e9f, 685.0f, 95.0f, 0.0f, 5.0f, shorts.data(), NO_FLOAT_INPUT));
    EXPECT_TRUE(gbCreate16BitGammaLookup(10, 0.0f, shorts.data(), NO_FLOAT_INPUT));
    EXPECT_TRUE(gbCreate16BitGammaLookup(0, 2.2f, shorts.data(), NO_FLOAT_INPUT));
    EXPECT_TRUE(gbCreate16BitLinPanalogLookup(0, shorts.data(), NO_FLOAT_INPUT));
    // Float input without a forward table cannot be built.
    EXPECT_FALSE(gbCreate16BitGammaLookup(32, 2.2f, shorts.data(), NO_FLOAT_INPUT));
}

TEST(ClipInfoLookupTables, EachColourspaceAgainstItsCurves)
{
    TQ_ClipInfo clip;
    TQ_ColourspaceParameters& t = clip.colourspace;
#define TQ_TABLE(name) {#name, [&](int i) { return double(t.name[i]); }}
    std::map<QByteArray, std::function<double(int)>> const tables = {TQ_TABLE(lut8To16), TQ_TABLE(lut16To8),
        TQ_TABLE(lut16To16Forward), TQ_TABLE(lut16To16Inverse), TQ_TABLE(lut8ToFloat), TQ_TABLE(lut16ToFloat)};
#undef TQ_TABLE
    int clips = 0;
    for (QList<QByteArray> const& f : rowsOf("ColourspaceTables.txt")) {
        if (f[0] == "clip") {
            t.colourspace = _TQ_COLORSPACE(f[1].toInt()), t.gamma = f[2].toFloat(), t.offset = f[3].toFloat();
            t.refWhite = f[4].toFloat(), t.refBlack = f[5].toFloat(), t.softClip = f[6].toFloat();
            clip.CreateLUTs();
            ++clips;
            // Only the power curve has a half table: it raises positive finite values and passes negative values,
            // zeros, infinities and NaNs through bit for bit, payloads and signs included.
            ASSERT_EQ(t.colourspace == TQ_COLORSPACE_GAMMA, t.lutHalfToFloat != nullptr);
            for (unsigned int h = 0; t.lutHalfToFloat && h < 65536; ++h) {
                float const v = imath_half_to_float_table[h].f, w = h && h < 0x7C00 ? std::pow(v, 1 / t.gamma) : v;
                ASSERT_EQ(0, std::memcmp(&w, &t.lutHalfToFloat[h], sizeof w)) << std::hex << h;
            }
            // A value of a forward float table, looked up in the float-input table, gives its code back. A
            // 16-bit segment step spans up to 64 forward entries: one code value of the log curve.
            for (int i = f[7].toInt(); i <= f[8].toInt(); ++i)
                ASSERT_NEAR(i, t.lutFloatTo8[int(fPosition(t.floatTo8Segments, t.lut8ToFloat[i]))], 1.0) << i;
            for (int i = f[7].toInt() * 256; i <= f[8].toInt() * 256; i += 7)
                ASSERT_NEAR(i, t.lutFloatTo16[int(fPosition(t.floatTo16Segments, t.lut16ToFloat[i]))], 64.0) << i;
        } else {
            for (int k = 3, stride = f[1].toInt(); k < f.size(); ++k)
                ASSERT_NEAR(f[k].toDouble(), tables.at(f[0])((k - 3) * stride), f[2].toDouble())
                    << clips << " " << f[0].constData() << " entry " << (k - 3) * stride;
        }
    }
    EXPECT_EQ(4, clips);
}

TEST(ClipInfoLookupTables, WhichTablesExist)
{
    TQ_ClipInfo clip;
    TQ_ColourspaceParameters& c = clip.colourspace;
    auto const iTables = [&c] { return 9 - TQTest::tablesOf(c).count(nullptr); };
    clip.CreateLUTs();
    EXPECT_EQ(0, iTables());
    // Float data alone asks for the gamma tables, with a curve of power 1; rebuilding frees the old ones.
    c.floatFormat = TQ_TRUE;
    clip.CreateLUTs();
    clip.CreateLUTs();
    EXPECT_TRUE(iTables() == 9 && c.lut16To16Forward[65535] == 65535 && c.lut16To16Inverse[1000] == 1000);
    // An unknown colourspace gets its tables but no half table, and the segment floats stay.
    c.colourspace = _TQ_COLORSPACE(3);
    c.floatTo8Segments[0] = 5.0f;
    clip.CreateLUTs();
    EXPECT_TRUE(iTables() == 8 && c.lutHalfToFloat == nullptr && c.floatTo8Segments[0] == 5.0f);
    // Back to the defaults: every table is freed and none is built.
    c.colourspace = TQ_COLORSPACE_GAMMA, c.floatFormat = TQ_FALSE;
    clip.CreateLUTs();
    EXPECT_EQ(0, iTables());

    // Any float may arrive through the text; building must stay defined for all of them.
    for (int colourspace = 0; colourspace < 3; ++colourspace) {
        for (float gamma : {0.0f, -1.0f, NAN, INFINITY, 1e-30f}) {
            c.colourspace = _TQ_COLORSPACE(colourspace), c.gamma = gamma;
            c.softClip = NAN, c.offset = -1e30f, c.refBlack = 2000.0f, c.refWhite = -5.0f;
            clip.CreateLUTs();
            EXPECT_EQ(c.bConversionRequired(), c.lutFloatTo16 != nullptr) << colourspace << " " << gamma;
        }
    }
}
