#include "clip/ClipInfo.h"
#include "clip/Fixtures.h"

#include <cstring>
#include <memory>
#include <utility>
#include <vector>

using TQTest::linesOf;
using TQTest::textOf;

namespace {

using Frames = std::vector<std::pair<QByteArray, unsigned int>>;

Frames framesOf(TQ_ClipInfo const& clip)
{
    Frames frames;
    using Frame = TQ_ClipInfo::DiscreteFrame;
    if (Gan_List* const list = clip.discreteFrameList())
        for (gan_list_goto_head(list); auto const* f = static_cast<Frame const*>(gan_list_get_next_node(list));)
            frames.emplace_back(f->name, f->frame);
    return frames;
}

} // namespace

TEST(ClipInfo, TextInMembersTextOutHeaderCopyAndFileType)
{
    TQ_ClipInfo clip;
    EXPECT_EQ(10, clip.sourceDataType);
    EXPECT_EQ(textOf("ClipInfo defaults", "P.Core."), linesOf(clip, "P."));
    // Text in, the members it reaches, text out. Every parameter but "DiscreteFrames" is away from its default.
    TQTest::vReadLines(clip, textOf("ClipInfo changed"));
    TQ_ColourspaceParameters const& c = clip.colourspace;
    EXPECT_TRUE(clip.ReadOnly && clip.Hidden && clip.Predefined && clip.SingleFrame && clip.HasIndex && clip.Linear);
    EXPECT_TRUE(!clip.Reapply32Pulldown && clip.ClipDirectory == "/shots/a b");
    EXPECT_TRUE(clip.MinimumIndex == 1001 && clip.MaximumIndex == 1100 && clip.IndexWidth == 5);
    EXPECT_TRUE(c.colourspace == 1 && c.gamma == 0.6f && c.offset == 12.5f && c.refWhite == 700 && c.refBlack == 90);
    EXPECT_TRUE(c.softClip == 20 && c.nativePixelType == 1 && c.floatFormat && c.eightBitFormat);
    EXPECT_TRUE(clip.ImageFormatOfFile == 4 && clip.OriginalImageFormat == 5 && clip.ImageDataTypeOfFile == 3);
    EXPECT_TRUE(clip.ProxyScale == 2 && clip.ProcessBits == 16);
    EXPECT_TRUE(clip.ClipPrefix.string() == "plate.%d" && clip.ClipSuffix.string() == ".dpx");
    EXPECT_EQ(textOf("ClipInfo changed"), linesOf(clip));

    // The header copy keeps the header and the file's format and type, nothing else.
    gan_initialise_image_header_info(&clip.imageHeaderInfo, GAN_RGB_COLOUR_IMAGE, GAN_FLOAT);
    clip.imageHeaderInfo.width = 2048;
    std::unique_ptr<TQ_ClipInfo> const header(clip.copyHeaderInfo());
    QStringList expected = textOf("ClipInfo defaults");
    expected[20] = "Core.ImageFormatOfFile.value=4", expected[22] = "Core.ImageDataTypeOfFile.value=3";
    EXPECT_EQ(expected, linesOf(*header));
    EXPECT_EQ(0, std::memcmp(&clip.imageHeaderInfo, &header->imageHeaderInfo, sizeof clip.imageHeaderInfo));
    EXPECT_TRUE(header->colourspace.equals(TQ_ClipInfo().colourspace, 0.0f) && !header->discreteFrameList());

    // The file type: float wins over 8-bit, 8-bit over 16-bit; nothing changes without a conversion.
    for (auto [gamma, floatFormat, eightBit, type] : {std::tuple{2.2f, 1, 1, GAN_FLOAT}, {2.2f, 0, 1, GAN_UCHAR},
                                                      {2.2f, 0, 0, GAN_USHORT}, {1.0f, 1, 0, GAN_FLOAT},
                                                      {1.0f, 0, 1, GAN_INT}}) {
        TQ_ClipInfo typed;
        typed.ImageDataTypeOfFile = GAN_INT, typed.colourspace.gamma = gamma;
        typed.colourspace.floatFormat = _TQ_BOOL(floatFormat), typed.colourspace.eightBitFormat = _TQ_BOOL(eightBit);
        typed.vRebuildDataTypeOfFile();
        EXPECT_EQ(type, typed.ImageDataTypeOfFile) << gamma << floatFormat << eightBit;
    }
}

TEST(ClipInfo, FirstFileName)
{
    // A discrete clip still names the sequence fields, not its frames.
    struct Case { char const *dir, *prefix; unsigned int min, width; int index; char const* suffix; bool bDiscrete;
                  QString expected; };
    Case const cases[] = {
        {"/a/b//", "x.", 7, 4, 1, ".tif", false, "/a/b/x.0007.tif"},       // padded
        {"/a/b", "x.", 1234, 2, 1, ".tif", true, "/a/b/x.1234.tif"},        // wider than the field
        {"/a/b//", "x.", 7, 4, 0, ".tif", false, "/a/b/x..tif"},            // no index
        {"/a", "x", 7, 4, 2, ".tif", true, "/a/x.tif"},                     // "HasIndex" must be exactly 1
        {"C:\\shots\\/", "%1_", 0, 0, 1, "%2", false, "C:\\shots/%1_0%2"},  // '%' kept, no padding
        {"/\\/", "x", 3, 1, 1, ".tif", true, "/x3.tif"},                   // only separators: empty directory
        {"", "", 0, 0, 0, "", false, "/"},                                  // empty clip
        {"", "", 5, 300, 1, "", true, "/" + QString(299, '0') + "5"},       // any sensible width pads in full
        // A width read from text is bounded instead of allocating gigabytes.
        {"", "", 5, 0xFFFFFFFFu, 1, "", false, "/" + QString((1 << 20) - 1, '0') + "5"},
    };
    for (Case const& c : cases) {
        TQ_ClipInfo clip;
        clip.ClipDirectory = c.dir, clip.ClipPrefix.string() = c.prefix, clip.ClipSuffix.string() = c.suffix;
        clip.MinimumIndex = c.min, clip.IndexWidth = c.width, clip.HasIndex = _TQ_BOOL(c.index);
        clip.DiscreteFrames = _TQ_BOOL(c.bDiscrete);
        clip.vAppendDiscreteFrame("/elsewhere/a.tif", 3);
        EXPECT_EQ(c.expected, clip.firstFileName()) << &c - cases;
    }
}

TEST(ClipInfo, DiscreteFrameLinesInOutAndBack)
{
    // A discrete clip, with no list yet, drops exactly the six sequence parameters, as often as it is written.
    TQ_ClipInfo discrete;
    discrete.DiscreteFrames = TQ_TRUE;
    EXPECT_EQ(textOf("ClipInfo discrete"), linesOf(discrete));
    EXPECT_EQ(textOf("ClipInfo discrete"), linesOf(discrete));

    // Lines read in order into a fresh clip, how many of them are accepted, and the frames they leave as a
    // discrete clip writes them.
    QString const longName(5000, 'q');
    struct Row { QStringList in; int accepted; QStringList out; };
    Row const rows[] = {
        {{"Frames.DiscreteFrame( x )"}, 0, {}}, {{"Frames.discreteframe( x, 1 )"}, 0, {}},
        {{"Other.keyframes.append( DiscreteFrame( x, 1 ) )"}, 0, {}}, {{"Frames.DiscreteFrame( , 1 )"}, 0, {}},
        {{"Frames.DiscreteFrame( x, -1 )"}, 0, {}}, {{"Frames"}, 0, {}},
        // The name capture is greedy: commas stay in it up to the last one before the number.
        {{"frames.keyframes.append( DiscreteFrame( a, b.tif, 12 ) )"}, 1, {"a, b.tif, 12"}},
        {{"FRAMES.xDiscreteFrame(c.tif,7)yz"}, 1, {"c.tif, 7"}},
        {{"Frames.DiscreteFrame(\td , 1, 2 ,  0042 )"}, 1, {"d , 1, 2 , 42"}},
        {{"Frames.DiscreteFrame( " + longName + ", 4294967295 )"}, 1, {longName + ", 4294967295"}},
        {{"Frames.DiscreteFrame( big, 4294967296 )"}, 1, {"big, 0"}},
        {{"Frames.DiscreteFrame( a" + QString(QChar(0)) + "b, 3 )"}, 1, {"a, 3"}}, // a name ends at a NUL
        // A damaged line after good ones loses nothing.
        {{"Frames.DiscreteFrame( \xc3\xa9t\xc3\xa9.exr, 0 )", "Frames.DiscreteFrame( b, 0 )",
          "Frames.keyframes.append( DiscreteFrame( broken"}, 2, {"\xc3\xa9t\xc3\xa9.exr, 0", "b, 0"}},
    };
    for (Row const& row : rows) {
        TQ_ClipInfo clip, back;
        for (int i = 0; i < row.in.size(); ++i)
            EXPECT_EQ(i < row.accepted, clip.bStreamIn(row.in[i])) << row.in[i].left(60).toStdString();
        // A frame line does not make the clip discrete; refused lines create no list.
        EXPECT_TRUE(!clip.DiscreteFrames && !clip.discreteFrameList() == row.out.isEmpty()) << &row - rows;
        clip.DiscreteFrames = TQ_TRUE;
        QStringList out = row.out;
        out.replaceInStrings(QRegularExpression("^(.*)$"), "Core.Frames.keyframes.append( DiscreteFrame( \\1 ) )");
        EXPECT_EQ(out, linesOf(clip).mid(22));
        TQTest::vReadLines(back, linesOf(clip));
        EXPECT_EQ(out, linesOf(back).mid(22));
    }

    TQ_ClipInfo clip;
    clip.DiscreteFrames = TQ_TRUE;
    clip.vAppendDiscreteFrame("a, b.tif", 12);
    // Frame lines are qualified by the prefix and the set's name whatever the flag says; no name, no dot.
    clip.setScriptName(QString());
    EXPECT_TRUE(linesOf(clip, "P.", false).contains("P.Frames.keyframes.append( DiscreteFrame( a, b.tif, 12 ) )"));
    // The list keeps the discrete form until init(true): a sequence line is refused meanwhile.
    EXPECT_FALSE(clip.bStreamIn("ClipDirectory.value=\"/x\""));
    clip.init(true);
    EXPECT_TRUE(clip.bStreamIn("ClipDirectory.value=\"/x\"") && clip.ClipDirectory == "/x");
    // Streaming a numbered clip rebuilds the full list itself.
    clip.DiscreteFrames = TQ_FALSE;
    clip.init(false);
    EXPECT_EQ(28, linesOf(clip).size());
}

TEST(ClipInfo, CopyAndAssignmentOfTheFrameList)
{
    auto discrete = std::make_unique<TQ_ClipInfo>();
    discrete->DiscreteFrames = TQ_TRUE;
    discrete->setDisplayName("Shown");
    for (auto [name, frame] : Frames{{"a.tif", 1}, {"b.tif", 2}})
        discrete->vAppendDiscreteFrame(name, frame);

    // A discrete clip's copy has a list of its own with the same records, and not the display name.
    TQ_ClipInfo copy(*discrete);
    EXPECT_TRUE(discrete->discreteFrameList() != copy.discreteFrameList() && copy.qstrDisplayName() == "Core");
    EXPECT_EQ(framesOf(*discrete), framesOf(copy));

    // Any other clip shares its list with the copy; the list lives on with the last holder.
    auto numbered = std::make_unique<TQ_ClipInfo>();
    numbered->vAppendDiscreteFrame("c.tif", 3);
    TQ_ClipInfo sharing(*numbered);
    EXPECT_EQ(numbered->discreteFrameList(), sharing.discreteFrameList());
    numbered->DiscreteFrames = TQ_TRUE; // the last holder frees it
    numbered.reset();
    EXPECT_EQ((Frames{{"c.tif", 3}}), framesOf(sharing));

    // Assignment frees the old list, takes names, and leaves the parameters bound to the target.
    copy = sharing;
    EXPECT_EQ(sharing.discreteFrameList(), copy.discreteFrameList());
    copy = *discrete;
    EXPECT_TRUE(discrete->discreteFrameList() != copy.discreteFrameList() && copy.qstrDisplayName() == "Shown");
    discrete.reset();
    EXPECT_EQ((Frames{{"a.tif", 1}, {"b.tif", 2}}), framesOf(copy));
    copy.MaximumIndex = 77, copy.DiscreteFrames = TQ_FALSE;
    EXPECT_TRUE(linesOf(copy).contains("Core.MaximumIndex.value=77"));
    TQ_ClipInfo& alias = copy;
    copy = alias;
    EXPECT_EQ(2, gan_list_get_size(copy.discreteFrameList()));
}
