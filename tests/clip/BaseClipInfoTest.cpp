#include "camera/FilmTypeFactory.h"
#include "clip/BaseClipInfo.h"
#include "prm/basic/BasicParameter.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <QTextStream>

#include <cmath>
#include <limits>
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

TEST(BaseClipInfo, DefaultsAndTextOrder)
{
    TQ_BaseClipInfo clip;
    EXPECT_EQ("Core", clip.qstrScriptName());
    EXPECT_EQ(0u, clip.getClipLength());
    EXPECT_EQ(QSize(0, 0), clip.getFrameSize());
    EXPECT_FALSE(clip.getFilmType().isValid());
    EXPECT_EQ(std::numeric_limits<float>::max(), clip.ViewOriginX);
    EXPECT_EQ(std::numeric_limits<float>::max(), clip.ViewOriginY);
    EXPECT_EQ(std::numeric_limits<float>::max(), clip.ViewZoom);

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
    QStringList lines = textOf(clip);
    ASSERT_EQ(32, lines.size());
    for (int i = 0; i < lines.size(); ++i)
        EXPECT_EQ(("Core." + expected[i]).toStdString(), lines[i].toStdString());
    EXPECT_EQ(32, clip.basicParameterList().size());
}

TEST(BaseClipInfo, TextRoundTripThroughTheSet)
{
    TQ_BaseClipInfo source;
    source.FrameWidth = 2048, source.FrameHeight = 1556, source.CropBottom = 4;
    source.eInterlaceMode = _TQ_INTERLACE_MODE(7), source.FrameRate = 23.976f, source.FirstFrameOffset = -1001;
    source.setFilmType(TQ_FilmTypeFactory::byName("35mm Full Aperture"));
    source.setNumImageFilesInClip(125);
    source.ProxyScale = _TQ_PROXY_SCALE(2), source.DisplayRed = 255, source.DisplayBlue = 7;
    source.ViewOriginX = -12.5f, source.ViewZoom = 0.5f, source.filmType.anamorphic = true;
    source.ClipModeBefore = _TQ_CLIP_MODE(2), source.ClipModeAfter = _TQ_CLIP_MODE(3);

    TQ_BaseClipInfo target;
    readInto(target, textOf(source));
    // Same text back means every field arrived; a few spot checks show they arrived in the right member.
    EXPECT_EQ(textOf(source), textOf(target));
    EXPECT_EQ(100u, target.getClipLength());
    EXPECT_EQ(7, int(target.eInterlaceMode));
    EXPECT_EQ(-1001, target.FirstFrameOffset);
    EXPECT_EQ("35mm Full Aperture", target.getFilmType().name);
    EXPECT_EQ(3112, target.filmType.filmHeight[2]);
    EXPECT_TRUE(target.filmType.anamorphic);
    EXPECT_EQ(255, target.DisplayRed);
    EXPECT_EQ(0.5f, target.ViewZoom);
    EXPECT_EQ(3, int(target.ClipModeAfter));
    EXPECT_FALSE(target.bStreamIn("NoSuchField.value=1"));
}

TEST(BaseClipInfo, NumberOfFramesTable)
{
    // Per mode, the frames for 10 + r files (b = 8), r = 0..4.
    struct Row { QVector<int> modes; unsigned int frames[5]; };
    QVector<Row> const rows = {
        {{0, 13}, {10, 11, 12, 13, 14}},
        {{1, 2}, {20, 22, 24, 26, 28}},
        {{3, 8}, {8, 9, 10, 10, 11}},
        {{4, 9}, {8, 9, 9, 10, 11}},
        {{5, 6, 10, 11}, {7, 8, 9, 10, 11}},
        {{7, 12}, {8, 9, 10, 11, 11}},
        {{14, -1, 100}, {uiNone, uiNone, uiNone, uiNone, uiNone}},
    };
    for (Row const& row : rows) {
        for (int iMode : row.modes) {
            TQ_BaseClipInfo const clip = withMode(iMode);
            for (unsigned int r = 0; r < 5; ++r)
                EXPECT_EQ(row.frames[r], clip.uiGetNumberOfFrames(10 + r)) << "mode " << iMode << " r " << r;
        }
    }
    // The unguarded b - 1 wraps for zero files; the other pulldown rows give 0.
    struct { int iMode; unsigned int uiFiles, uiFrames; } const edges[] = {
        {5, 0, uiNone}, {11, 0, uiNone}, {3, 0, 0}, {3, 5, 4}, {3, 7, 6}, {3, 8, 6}, {1, 0x80000000u, 0}};
    for (auto const& e : edges)
        EXPECT_EQ(e.uiFrames, withMode(e.iMode).uiGetNumberOfFrames(e.uiFiles)) << e.iMode << " " << e.uiFiles;

    TQ_BaseClipInfo clip = withMode(20);
    clip.setNumImageFilesInClip(10);
    EXPECT_EQ(uiNone, clip.getClipLength());
    clip.eInterlaceMode = _TQ_INTERLACE_MODE(4);
    clip.setNumImageFilesInClip(12);
    EXPECT_EQ(9u, clip.getClipLength());
}

TEST(BaseClipInfo, NumberOfPulldownFilesTable)
{
    // Per mode, the files for 8 + r frames (b = 10), r = 0..3.
    struct Row { QVector<int> modes; unsigned int files[4]; };
    QVector<Row> const rows = {
        {{0, 13}, {8, 9, 10, 11}},
        {{1, 2}, {4, uiNone, 5, uiNone}},
        {{3, 5, 6, 8, 10, 11}, {10, 11, 12, 13}},
        {{4, 9}, {10, 11, 12, 14}},
        {{7, 12}, {9, 11, 12, 13}},
        {{14, -3}, {uiNone, uiNone, uiNone, uiNone}},
    };
    for (Row const& row : rows) {
        for (int iMode : row.modes) {
            TQ_BaseClipInfo const clip = withMode(iMode);
            for (unsigned int r = 0; r < 4; ++r)
                EXPECT_EQ(row.files[r], clip.uiGetNumberOfPulldownFiles(8 + r)) << "mode " << iMode << " r " << r;
        }
    }
    struct { int iMode; unsigned int uiFrames, uiFiles; } const edges[] = {
        {4, 3, 4}, {3, 3, 3}, {7, 4, 4}, {7, 0, 0}, {12, 0, 0}, {5, 0, 0}, {1, 7, uiNone}};
    for (auto const& e : edges)
        EXPECT_EQ(e.uiFiles, withMode(e.iMode).uiGetNumberOfPulldownFiles(e.uiFrames)) << e.iMode << " " << e.uiFrames;
}

TEST(BaseClipInfo, SetFilmTypeDoublesOnlyForFieldModes)
{
    TQ::FilmType const pal = TQ_FilmTypeFactory::byName("PAL");
    double const dFrame = pal.pixelAspectRatio(QSize(720, 288));
    for (int iMode : {0, 1, 2, 3, 7, 13}) {
        TQ_BaseClipInfo clip = withMode(iMode);
        clip.FrameWidth = 720;
        clip.FrameHeight = 288;
        clip.setFilmType(pal);
        bool const bDoubled = iMode == 1 || iMode == 2;
        EXPECT_EQ(bDoubled ? dFrame + dFrame : dFrame, clip.PixelAspectRatio) << "mode " << iMode;
        EXPECT_EQ(20.12 / 15.09, clip.AspectRatio);
        EXPECT_EQ("PAL", clip.getFilmType().name);
        EXPECT_EQ(576, clip.filmType.filmHeight[0]);
    }

    // Changing the size afterwards does not refresh the ratio.
    TQ_BaseClipInfo clip;
    clip.FrameWidth = 720;
    clip.FrameHeight = 576;
    clip.setFilmType(pal);
    double const dStored = clip.PixelAspectRatio;
    clip.FrameHeight = 288;
    EXPECT_EQ(dStored, clip.PixelAspectRatio);

    // An invalid film on an empty clip stores the unguarded 0 / 0.
    TQ_BaseClipInfo empty;
    empty.setFilmType(TQ::FilmType());
    EXPECT_TRUE(std::isnan(empty.AspectRatio));
    EXPECT_TRUE(std::isnan(empty.PixelAspectRatio));
}

TEST(BaseClipInfo, CopiesAndAssignmentsKeepTheirOwnBindings)
{
    auto source = std::make_unique<TQ_BaseClipInfo>();
    source->setDisplayName("Plate A");
    source->ClipLength = 42;
    source->FirstFrameOffset = 1000;
    source->setFilmType(TQ_FilmTypeFactory::byName("HD"));

    TQ_BaseClipInfo copy(*source);
    EXPECT_EQ("Core", copy.qstrDisplayName());
    EXPECT_EQ(42u, copy.getClipLength());
    EXPECT_EQ("HD", copy.getFilmType().name);

    TQ_BaseClipInfo assigned;
    assigned.setScriptName("Other");
    assigned = *source;
    EXPECT_EQ("Plate A", assigned.qstrDisplayName());
    EXPECT_EQ("Core", assigned.qstrScriptName());
    EXPECT_EQ(1000, assigned.FirstFrameOffset);
    TQ_BaseClipInfo const& self = assigned;
    assigned = self;
    EXPECT_EQ(1000, assigned.FirstFrameOffset);

    source.reset();
    copy.ClipLength = 7;
    assigned.ClipLength = 9;
    assigned.filmType.name = "Mine";
    EXPECT_TRUE(textOf(copy).contains("Core.ClipLength.value=7"));
    EXPECT_TRUE(textOf(assigned).contains("Core.ClipLength.value=9"));
    EXPECT_TRUE(textOf(assigned).contains("Core.FilmType.value=\"Mine\""));
    EXPECT_EQ(32, assigned.basicParameterList().size());
    QStringList const before = textOf(assigned);
    assigned.init(); // a host may call it again: nothing is bound twice (the leak checker sees the rest)
    EXPECT_EQ(32, assigned.basicParameterList().size());
    EXPECT_EQ(before, textOf(assigned));

    EXPECT_TRUE(copy.bStreamIn("FilmHeight2.value=720"));
    EXPECT_TRUE(assigned.bStreamIn("FrameWidth.value=640"));
    EXPECT_EQ(720, copy.filmType.filmHeight[1]);
    EXPECT_EQ(640u, assigned.FrameWidth);
}
