#include "camera/FilmTypeFactory.h"
#include "clip/Fixtures.h"
#include "clip/FrameOffsetParameter.h"

#include <cmath>
#include <memory>

using TQTest::linesOf;
using TQTest::textOf;

namespace {

unsigned int const n = 0xFFFFFFFFu;

TQ_BaseClipInfo withMode(int iMode)
{
    TQ_BaseClipInfo clip;
    clip.eInterlaceMode = _TQ_INTERLACE_MODE(iMode);
    return clip;
}

} // namespace

TEST(BaseClipInfo, TextOrderAndRoundTrip)
{
    TQ_BaseClipInfo clip;
    EXPECT_EQ(textOf("BaseClipInfo defaults"), linesOf(clip));
    // Text in, the members it reaches, text out.
    TQTest::vReadLines(clip, textOf("BaseClipInfo changed"));
    TQ::FilmType const& film = clip.filmType;
    EXPECT_TRUE(clip.getClipLength() == 100u && clip.CropTop == 1 && clip.CropRight == 3 && clip.eInterlaceMode == 7);
    EXPECT_TRUE(clip.FirstFrameOffset == -1001 && clip.MasterTimelineClipID == 9 && film.filmHeight[2] == 3112);
    EXPECT_TRUE(film.filmWidth[0] == 1024 && film.filmBackHeight == 18.669 && clip.DisplayGreen == 8);
    EXPECT_TRUE(clip.ClipModeBefore == 2 && clip.ClipModeAfter == 3 && clip.ViewOriginY == 3 && clip.ViewZoom == 0.5f);
    EXPECT_EQ(textOf("BaseClipInfo changed"), linesOf(clip));
    EXPECT_FALSE(clip.bStreamIn("NoSuchField.value=1"));
}

TEST(BaseClipInfo, FramesForFilesAndFilesForFrames)
{
    // Per mode, the frames for 0 + r and 10 + r files, r = 0..4 (b = 0, 8), and the files for 0 + r and 8 + r
    // frames, r = 0..3 (b = 0, 10). Only the frames' b - 1 is unguarded, and wraps for zero files.
    struct Row { std::vector<int> modes; unsigned int frames[10], files[8]; };
    Row const rows[] = {
        {{0, 13}, {0, 1, 2, 3, 4, 10, 11, 12, 13, 14}, {0, 1, 2, 3, 8, 9, 10, 11}},
        {{1, 2}, {0, 2, 4, 6, 8, 20, 22, 24, 26, 28}, {0, n, 1, n, 4, n, 5, n}},
        {{3, 8}, {0, 1, 2, 2, 3, 8, 9, 10, 10, 11}, {0, 1, 2, 3, 10, 11, 12, 13}},
        {{4, 9}, {0, 1, 1, 2, 3, 8, 9, 9, 10, 11}, {0, 1, 2, 4, 10, 11, 12, 14}},
        {{5, 6, 10, 11}, {n, 0, 1, 2, 3, 7, 8, 9, 10, 11}, {0, 1, 2, 3, 10, 11, 12, 13}},
        {{7, 12}, {0, 1, 2, 3, 3, 8, 9, 10, 11, 11}, {0, 1, 2, 3, 9, 11, 12, 13}},
        {{14, -1, 100}, {n, n, n, n, n, n, n, n, n, n}, {n, n, n, n, n, n, n, n}},
    };
    for (Row const& row : rows) {
        for (int iMode : row.modes) {
            TQ_BaseClipInfo const clip = withMode(iMode);
            for (unsigned int i = 0; i < 10; ++i)
                EXPECT_EQ(row.frames[i], clip.uiGetNumberOfFrames(i % 5 + i / 5 * 10)) << iMode << " " << i;
            for (unsigned int i = 0; i < 8; ++i)
                EXPECT_EQ(row.files[i], clip.uiGetNumberOfPulldownFiles(i % 4 + i / 4 * 8)) << iMode << " " << i;
        }
    }
    // Unsigned arithmetic throughout; an unknown mode's answer is stored as the length without complaint.
    EXPECT_TRUE(withMode(1).uiGetNumberOfFrames(0x80000000u) == 0 && withMode(1).uiGetNumberOfPulldownFiles(7) == n);
    TQ_BaseClipInfo clip = withMode(20);
    clip.setNumImageFilesInClip(10);
    EXPECT_EQ(n, clip.getClipLength());
}

TEST(BaseClipInfo, SetFilmTypeDoublesOnlyForFieldModes)
{
    TQ::FilmType const pal = TQ_FilmTypeFactory::byName("PAL");
    double const dFrame = pal.pixelAspectRatio(QSize(720, 288));
    for (int iMode : {0, 1, 2, 3, 7, 13}) {
        TQ_BaseClipInfo clip = withMode(iMode);
        clip.FrameWidth = 720, clip.FrameHeight = 288;
        clip.setFilmType(pal);
        clip.FrameHeight = 576; // changing the size afterwards does not refresh the ratio
        EXPECT_EQ(iMode == 1 || iMode == 2 ? dFrame + dFrame : dFrame, clip.PixelAspectRatio) << iMode;
        EXPECT_TRUE(clip.AspectRatio == 20.12 / 15.09 && clip.filmType.filmHeight[0] == 576);
    }
    // An invalid film on an empty clip stores the unguarded 0 / 0.
    TQ_BaseClipInfo empty;
    empty.setFilmType(TQ::FilmType());
    EXPECT_TRUE(std::isnan(empty.AspectRatio) && std::isnan(empty.PixelAspectRatio));
}

TEST(BaseClipInfo, CopiesAndAssignmentsKeepTheirOwnBindings)
{
    auto source = std::make_unique<TQ_BaseClipInfo>();
    source->setDisplayName("Plate A");
    source->setFilmType(TQ_FilmTypeFactory::byName("HD"));
    // A copy does not take the display name; an assignment takes both names.
    TQ_BaseClipInfo copy(*source), assigned;
    assigned.setScriptName("Other");
    assigned = *source;
    TQ_BaseClipInfo const& self = assigned;
    assigned = self;
    EXPECT_TRUE(copy.qstrDisplayName() == "Core" && assigned.qstrDisplayName() == "Plate A");
    EXPECT_TRUE(assigned.qstrScriptName() == "Core" && assigned.getFilmType().name == "HD");

    // With the source gone, each set's parameters read and write its own members; a host may call init()
    // again without binding anything twice (the leak checker sees the rest).
    source.reset();
    copy.ClipLength = 7, assigned.filmType.name = "Mine";
    QStringList const before = linesOf(assigned);
    assigned.init();
    EXPECT_TRUE(linesOf(copy).contains("Core.ClipLength.value=7") && before.contains("Core.FilmType.value=\"Mine\""));
    EXPECT_EQ(before, linesOf(assigned));
    EXPECT_TRUE(copy.bStreamIn("FilmHeight2.value=720") && assigned.bStreamIn("FrameWidth.value=640"));
    EXPECT_TRUE(copy.filmType.filmHeight[1] == 720 && assigned.FrameWidth == 640u);
}

TEST(BaseClipInfoFrameOffset, ShiftsByClipOneWrappingAndOnlyWithItsContainer)
{
    TQTest::Clips clips;
    clips.clips[2].FirstFrameOffset = 5;
    PrmFrameOffset const offset(true, "InputRangeMin", 0u, 0u, n, Prm::Interpolation(2), Prm::Extrapolation(1), &clips);
    struct { int iFirst; unsigned int uiValue, uiDisplay; } const rows[] = {
        {1000, 10, 1010}, {1000, n, 999}, {1000, 4294966296u, 0}, {-20, 10, 4294967286u}, {-20, 40, 20}};
    for (auto const& r : rows) {
        clips.clips[1].FirstFrameOffset = r.iFirst;
        EXPECT_EQ(r.uiDisplay, offset.value2Display(r.uiValue, 3.0f)) << r.uiValue;
        EXPECT_EQ(r.uiValue, offset.display2Value(r.uiDisplay, -7.0f)) << r.uiDisplay;
    }
    EXPECT_TRUE(offset.value(0.0f, nullptr) == 0u && offset.value2DisplayAsDouble(40.0, 0.0f) == 20.0);

    // A copy takes the container; an assignment keeps the target's, and without one nothing is shifted.
    PrmFrameOffset copy(offset);
    EXPECT_EQ(4294967286u, copy.value2Display(10u, 0.0f));
    PrmFrameOffset other(true, "Other", 0u, 0u, n, Prm::Interpolation(2), Prm::Extrapolation(1), nullptr);
    other = offset;
    EXPECT_TRUE(other.clipContainer == nullptr && other.value2Display(1u, 0.0f) == 1u);
    EXPECT_EQ("InputRangeMin", other.qstrScriptName());
}
