#include "camera/FilmTypeFactory.h"
#include "clip/Fixtures.h"
#include "clip/FrameOffsetParameter.h"
#include "prm/basic/BasicParameter.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <QTextStream>

#include <cmath>
#include <memory>

namespace {

unsigned int const uiNone = 0xFFFFFFFFu;

QStringList textOf(TQ_BaseClipInfo& clip)
{
    QString text;
    QTextStream out(&text);
    EXPECT_TRUE(clip.bStreamOut(out, QString(), true));
    return text.split('\n', Qt::SkipEmptyParts);
}

// Lines written by a set are qualified by its name; a set reads lines relative to itself.
void readInto(TQ_BaseClipInfo& clip, QStringList const& lines)
{
    for (QString const& line : lines) {
        ASSERT_TRUE(line.startsWith("Core."));
        EXPECT_TRUE(clip.bStreamIn(line.mid(5))) << line.toStdString();
    }
}

TQ_BaseClipInfo withMode(int iMode)
{
    TQ_BaseClipInfo clip;
    clip.eInterlaceMode = _TQ_INTERLACE_MODE(iMode);
    return clip;
}

} // namespace

TEST(BaseClipInfo, TextOrderAndRoundTrip)
{
    TQ_BaseClipInfo source;
    QStringList const expected = {
        "ClipLength.value=0", "FrameWidth.value=0", "FrameHeight.value=0", "CropTop.value=0",
        "CropLeft.value=0", "CropRight.value=0", "CropBottom.value=0", "eInterlaceMode.value=0",
        "FrameRate.value=0", "MasterTimelineClipID.value=0", "FirstFrameOffset.value=0",
        "FilmType.value=\"\"", "FilmBackWidth.value=0", "FilmBackHeight.value=0", "FilmWidth1.value=0",
        "FilmWidth2.value=0", "FilmWidth3.value=0", "FilmHeight1.value=0", "FilmHeight2.value=0",
        "FilmHeight3.value=0", "Anamorphic.value=0", "AspectRatio.value=0", "PixelAspectRatio.value=0",
        "ProxyScale.value=0", "DisplayRed.value=0", "DisplayGreen.value=0", "DisplayBlue.value=0",
        "ClipModeBefore.value=0", "ClipModeAfter.value=0", "ViewOriginX.value=3.40282e+38",
        "ViewOriginY.value=3.40282e+38", "ViewZoom.value=3.40282e+38"};
    QStringList prefixed;
    for (QString const& line : expected)
        prefixed << "Core." + line;
    EXPECT_EQ(prefixed, textOf(source));

    source.FrameWidth = 2048, source.FrameHeight = 1556, source.CropBottom = 4;
    source.eInterlaceMode = _TQ_INTERLACE_MODE(7), source.FrameRate = 23.976f, source.FirstFrameOffset = -1001;
    source.setFilmType(TQ_FilmTypeFactory::byName("35mm Full Aperture"));
    source.setNumImageFilesInClip(125);
    source.ProxyScale = _TQ_PROXY_SCALE(2), source.DisplayRed = 255, source.DisplayBlue = 7;
    source.ViewOriginX = -12.5f, source.ViewZoom = 0.5f, source.filmType.anamorphic = true;
    source.ClipModeBefore = _TQ_CLIP_MODE(2), source.ClipModeAfter = _TQ_CLIP_MODE(3);
    TQ_BaseClipInfo target;
    readInto(target, textOf(source));
    // Same text back means every field arrived; spot checks show they arrived in the right member.
    EXPECT_EQ(textOf(source), textOf(target));
    EXPECT_EQ(100u, target.getClipLength());
    EXPECT_EQ(3112, target.filmType.filmHeight[2]);
    EXPECT_EQ(3, int(target.ClipModeAfter));
    EXPECT_FALSE(target.bStreamIn("NoSuchField.value=1"));
}

TEST(BaseClipInfo, FramesForFilesAndFilesForFrames)
{
    // Per mode, the frames for 10 + r files (b = 8), r = 0..4, and the files for 8 + r frames (b = 10), r = 0..3.
    struct Row { QVector<int> modes; unsigned int frames[5], files[4]; };
    Row const rows[] = {
        {{0, 13}, {10, 11, 12, 13, 14}, {8, 9, 10, 11}},
        {{1, 2}, {20, 22, 24, 26, 28}, {4, uiNone, 5, uiNone}},
        {{3, 8}, {8, 9, 10, 10, 11}, {10, 11, 12, 13}},
        {{4, 9}, {8, 9, 9, 10, 11}, {10, 11, 12, 14}},
        {{5, 6, 10, 11}, {7, 8, 9, 10, 11}, {10, 11, 12, 13}},
        {{7, 12}, {8, 9, 10, 11, 11}, {9, 11, 12, 13}},
        {{14, -1, 100}, {uiNone, uiNone, uiNone, uiNone, uiNone}, {uiNone, uiNone, uiNone, uiNone}},
    };
    for (Row const& row : rows) {
        for (int iMode : row.modes) {
            TQ_BaseClipInfo const clip = withMode(iMode);
            for (unsigned int r = 0; r < 5; ++r)
                EXPECT_EQ(row.frames[r], clip.uiGetNumberOfFrames(10 + r)) << "mode " << iMode << " r " << r;
            for (unsigned int r = 0; r < 4; ++r)
                EXPECT_EQ(row.files[r], clip.uiGetNumberOfPulldownFiles(8 + r)) << "mode " << iMode << " r " << r;
        }
    }
    // Only the frames' b - 1 is unguarded, and wraps for zero files.
    struct { int iMode; unsigned int uiIn, uiFrames, uiFiles; } const edges[] = {
        {5, 0, uiNone, 0}, {11, 0, uiNone, 0}, {3, 0, 0, 0}, {7, 0, 0, 0}, {12, 0, 0, 0}, {3, 5, 4, 6},
        {3, 3, 2, 3}, {4, 3, 2, 4}, {7, 4, 3, 4}, {3, 7, 6, 8}, {3, 8, 6, 10}, {1, 7, 14, uiNone},
        {1, 0x80000000u, 0, 0x40000000u}};
    for (auto const& e : edges) {
        EXPECT_EQ(e.uiFrames, withMode(e.iMode).uiGetNumberOfFrames(e.uiIn)) << e.iMode << " " << e.uiIn;
        EXPECT_EQ(e.uiFiles, withMode(e.iMode).uiGetNumberOfPulldownFiles(e.uiIn)) << e.iMode << " " << e.uiIn;
    }
    TQ_BaseClipInfo clip = withMode(20);
    clip.setNumImageFilesInClip(10);
    EXPECT_EQ(uiNone, clip.getClipLength());
    clip.eInterlaceMode = _TQ_INTERLACE_MODE(4);
    clip.setNumImageFilesInClip(12);
    EXPECT_EQ(9u, clip.getClipLength());
}

TEST(BaseClipInfo, SetFilmTypeDoublesOnlyForFieldModes)
{
    TQ::FilmType const pal = TQ_FilmTypeFactory::byName("PAL");
    double const dFrame = pal.pixelAspectRatio(QSize(720, 288));
    for (int iMode : {0, 1, 2, 3, 7, 13}) {
        TQ_BaseClipInfo clip = withMode(iMode);
        clip.FrameWidth = 720, clip.FrameHeight = 288;
        clip.setFilmType(pal);
        EXPECT_EQ(iMode == 1 || iMode == 2 ? dFrame + dFrame : dFrame, clip.PixelAspectRatio) << iMode;
        EXPECT_EQ(20.12 / 15.09, clip.AspectRatio);
        EXPECT_EQ(576, clip.filmType.filmHeight[0]);
        // Changing the size afterwards does not refresh the ratio.
        double const dStored = clip.PixelAspectRatio;
        clip.FrameHeight = 576;
        EXPECT_EQ(dStored, clip.PixelAspectRatio);
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
    source->ClipLength = 42;
    source->setFilmType(TQ_FilmTypeFactory::byName("HD"));

    // A copy does not take the display name; an assignment takes both names.
    TQ_BaseClipInfo copy(*source);
    EXPECT_EQ("Core", copy.qstrDisplayName());
    TQ_BaseClipInfo assigned;
    assigned.setScriptName("Other");
    assigned = *source;
    EXPECT_TRUE(assigned.qstrDisplayName() == "Plate A" && assigned.qstrScriptName() == "Core");
    TQ_BaseClipInfo const& self = assigned;
    assigned = self;
    EXPECT_EQ("HD", assigned.getFilmType().name);

    // With the source gone, each set's parameters read and write its own members.
    source.reset();
    copy.ClipLength = 7;
    assigned.filmType.name = "Mine";
    EXPECT_TRUE(textOf(copy).contains("Core.ClipLength.value=7"));
    EXPECT_TRUE(textOf(assigned).contains("Core.FilmType.value=\"Mine\""));
    EXPECT_EQ(32, assigned.basicParameterList().size());
    QStringList const before = textOf(assigned);
    assigned.init(); // a host may call it again: nothing is bound twice (the leak checker sees the rest)
    EXPECT_EQ(32, assigned.basicParameterList().size());
    EXPECT_EQ(before, textOf(assigned));

    EXPECT_TRUE(copy.bStreamIn("FilmHeight2.value=720") && assigned.bStreamIn("FrameWidth.value=640"));
    EXPECT_TRUE(copy.filmType.filmHeight[1] == 720 && assigned.FrameWidth == 640u);
}

namespace {

PrmFrameOffset makeOffset(TQ_BaseClipInfoContainer* container)
{
    return PrmFrameOffset(true, "InputRangeMin", 0u, 0u, 4294967295u, Prm::Interpolation(2),
                          Prm::Extrapolation(1), container);
}

} // namespace

TEST(BaseClipInfoFrameOffset, ShiftsByClipOneWrappingAndOnlyWithItsContainer)
{
    TQTest::Clips clips;
    clips.clips[1].FirstFrameOffset = 1000;
    clips.clips[2].FirstFrameOffset = 5;
    PrmFrameOffset const offset = makeOffset(&clips);
    struct { int iFirst; unsigned int uiValue, uiDisplay; } const rows[] = {
        {1000, 10, 1010}, {1000, 4294967295u, 999}, {1000, 4294966296u, 0}, {-20, 10, 4294967286u}, {-20, 40, 20}};
    EXPECT_EQ(1010.0, offset.value2DisplayAsDouble(10.0, 0.0f));
    for (auto const& r : rows) {
        clips.clips[1].FirstFrameOffset = r.iFirst;
        EXPECT_EQ(r.uiDisplay, offset.value2Display(r.uiValue, 3.0f)) << r.uiValue;
        EXPECT_EQ(r.uiValue, offset.display2Value(r.uiDisplay, -7.0f)) << r.uiDisplay;
    }
    EXPECT_EQ(0u, offset.value(0.0f, nullptr));

    // A copy takes the container; an assignment keeps the target's, and without one nothing is shifted.
    PrmFrameOffset copy(offset);
    EXPECT_EQ(4294967286u, copy.value2Display(10u, 0.0f));
    PrmFrameOffset other = makeOffset(nullptr);
    other = offset;
    EXPECT_EQ(nullptr, other.clipContainer);
    EXPECT_EQ(1u, other.value2Display(1u, 0.0f));
    EXPECT_EQ("InputRangeMin", other.qstrScriptName());
}
