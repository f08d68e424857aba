#include "clip/ClipInfo.h"
#include "clip/Fixtures.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <vector>

using TQTest::tablesOf;

namespace {

float const fNaN = std::numeric_limits<float>::quiet_NaN();

TQ_ColourspaceParameters withTables(float gamma)
{
    TQ_ClipInfo clip;
    clip.colourspace.gamma = gamma;
    clip.CreateLUTs();
    return clip.colourspace;
}

} // namespace

TEST(ColourspaceParameters, ConversionRequired)
{
    struct Case { float gamma; int colourspace, floatFormat, eightBit; bool expected; };
    Case const cases[] = {
        {1.0f, 0, 0, 0, false}, {1.0000005f, 0, 0, 0, false}, {0.9999995f, 0, 0, 0, false},
        {1.00001f, 0, 0, 0, true}, {0.99999f, 0, 0, 0, true}, {fNaN, 0, 0, 0, false}, {1.0f, 1, 0, 0, true},
        {1.0f, 2, 0, 0, true}, {1.0f, 3, 0, 0, false}, {1.0f, 0, 1, 0, true}, {1.0f, 0, 2, 0, false},
        {1.0f, 0, 0, 1, false}};
    for (Case const& k : cases) {
        TQ_ColourspaceParameters c;
        c.gamma = k.gamma, c.colourspace = _TQ_COLORSPACE(k.colourspace), c.floatFormat = _TQ_BOOL(k.floatFormat);
        c.eightBitFormat = _TQ_BOOL(k.eightBit);
        EXPECT_EQ(k.expected, c.bConversionRequired()) << &k - cases;
    }
}

TEST(ColourspaceParameters, EqualsIsExactAndIgnoresTheTolerance)
{
    using Change = std::function<void(TQ_ColourspaceParameters&)>;
    std::vector<Change> const changes = {
        [](auto& c) { c.colourspace = TQ_COLORSPACE_PANALOG; }, [](auto& c) { c.floatFormat = TQ_TRUE; },
        [](auto& c) { c.eightBitFormat = TQ_TRUE; }, [](auto& c) { c.nativePixelType = GAN_FLOAT; },
        [](auto& c) { c.gamma = std::nextafter(1.0f, 2.0f); }, [](auto& c) { c.offset = 1e-30f; },
        [](auto& c) { c.refWhite = 686.0f; }, [](auto& c) { c.refBlack = 94.0f; },
        [](auto& c) { c.softClip = 1.0f; }, [](auto& c) { c.floatTo16Segments[4] = -1.0f; },
        [](auto& c) { c.floatTo8Segments[2] = 0.5f; }};
    TQ_ColourspaceParameters const reference;
    for (std::size_t i = 0; i < changes.size(); ++i) {
        TQ_ColourspaceParameters changed;
        changes[i](changed);
        EXPECT_FALSE(reference.equals(changed, 1e30f) || changed.equals(reference, INFINITY)) << i;
    }
    // Tables are not compared, the segment floats are; NaN is unequal even to itself.
    TQ_ColourspaceParameters const tabled = withTables(1.0001f);
    TQ_ColourspaceParameters untabled;
    untabled.gamma = 1.0001f;
    EXPECT_FALSE(tabled.equals(untabled, 0.0f));
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
    TQ_ColourspaceParameters copy(source);
    EXPECT_TRUE(copy.qstrScriptName() == "Colorspace" && copy.qstrDisplayName() == "Colorspace");
    EXPECT_TRUE(copy.equals(source, 0.0f));
    std::vector<void const*> const sourceTables = tablesOf(source), copyTables = tablesOf(copy);
    for (std::size_t i = 0; i < sourceTables.size(); ++i)
        EXPECT_TRUE(sourceTables[i] && copyTables[i] && sourceTables[i] != copyTables[i]) << i;
    // Bytes, not values: the half table holds NaNs.
    EXPECT_EQ(0, std::memcmp(source.lutHalfToFloat, copy.lutHalfToFloat, 65536 * sizeof(float)));
    EXPECT_EQ(0, std::memcmp(source.lutFloatTo8, copy.lutFloatTo8, 65536));
    copy.lut8To16[200] = 1;
    copy.lutHalfToFloat[65535] = 0.0f;
    EXPECT_TRUE(source.lut8To16[200] != 1 && std::isnan(source.lutHalfToFloat[65535]));

    // Assignment reuses an existing allocation, makes the missing ones, and takes both names.
    TQ_ColourspaceParameters target;
    target.lut8To16 = new unsigned short[256]();
    unsigned short* const kept = target.lut8To16;
    target = source;
    EXPECT_TRUE(target.lut8To16 == kept && target.lut8To16[200] == source.lut8To16[200]);
    EXPECT_TRUE(target.lut16ToFloat != source.lut16ToFloat && target.lut16ToFloat[30000] == source.lut16ToFloat[30000]);
    EXPECT_TRUE(target.qstrScriptName() == "Script" && target.qstrDisplayName() == "Shown");

    // Assigning an object without tables frees every table of the target.
    target = TQ_ColourspaceParameters();
    EXPECT_EQ(std::vector<void const*>(9, nullptr), tablesOf(target));
    EXPECT_TRUE(target.equals(TQ_ColourspaceParameters(), 0.0f));
    TQ_ColourspaceParameters& alias = source;
    source = alias;
    EXPECT_NE(nullptr, source.lut8To16);
}
