#include "clip/ClipInfo.h"
#include "clip/ColourspaceParameters.h"

#include <gtest/gtest.h>

#include <QTextStream>

#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <vector>

namespace {

float const fNaN = std::numeric_limits<float>::quiet_NaN();

// The nine table pointers in field order, as addresses for comparison.
std::vector<void const*> tablesOf(TQ_ColourspaceParameters const& c)
{
    return {c.lut16To16Forward, c.lut16To16Inverse, c.lut8To16, c.lut16To8, c.lut16ToFloat, c.lutFloatTo16,
            c.lut8ToFloat, c.lutFloatTo8, c.lutHalfToFloat};
}

TQ_ColourspaceParameters withTables(float gamma)
{
    TQ_ClipInfo clip;
    clip.colourspace.gamma = gamma;
    clip.CreateLUTs();
    return clip.colourspace;
}

} // namespace

TEST(ColourspaceParameters, DefaultsAndConversion)
{
    TQ_ColourspaceParameters c;
    EXPECT_EQ("Colorspace", c.qstrScriptName());
    for (void const* table : tablesOf(c))
        EXPECT_EQ(nullptr, table);
    // Nothing registered: the set writes nothing of its own.
    QString text;
    QTextStream out(&text);
    EXPECT_TRUE(c.bStreamOut(out, "P.", true));
    EXPECT_TRUE(text.isEmpty());
    EXPECT_FALSE(c.bStreamIn("Gamma.value=2"));

    struct Case { float gamma; int colourspace; _TQ_BOOL floatFormat; _TQ_BOOL eightBit; bool expected; };
    Case const cases[] = {
        {1.0f, 0, TQ_FALSE, TQ_FALSE, false}, {1.0000005f, 0, TQ_FALSE, TQ_FALSE, false},
        {0.9999995f, 0, TQ_FALSE, TQ_FALSE, false}, {1.00001f, 0, TQ_FALSE, TQ_FALSE, true},
        {0.99999f, 0, TQ_FALSE, TQ_FALSE, true}, {fNaN, 0, TQ_FALSE, TQ_FALSE, false},
        {1.0f, 1, TQ_FALSE, TQ_FALSE, true}, {1.0f, 2, TQ_FALSE, TQ_FALSE, true},
        {1.0f, 3, TQ_FALSE, TQ_FALSE, false}, {1.0f, 0, TQ_TRUE, TQ_FALSE, true},
        {1.0f, 0, _TQ_BOOL(2), TQ_FALSE, false}, {1.0f, 0, TQ_FALSE, TQ_TRUE, false},
    };
    for (Case const& k : cases) {
        c.gamma = k.gamma, c.colourspace = _TQ_COLORSPACE(k.colourspace), c.floatFormat = k.floatFormat;
        c.eightBitFormat = k.eightBit;
        EXPECT_EQ(k.expected, c.bConversionRequired()) << k.gamma << " " << k.colourspace << k.floatFormat;
    }
}

TEST(ColourspaceParameters, EqualsIsExactAndIgnoresTheTolerance)
{
    using Change = std::function<void(TQ_ColourspaceParameters&)>;
    float const nextAfterOne = std::nextafter(1.0f, 2.0f);
    std::vector<Change> const changes = {
        [](auto& c) { c.colourspace = TQ_COLORSPACE_PANALOG; },
        [](auto& c) { c.floatFormat = TQ_TRUE; },
        [](auto& c) { c.eightBitFormat = TQ_TRUE; },
        [](auto& c) { c.nativePixelType = GAN_FLOAT; },
        [&](auto& c) { c.gamma = nextAfterOne; },
        [](auto& c) { c.offset = 1e-30f; },
        [](auto& c) { c.refWhite = 686.0f; },
        [](auto& c) { c.refBlack = 94.0f; },
        [](auto& c) { c.softClip = 1.0f; },
        [](auto& c) { c.floatTo16Segments[4] = -1.0f; },
        [](auto& c) { c.floatTo8Segments[2] = 0.5f; },
    };
    TQ_ColourspaceParameters const reference;
    for (std::size_t i = 0; i < changes.size(); ++i) {
        TQ_ColourspaceParameters changed;
        changes[i](changed);
        EXPECT_FALSE(reference.equals(changed, 1e30f)) << i;
        EXPECT_FALSE(changed.equals(reference, std::numeric_limits<float>::infinity())) << i;
    }
    // Tables are not compared; NaN is unequal even to itself.
    TQ_ColourspaceParameters const tabled = withTables(1.0001f);
    TQ_ColourspaceParameters untabled;
    untabled.gamma = 1.0001f;
    EXPECT_EQ(nullptr, untabled.lut8To16);
    EXPECT_FALSE(tabled.equals(untabled, 0.0f));  // the segment floats differ
    std::copy(tabled.floatTo16Segments, tabled.floatTo16Segments + 5, untabled.floatTo16Segments);
    std::copy(tabled.floatTo8Segments, tabled.floatTo8Segments + 5, untabled.floatTo8Segments);
    EXPECT_TRUE(tabled.equals(untabled, 0.0f));
    untabled.softClip = fNaN;
    EXPECT_FALSE(untabled.equals(untabled, 0.0f));
}

TEST(ColourspaceParameters, CopiesOwnTheirTables)
{
    TQ_ColourspaceParameters source = withTables(2.2f);
    source.setDisplayName("Shown", "Script");
    for (void const* table : tablesOf(source))
        ASSERT_NE(nullptr, table);

    TQ_ColourspaceParameters copy(source);
    EXPECT_EQ("Colorspace", copy.qstrScriptName());
    EXPECT_EQ("Colorspace", copy.qstrDisplayName());
    EXPECT_TRUE(copy.equals(source, 0.0f));
    std::vector<void const*> const sourceTables = tablesOf(source), copyTables = tablesOf(copy);
    for (std::size_t i = 0; i < sourceTables.size(); ++i)
        EXPECT_NE(sourceTables[i], copyTables[i]) << i;
    // Bytes, not values: the half table holds NaNs.
    EXPECT_EQ(0, std::memcmp(source.lutHalfToFloat, copy.lutHalfToFloat, 65536 * sizeof(float)));
    EXPECT_EQ(std::vector<unsigned char>(source.lutFloatTo8, source.lutFloatTo8 + 65536),
              std::vector<unsigned char>(copy.lutFloatTo8, copy.lutFloatTo8 + 65536));
    copy.lut8To16[200] = 1;
    copy.lutHalfToFloat[65535] = 0.0f;
    EXPECT_NE(1, source.lut8To16[200]);
    EXPECT_TRUE(std::isnan(source.lutHalfToFloat[65535]));

    // Assignment reuses an existing allocation, makes the missing ones, and takes both names.
    TQ_ColourspaceParameters target;
    target.lut8To16 = new unsigned short[256]();
    unsigned short* const kept = target.lut8To16;
    target = source;
    EXPECT_EQ(kept, target.lut8To16);
    EXPECT_EQ(source.lut8To16[200], target.lut8To16[200]);
    EXPECT_NE(source.lut16ToFloat, target.lut16ToFloat);
    EXPECT_EQ(source.lut16ToFloat[30000], target.lut16ToFloat[30000]);
    EXPECT_EQ("Script", target.qstrScriptName());
    EXPECT_EQ("Shown", target.qstrDisplayName());

    // Assigning an object without tables frees every table of the target.
    target = TQ_ColourspaceParameters();
    for (void const* table : tablesOf(target))
        EXPECT_EQ(nullptr, table);
    EXPECT_TRUE(target.equals(TQ_ColourspaceParameters(), 0.0f));
    TQ_ColourspaceParameters& alias = source;
    source = alias;
    EXPECT_NE(nullptr, source.lut8To16);
}
