#include "clip/ClipInfo.h"
#include "prm/basic/BasicParameter.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <QTextStream>

#include <cstring>
#include <memory>
#include <utility>
#include <vector>

namespace {

using Frames = std::vector<std::pair<QByteArray, unsigned int>>;

Frames framesOf(TQ_ClipInfo const& clip)
{
    Frames frames;
    Gan_List* const list = clip.discreteFrameList();
    gan_list_goto_head(list);
    while (auto const* frame = static_cast<TQ_ClipInfo::DiscreteFrame const*>(gan_list_get_next_node(list)))
        frames.emplace_back(frame->name, frame->frame);
    return frames;
}

QStringList textOf(TQ_ClipInfo& clip, QString const& prefix = QString())
{
    QString text;
    QTextStream out(&text);
    EXPECT_TRUE(clip.bStreamOut(out, prefix, true));
    return text.split('\n', Qt::SkipEmptyParts);
}

void readInto(TQ_ClipInfo& clip, QStringList const& lines)
{
    for (QString const& line : lines) {
        ASSERT_TRUE(line.startsWith("Core."));
        EXPECT_TRUE(clip.bStreamIn(line.mid(5))) << line.toStdString();
    }
}

QStringList namesOf(TQ_ClipInfo const& clip)
{
    QStringList names;
    for (Prm::BasicParameter const* parameter : clip.basicParameterList())
        names << parameter->scriptName();
    return names;
}

// Every member, one by one; the colourspace by its own comparison plus the fields it leaves out.
void expectSameMembers(TQ_ClipInfo const& a, TQ_ClipInfo const& b)
{
#define EXPECT_SAME(member) EXPECT_EQ(a.member, b.member) << #member;
    EXPECT_SAME(ReadOnly) EXPECT_SAME(Hidden) EXPECT_SAME(DiscreteFrames) EXPECT_SAME(Predefined)
    EXPECT_SAME(ClipDirectory) EXPECT_SAME(ClipPrefix) EXPECT_SAME(ClipSuffix) EXPECT_SAME(MinimumIndex)
    EXPECT_SAME(MaximumIndex) EXPECT_SAME(IndexWidth) EXPECT_SAME(SingleFrame) EXPECT_SAME(Linear)
    EXPECT_SAME(Reapply32Pulldown) EXPECT_SAME(ImageFormatOfFile) EXPECT_SAME(ImageDataTypeOfFile)
    EXPECT_SAME(ProcessBits) EXPECT_SAME(HasIndex) EXPECT_SAME(OriginalImageFormat) EXPECT_SAME(sourceDataType)
    EXPECT_SAME(ProxyScale)
#undef EXPECT_SAME
    EXPECT_EQ(framesOf(a), framesOf(b));
    EXPECT_TRUE(a.colourspace.equals(b.colourspace, 0.0f));
    EXPECT_EQ(0, std::memcmp(&a.imageHeaderInfo, &b.imageHeaderInfo, sizeof a.imageHeaderInfo));
}

// Every streamed member away from its default.
void vSetStreamedMembers(TQ_ClipInfo& clip)
{
    clip.ReadOnly = TQ_TRUE, clip.Hidden = TQ_TRUE, clip.Predefined = TQ_TRUE, clip.SingleFrame = TQ_TRUE;
    clip.Linear = TQ_TRUE, clip.Reapply32Pulldown = TQ_FALSE, clip.HasIndex = TQ_TRUE;
    clip.ImageFormatOfFile = GAN_RGB_COLOUR_IMAGE, clip.OriginalImageFormat = GAN_RGB_COLOUR_ALPHA_IMAGE;
    clip.ImageDataTypeOfFile = GAN_USHORT, clip.ProcessBits = 16, clip.ProxyScale = _TQ_PROXY_SCALE(2);
    TQ_ColourspaceParameters& c = clip.colourspace;
    c.colourspace = TQ_COLORSPACE_LOGARITHMIC, c.gamma = 0.6f, c.offset = 12.5f, c.refWhite = 700.0f;
    c.refBlack = 90.0f, c.softClip = 20.0f, c.nativePixelType = GAN_UCHAR, c.floatFormat = TQ_TRUE;
    c.eightBitFormat = TQ_TRUE;
}

} // namespace

TEST(ClipInfo, DefaultsAndTextOrder)
{
    TQ_ClipInfo clip;
    EXPECT_EQ("Core", clip.qstrScriptName());
    EXPECT_EQ(TQ_TRUE, clip.Reapply32Pulldown);
    EXPECT_EQ(GAN_UNDEFINED_IMAGE_FORMAT, clip.ImageFormatOfFile);
    EXPECT_EQ(GAN_UNDEFINED_TYPE, clip.ImageDataTypeOfFile);
    EXPECT_EQ(10, clip.sourceDataType);
    EXPECT_EQ(GAN_UNDEFINED_IMAGE_FORMAT, clip.imageHeaderInfo.file_format);
    EXPECT_EQ(GAN_UNDEFINED_TYPE, clip.imageHeaderInfo.type);
    EXPECT_TRUE(clip.ClipDirectory.isNull());
    EXPECT_EQ(nullptr, clip.discreteFrameList());

    QStringList const expected = {
        "ReadOnly.value=0", "Hidden.value=0", "DiscreteFrames.value=0", "Predefined.value=0",
        "ClipDirectory.value=\"\"", "ClipPrefix.value=\"\"", "ClipSuffix.value=\"\"", "MinimumIndex.value=0",
        "MaximumIndex.value=0", "IndexWidth.value=0", "SingleFrame.value=0", "Colourspace.value=0",
        "Gamma.value=1", "Offset.value=0", "RefWhite.value=685", "RefBlack.value=95", "SoftClip.value=0",
        "NativePixelType.value=17", "FloatFormat.value=0", "8BitFormat.value=0", "ImageFormatOfFile.value=13",
        "OriginalImageFormat.value=13", "ImageDataTypeOfFile.value=17", "ProcessBits.value=0",
        "HasIndex.value=0", "Linear.value=0", "Reapply32Pulldown.value=1", "ProxyScale.value=0"};
    QStringList const lines = textOf(clip, "P.");
    ASSERT_EQ(expected.size(), lines.size());
    for (int i = 0; i < lines.size(); ++i)
        EXPECT_EQ(("P.Core." + expected[i]).toStdString(), lines[i].toStdString());

    // init(false) drops exactly the six sequence parameters, and may run any number of times.
    clip.init(false);
    clip.init(false);
    QStringList withoutSequence;
    for (QString const& line : expected.mid(0, 4) + expected.mid(10))
        withoutSequence << line.section('.', 0, 0);
    EXPECT_EQ(withoutSequence, namesOf(clip));
}

TEST(ClipInfo, FirstFileName)
{
    struct Case { char const* directory; char const* prefix; unsigned int minimum, width; _TQ_BOOL hasIndex;
                  char const* expected; };
    Case const cases[] = {
        {"/a/b//", "x.", 7, 4, TQ_TRUE, "/a/b/x.0007.tif"},       // padded
        {"/a/b", "x.", 1234, 2, TQ_TRUE, "/a/b/x.1234.tif"},       // wider than the field
        {"/a/b//", "x.", 7, 4, TQ_FALSE, "/a/b/x..tif"},           // no index
        {"C:\\shots\\/", "%1_", 0, 0, TQ_TRUE, "C:\\shots/%1_0.tif"},  // '%' kept, no padding
        {"/\\/", "x", 3, 1, TQ_TRUE, "/x3.tif"},                    // only separators: empty directory
        {"", "", 0, 0, TQ_FALSE, "/.tif"},                          // empty clip with a suffix
    };
    for (Case const& c : cases) {
        TQ_ClipInfo clip;
        clip.ClipDirectory = c.directory, clip.ClipPrefix.string() = c.prefix, clip.ClipSuffix.string() = ".tif";
        clip.MinimumIndex = c.minimum, clip.IndexWidth = c.width, clip.HasIndex = c.hasIndex;
        EXPECT_EQ(c.expected, clip.firstFileName()) << c.directory;
    }
    TQ_ClipInfo empty;
    EXPECT_EQ("/", empty.firstFileName());

    // "HasIndex" must be exactly 1; a discrete clip still names the sequence fields, not its frames.
    TQ_ClipInfo discrete;
    discrete.ClipDirectory = "/d", discrete.ClipPrefix.string() = "f", discrete.HasIndex = _TQ_BOOL(2);
    discrete.DiscreteFrames = TQ_TRUE;
    discrete.vAppendDiscreteFrame("/elsewhere/a.tif", 3);
    EXPECT_EQ("/d/f", discrete.firstFileName());

    // Any sensible width pads in full; a width read from text is bounded instead of allocating gigabytes.
    TQ_ClipInfo wide;
    wide.HasIndex = TQ_TRUE, wide.MinimumIndex = 5;
    for (unsigned int const width : {300u, 1u << 20}) {
        wide.IndexWidth = width;
        EXPECT_EQ(QString(int(width) - 1, '0') + "5", wide.firstFileName().mid(1)) << width;
    }
    wide.IndexWidth = 0xFFFFFFFFu;
    EXPECT_EQ(1 + (1 << 20), wide.firstFileName().size());
}

TEST(ClipInfo, DiscreteFrameLinesOut)
{
    TQ_ClipInfo clip;
    clip.DiscreteFrames = TQ_TRUE;
    // No list yet: no frame lines, and the six sequence parameters are gone from the text.
    QStringList lines = textOf(clip, "P.");
    EXPECT_EQ(22, lines.size());
    for (char const* name : {"ClipDirectory", "ClipPrefix", "ClipSuffix", "MinimumIndex", "MaximumIndex",
                             "IndexWidth", "Frames"})
        EXPECT_TRUE(lines.filter(QString(".%1.").arg(name)).isEmpty()) << name;

    QByteArray const longName = QByteArray(3000, 'n') + ".tif";
    clip.vAppendDiscreteFrame("a, b.tif", 12);
    clip.vAppendDiscreteFrame("\xc3\xa9t\xc3\xa9.exr", 0);
    clip.vAppendDiscreteFrame(longName, 4294967295u);
    lines = textOf(clip, "P.");
    ASSERT_EQ(25, lines.size());
    EXPECT_EQ("P.Core.Frames.keyframes.append( DiscreteFrame( a, b.tif, 12 ) )", lines[22]);
    EXPECT_EQ(QString::fromUtf8("P.Core.Frames.keyframes.append( DiscreteFrame( \xc3\xa9t\xc3\xa9.exr, 0 ) )"),
              lines[23]);
    EXPECT_EQ("P.Core.Frames.keyframes.append( DiscreteFrame( " + QString(longName) + ", 4294967295 ) )",
              lines[24]);

    // Frame lines are qualified by the set's name whatever the flag says; no name, no dot.
    QString unqualified;
    QTextStream out(&unqualified);
    clip.setScriptName(QString());
    EXPECT_TRUE(clip.bStreamOut(out, "P.", false));
    EXPECT_TRUE(unqualified.contains("\nP.Frames.keyframes.append( DiscreteFrame( a, b.tif, 12 ) )\n"));

    // The list keeps the discrete form until init(true): a sequence line is refused meanwhile.
    EXPECT_FALSE(clip.bStreamIn("ClipDirectory.value=\"/x\""));
    clip.init(true);
    EXPECT_TRUE(clip.bStreamIn("ClipDirectory.value=\"/x\""));
    EXPECT_EQ("/x", clip.ClipDirectory);
    // Streaming a numbered clip rebuilds the full list itself.
    clip.DiscreteFrames = TQ_FALSE;
    clip.init(false);
    EXPECT_EQ(28, textOf(clip).size());
}

TEST(ClipInfo, DiscreteFrameLinesIn)
{
    TQ_ClipInfo clip;
    // Refused lines create no list.
    for (char const* line : {"Frames.DiscreteFrame( x )", "Frames.discreteframe( x, 1 )",
                             "Other.keyframes.append( DiscreteFrame( x, 1 ) )", "Frames.DiscreteFrame( , 1 )",
                             "Frames.DiscreteFrame( x, -1 )", "Frames"}) {
        EXPECT_FALSE(clip.bStreamIn(line)) << line;
        EXPECT_EQ(nullptr, clip.discreteFrameList()) << line;
    }
    QByteArray const longName = QByteArray(5000, 'q');
    for (QString const& line : QStringList{"frames.keyframes.append( DiscreteFrame( a, b.tif, 12 ) )",
                               "FRAMES.xDiscreteFrame(c.tif,7)yz", "Frames.DiscreteFrame(\td , 1, 2 ,  0042 )",
                               "Frames.DiscreteFrame( " + QString(longName) + ", 4294967295 )",
                               "Frames.DiscreteFrame( big, 4294967296 )"})
        EXPECT_TRUE(clip.bStreamIn(line)) << line.toStdString();
    // A damaged line after good ones loses nothing.
    EXPECT_FALSE(clip.bStreamIn("Frames.keyframes.append( DiscreteFrame( broken"));
    Frames const expected = {{"a, b.tif", 12}, {"c.tif", 7}, {"d , 1, 2 ", 42}, {longName, 4294967295u},
                             {"big", 0}};
    EXPECT_EQ(expected, framesOf(clip));
    // A frame line does not make the clip discrete.
    EXPECT_EQ(TQ_FALSE, clip.DiscreteFrames);
    EXPECT_EQ(5, gan_list_get_size(clip.discreteFrameList()));
}

TEST(ClipInfo, NumberedClipTextRoundTrip)
{
    TQ_ClipInfo source;
    vSetStreamedMembers(source);
    source.ClipDirectory = "/shots/a b", source.ClipPrefix.string() = "plate.%d", source.ClipSuffix.string() = ".dpx";
    source.MinimumIndex = 1001, source.MaximumIndex = 1100, source.IndexWidth = 5;

    TQ_ClipInfo target;
    readInto(target, textOf(source));
    expectSameMembers(source, target);
    EXPECT_EQ(textOf(source), textOf(target));
}

TEST(ClipInfo, DiscreteClipTextRoundTrip)
{
    TQ_ClipInfo source;
    vSetStreamedMembers(source);
    source.DiscreteFrames = TQ_TRUE;
    for (auto const& frame : Frames{{"/a/one, two.tif", 3}, {"/b/\xe2\x82\xac.exr", 9}, {"/c/x.tif", 3}})
        source.vAppendDiscreteFrame(frame.first, frame.second);

    TQ_ClipInfo target;
    readInto(target, textOf(source));
    expectSameMembers(source, target);
}

TEST(ClipInfo, CopyAndAssignmentOfTheFrameList)
{
    auto discrete = std::make_unique<TQ_ClipInfo>();
    discrete->DiscreteFrames = TQ_TRUE;
    discrete->vAppendDiscreteFrame("a.tif", 1);
    discrete->vAppendDiscreteFrame("b.tif", 2);
    discrete->setDisplayName("Shown");

    // A discrete clip's copy has a list of its own with the same records.
    TQ_ClipInfo copy(*discrete);
    EXPECT_NE(discrete->discreteFrameList(), copy.discreteFrameList());
    EXPECT_EQ(framesOf(*discrete), framesOf(copy));
    EXPECT_EQ("Core", copy.qstrDisplayName());

    // Any other clip shares its list with the copy; the list lives on with the last holder.
    auto numbered = std::make_unique<TQ_ClipInfo>();
    numbered->vAppendDiscreteFrame("c.tif", 3);
    TQ_ClipInfo sharing(*numbered);
    EXPECT_EQ(numbered->discreteFrameList(), sharing.discreteFrameList());
    numbered->DiscreteFrames = TQ_TRUE;
    numbered.reset();
    EXPECT_EQ((Frames{{"c.tif", 3}}), framesOf(sharing));

    // Assignment drops the old list, takes names, and leaves the parameters bound to the target.
    copy = sharing;
    EXPECT_EQ(sharing.discreteFrameList(), copy.discreteFrameList());
    copy = *discrete;
    EXPECT_NE(discrete->discreteFrameList(), copy.discreteFrameList());
    EXPECT_EQ("Shown", copy.qstrDisplayName());
    discrete.reset();
    EXPECT_EQ((Frames{{"a.tif", 1}, {"b.tif", 2}}), framesOf(copy));
    copy.MaximumIndex = 77;
    EXPECT_TRUE(textOf(copy).contains("Core.Frames.keyframes.append( DiscreteFrame( b.tif, 2 ) )"));
    copy.DiscreteFrames = TQ_FALSE;
    EXPECT_TRUE(textOf(copy).contains("Core.MaximumIndex.value=77"));

    // Self-assignment changes nothing.
    TQ_ClipInfo& alias = copy;
    copy = alias;
    EXPECT_EQ(2, gan_list_get_size(copy.discreteFrameList()));
}

TEST(ClipInfo, HeaderCopyAndDataType)
{
    TQ_ClipInfo clip;
    vSetStreamedMembers(clip);
    clip.ClipDirectory = "/shots";
    gan_initialise_image_header_info(&clip.imageHeaderInfo, GAN_RGB_COLOUR_IMAGE, GAN_FLOAT);
    clip.imageHeaderInfo.width = 2048;
    std::unique_ptr<TQ_ClipInfo> const header(clip.copyHeaderInfo());
    TQ_ClipInfo expected;
    expected.imageHeaderInfo = clip.imageHeaderInfo;
    expected.ImageDataTypeOfFile = clip.ImageDataTypeOfFile;
    expected.ImageFormatOfFile = clip.ImageFormatOfFile;
    expectSameMembers(expected, *header);

    // float wins over 8-bit, 8-bit over 16-bit; nothing changes without a conversion.
    struct Case { float gamma; _TQ_BOOL floatFormat, eightBit; Gan_Type expected; };
    Case const cases[] = {
        {2.2f, TQ_TRUE, TQ_TRUE, GAN_FLOAT}, {2.2f, TQ_FALSE, TQ_TRUE, GAN_UCHAR},
        {2.2f, TQ_FALSE, TQ_FALSE, GAN_USHORT}, {1.0f, TQ_TRUE, TQ_FALSE, GAN_FLOAT},
        {1.0f, TQ_FALSE, TQ_TRUE, GAN_INT},
    };
    for (Case const& c : cases) {
        TQ_ClipInfo typed;
        typed.ImageDataTypeOfFile = GAN_INT;
        typed.colourspace.gamma = c.gamma, typed.colourspace.floatFormat = c.floatFormat;
        typed.colourspace.eightBitFormat = c.eightBit;
        typed.vRebuildDataTypeOfFile();
        EXPECT_EQ(c.expected, typed.ImageDataTypeOfFile) << c.gamma << c.floatFormat << c.eightBit;
    }
}
