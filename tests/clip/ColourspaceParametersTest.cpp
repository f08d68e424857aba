#include "clip/ClipInfo.h"
#include "clip/Fixtures.h"

#include <cmath>
#include <cstring>
#include <functional>
#include <tuple>

using TQTest::tablesOf;

namespace {

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
    for (auto [gamma, colourspace, floatFormat, eightBit, bExpected] :
         {std::tuple{1.0f, 0, 0, 0, false}, {1.0000005f, 0, 0, 0, false}, {0.9999995f, 0, 0, 0, false},
          {1.00001f, 0, 0, 0, true}, {0.99999f, 0, 0, 0, true}, {NAN, 0, 0, 0, false}, {1.0f, 1, 0, 0, true},
          {1.0f, 2, 0, 0, true}, {1.0f, 3, 0, 0, false}, {1.0f, 0, 1, 0, true}, {1.0f, 0, 2, 0, false},
          {1.0f, 0, 0, 1, false}}) {
        TQ_ColourspaceParameters c;
        c.gamma = gamma, c.colourspace = _TQ_COLORSPACE(colourspace), c.floatFormat = _TQ_BOOL(floatFormat);
        c.eightBitFormat = _TQ_BOOL(eightBit);
        EXPECT_EQ(bExpected, c.bConversionRequired()) << gamma << " " << colourspace << floatFormat << eightBit;
    }
}

TEST(ColourspaceParameters, EqualsIsExactAndIgnoresTheTolerance)
{
    std::function<void(TQ_ColourspaceParameters&)> const changes[] = {
        [](auto& c) { c.colourspace = TQ_COLORSPACE_PANALOG; }, [](auto& c) { c.floatFormat = TQ_TRUE; },
        [](auto& c) { c.eightBitFormat = TQ_TRUE; }, [](auto& c) { c.nativePixelType = GAN_FLOAT; },
        [](auto& c) { c.gamma = std::nextafter(1.0f, 2.0f); }, [](auto& c) { c.offset = 1e-30f; },
        [](auto& c) { c.refWhite = 686.0f; }, [](auto& c) { c.refBlack = 94.0f; },
        [](auto& c) { c.softClip = 1.0f; }, [](auto& c) { c.floatTo16Segments[4] = -1.0f; },
        [](auto& c) { c.floatTo8Segments[2] = 0.5f; }};
    TQ_ColourspaceParameters const reference;
    for (auto const& change : changes) {
        TQ_ColourspaceParameters changed;
        change(changed);
        EXPECT_FALSE(reference.equals(changed, 1e30f) || changed.equals(reference, INFINITY)) << &change - changes;
    }
    // Tables are not compared; NaN is unequal even to itself.
    TQ_ColourspaceParameters const tabled = withTables(1.0001f);
    TQ_ColourspaceParameters untabled;
    untabled.gamma = 1.0001f;
    std::copy(tabled.floatTo16Segments, tabled.floatTo16Segments + 5, untabled.floatTo16Segments);
    std::copy(tabled.floatTo8Segments, tabled.floatTo8Segments + 5, untabled.floatTo8Segments);
    EXPECT_TRUE(tabled.equals(untabled, 0.0f));
    untabled.softClip = NAN;
    EXPECT_FALSE(untabled.equals(untabled, 0.0f));
}

TEST(ColourspaceParameters, CopiesOwnTheirTables)
{
    TQ_ColourspaceParameters source = withTables(2.2f);
    source.setDisplayName("Shown", "Script");
    TQ_ColourspaceParameters copy(source);
    EXPECT_TRUE(copy.qstrScriptName() == "Colorspace" && copy.qstrDisplayName() == "Colorspace");
    EXPECT_TRUE(copy.equals(source, 0.0f));
    for (int i = 0; i < 9; ++i)
        EXPECT_TRUE(tablesOf(source)[i] && tablesOf(copy)[i] && tablesOf(source)[i] != tablesOf(copy)[i]) << i;
    // Bytes, not values: the half table holds NaNs.
    EXPECT_EQ(0, std::memcmp(source.lutHalfToFloat, copy.lutHalfToFloat, 65536 * sizeof(float)));
    EXPECT_EQ(0, std::memcmp(source.lutFloatTo8, copy.lutFloatTo8, 65536));

    // Assignment reuses an existing allocation, makes the missing ones, and takes both names.
    TQ_ColourspaceParameters target;
    unsigned short* const kept = target.lut8To16 = new unsigned short[256]();
    target = source;
    EXPECT_TRUE(target.lut8To16 == kept && target.lut8To16[200] == source.lut8To16[200]);
    EXPECT_TRUE(target.lut16ToFloat != source.lut16ToFloat && target.lut16ToFloat[300] == source.lut16ToFloat[300]);
    EXPECT_TRUE(target.qstrScriptName() == "Script" && target.qstrDisplayName() == "Shown");

    // Assigning an object without tables frees every table of the target.
    target = TQ_ColourspaceParameters();
    EXPECT_EQ(QVector<void const*>(9, nullptr), tablesOf(target));
    EXPECT_TRUE(target.equals(TQ_ColourspaceParameters(), 0.0f));
    TQ_ColourspaceParameters& alias = source;
    source = alias;
    EXPECT_NE(nullptr, source.lut8To16);
}
