#include "clip/ClipInfo.h"

#include "clip/LookupTableHelperMethods.h"
#include "prm/basic/VirtualParameter.h"

#include <Imath/half.h>

#include <QRegExp>
#include <QTextStream>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

using DiscreteFrame = TQ_ClipInfo::DiscreteFrame;

// Longest index text firstFileName pads to: far beyond any real name, while a width read from text
// cannot make it allocate gigabytes.
unsigned int const uiMaximumIndexWidth = 1u << 20;

void vDeleteFrame(void* record)
{
    delete static_cast<DiscreteFrame*>(record);
}

void vFreeFrameList(Gan_List* list)
{
    gan_list_free(list, vDeleteFrame);
}

std::shared_ptr<Gan_List> newFrameList()
{
    Gan_List* const list = gan_list_new();
    return list ? std::shared_ptr<Gan_List>(list, vFreeFrameList) : std::shared_ptr<Gan_List>();
}

// Appends a record; the record is freed again when the list cannot take it.
void vAppendFrame(Gan_List* list, DiscreteFrame const& frame)
{
    auto* const record = new DiscreteFrame(frame);
    if (!gan_list_insert_last(list, record))
        delete record;
}

std::shared_ptr<Gan_List> duplicateFrameList(Gan_List* source)
{
    std::shared_ptr<Gan_List> copy = newFrameList();
    gan_list_goto_head(source);
    while (auto const* frame = static_cast<DiscreteFrame const*>(gan_list_get_next_node(source)))
        vAppendFrame(copy.get(), *frame);
    return copy;
}

template <class T>
void vBuildTable(T*& table, std::size_t entries)
{
    table = new T[entries]();
}

// Half bit patterns of positive finite non-zero values take the power curve; negatives, zeros,
// infinities and NaNs pass through as Imath decodes them.
void vBuildHalfToFloat(float* table, float inverseGamma)
{
    for (unsigned int h = 0; h < 65536u; ++h) {
        float v = imath_half_to_float_table[h].f;
        if (!(h & 0x8000u) && (h & 0x7C00u) != 0x7C00u && (h & 0x7FFFu) != 0u)
            v = std::pow(v, inverseGamma);
        table[h] = v;
    }
}

void vBuildGammaTables(TQ_ColourspaceParameters& c)
{
    float const g = c.gamma;
    float const inverse = 1.0f / g;
    float* const s16 = c.floatTo16Segments;
    float* const s8 = c.floatTo8Segments;
    gbCreate16BitGammaLookup(8, g, c.lut8To16, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
    gbCreate8BitGammaLookup(16, inverse, c.lut16To8, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
    gbCreate16BitGammaLookup(16, g, c.lut16To16Forward, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
    gbCreate16BitGammaLookup(16, inverse, c.lut16To16Inverse, nullptr, nullptr, nullptr, nullptr, nullptr,
                             nullptr);
    vBuildHalfToFloat(c.lutHalfToFloat, inverse);
    gbCreate32BitFloatGammaLookup(8, g, c.lut8ToFloat);
    gbCreate8BitGammaLookup(32, inverse, c.lutFloatTo8, &s8[0], &s8[1], &s8[2], &s8[3], &s8[4], c.lut8ToFloat);
    gbCreate32BitFloatGammaLookup(16, g, c.lut16ToFloat);
    gbCreate16BitGammaLookup(32, inverse, c.lutFloatTo16, &s16[0], &s16[1], &s16[2], &s16[3], &s16[4],
                             c.lut16ToFloat);
}

void vBuildLogTables(TQ_ColourspaceParameters& c)
{
    float const o = c.offset, w = c.refWhite, b = c.refBlack, g = c.gamma, s = c.softClip;
    float* const s16 = c.floatTo16Segments;
    float* const s8 = c.floatTo8Segments;
    gbCreate16BitLogLinLookup(8, o, w, b, g, s, c.lut8To16);
    gbCreate8BitLinLogLookup(16, o, w, b, g, s, c.lut16To8, nullptr, nullptr, nullptr, nullptr, nullptr,
                             nullptr);
    gbCreate16BitLogLinLookup(16, o, w, b, g, s, c.lut16To16Forward);
    gbCreate16BitLinLogLookup(16, o, w, b, g, s, c.lut16To16Inverse, nullptr, nullptr, nullptr, nullptr,
                              nullptr, nullptr);
    gbCreate32BitFloatLogLinLookup(8, o, w, b, g, s, c.lut8ToFloat);
    gbCreate8BitLinLogLookup(32, o, w, b, g, s, c.lutFloatTo8, &s8[0], &s8[1], &s8[2], &s8[3], &s8[4],
                             c.lut8ToFloat);
    gbCreate32BitFloatLogLinLookup(16, o, w, b, g, s, c.lut16ToFloat);
    gbCreate16BitLinLogLookup(32, o, w, b, g, s, c.lutFloatTo16, &s16[0], &s16[1], &s16[2], &s16[3], &s16[4],
                              c.lut16ToFloat);
}

void vBuildPanalogTables(TQ_ColourspaceParameters& c)
{
    float* const s16 = c.floatTo16Segments;
    float* const s8 = c.floatTo8Segments;
    gbCreate16BitPanalogLinLookup(8, c.lut8To16, false);
    gbCreate8BitLinPanalogLookup(16, c.lut16To8, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
    gbCreate16BitPanalogLinLookup(16, c.lut16To16Forward, false);
    gbCreate16BitLinPanalogLookup(16, c.lut16To16Inverse, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
    gbCreate32BitFloatPanalogLinLookup(8, c.lut8ToFloat, true);
    gbCreate8BitLinPanalogLookup(32, c.lutFloatTo8, &s8[0], &s8[1], &s8[2], &s8[3], &s8[4], c.lut8ToFloat);
    gbCreate32BitFloatPanalogLinLookup(16, c.lut16ToFloat, true);
    gbCreate16BitLinPanalogLookup(32, c.lutFloatTo16, &s16[0], &s16[1], &s16[2], &s16[3], &s16[4],
                                  c.lut16ToFloat);
}

} // namespace

TQ_ClipInfo::TQ_ClipInfo()
    : Prm::ParameterSet("Core", nullptr), ReadOnly(TQ_FALSE), Hidden(TQ_FALSE), DiscreteFrames(TQ_FALSE),
      Predefined(TQ_FALSE), MinimumIndex(0), MaximumIndex(0), IndexWidth(0), SingleFrame(TQ_FALSE),
      Linear(TQ_FALSE), Reapply32Pulldown(TQ_TRUE), ImageFormatOfFile(GAN_UNDEFINED_IMAGE_FORMAT),
      ImageDataTypeOfFile(GAN_UNDEFINED_TYPE), ProcessBits(0), HasIndex(TQ_FALSE),
      OriginalImageFormat(GAN_UNDEFINED_IMAGE_FORMAT), sourceDataType(10), imageHeaderInfo(),
      ProxyScale(_TQ_PROXY_SCALE(0))
{
    gan_initialise_image_header_info(&imageHeaderInfo, GAN_UNDEFINED_IMAGE_FORMAT, GAN_UNDEFINED_TYPE);
    init(true);
}

TQ_ClipInfo::TQ_ClipInfo(TQ_ClipInfo const& other) : Prm::ParameterSet("Core", nullptr), colourspace(other.colourspace)
{
    vCopyMembers(other);
    vTakeFrameList(other);
    init(true);
}

TQ_ClipInfo::~TQ_ClipInfo()
{
    // The flag that would let the base free them is left unset: init deletes them itself.
    vDeleteParameters();
}

TQ_ClipInfo& TQ_ClipInfo::operator=(TQ_ClipInfo const& other)
{
    if (this == &other)
        return *this;
    Prm::ParameterSet::operator=(other);
    frameList.reset();
    vCopyMembers(other);
    colourspace = other.colourspace;
    vTakeFrameList(other);
    Prm::ParameterSet::setDisplayName(other.qstrDisplayName());
    setScriptName(other.qstrScriptName());
    return *this;
}

void TQ_ClipInfo::vCopyMembers(TQ_ClipInfo const& other)
{
    ReadOnly = other.ReadOnly;
    Hidden = other.Hidden;
    DiscreteFrames = other.DiscreteFrames;
    Predefined = other.Predefined;
    ClipDirectory = other.ClipDirectory;
    ClipPrefix = other.ClipPrefix;
    ClipSuffix = other.ClipSuffix;
    MinimumIndex = other.MinimumIndex;
    MaximumIndex = other.MaximumIndex;
    IndexWidth = other.IndexWidth;
    SingleFrame = other.SingleFrame;
    Linear = other.Linear;
    Reapply32Pulldown = other.Reapply32Pulldown;
    ImageFormatOfFile = other.ImageFormatOfFile;
    ImageDataTypeOfFile = other.ImageDataTypeOfFile;
    ProcessBits = other.ProcessBits;
    HasIndex = other.HasIndex;
    OriginalImageFormat = other.OriginalImageFormat;
    sourceDataType = other.sourceDataType;
    std::memcpy(&imageHeaderInfo, &other.imageHeaderInfo, sizeof imageHeaderInfo);
    ProxyScale = other.ProxyScale;
}

// A discrete clip's list is duplicated; any other list is shared with `other`.
void TQ_ClipInfo::vTakeFrameList(TQ_ClipInfo const& other)
{
    frameList = other.frameList;
    if (other.DiscreteFrames != TQ_FALSE && other.frameList)
        frameList = duplicateFrameList(other.frameList.get());
}

void TQ_ClipInfo::vDeleteParameters()
{
    qDeleteAll(basicParameters);
    basicParameters.clear();
}

template <class T>
void TQ_ClipInfo::vAddVirtual(char const* name, T* member)
{
    basicParameters.append(new Prm::VirtualParameter<T>(QString::fromLatin1(name), member));
}

void TQ_ClipInfo::init(bool withSequenceParameters)
{
    vDeleteParameters();
    vAddVirtual("ReadOnly", &ReadOnly);
    vAddVirtual("Hidden", &Hidden);
    vAddVirtual("DiscreteFrames", &DiscreteFrames);
    vAddVirtual("Predefined", &Predefined);
    if (withSequenceParameters) {
        vAddVirtual("ClipDirectory", &ClipDirectory);
        vAddVirtual("ClipPrefix", &ClipPrefix.string());
        vAddVirtual("ClipSuffix", &ClipSuffix.string());
        vAddVirtual("MinimumIndex", &MinimumIndex);
        vAddVirtual("MaximumIndex", &MaximumIndex);
        vAddVirtual("IndexWidth", &IndexWidth);
    }
    vAddVirtual("SingleFrame", &SingleFrame);
    vAddVirtual("Colourspace", &colourspace.colourspace);
    vAddVirtual("Gamma", &colourspace.gamma);
    vAddVirtual("Offset", &colourspace.offset);
    vAddVirtual("RefWhite", &colourspace.refWhite);
    vAddVirtual("RefBlack", &colourspace.refBlack);
    vAddVirtual("SoftClip", &colourspace.softClip);
    vAddVirtual("NativePixelType", &colourspace.nativePixelType);
    vAddVirtual("FloatFormat", &colourspace.floatFormat);
    vAddVirtual("8BitFormat", &colourspace.eightBitFormat);
    vAddVirtual("ImageFormatOfFile", &ImageFormatOfFile);
    vAddVirtual("OriginalImageFormat", &OriginalImageFormat);
    vAddVirtual("ImageDataTypeOfFile", &ImageDataTypeOfFile);
    vAddVirtual("ProcessBits", &ProcessBits);
    vAddVirtual("HasIndex", &HasIndex);
    vAddVirtual("Linear", &Linear);
    vAddVirtual("Reapply32Pulldown", &Reapply32Pulldown);
    vAddVirtual("ProxyScale", &ProxyScale);
}

QString TQ_ClipInfo::firstFileName() const
{
    int const width = int(std::min(IndexWidth, uiMaximumIndexWidth));
    QString const index = QString::number(MinimumIndex).rightJustified(width, QLatin1Char('0'));
    QString directory = ClipDirectory;
    while (directory.endsWith(QLatin1Char('/')) || directory.endsWith(QLatin1Char('\\')))
        directory.chop(1);
    QString const indexPart = HasIndex == TQ_TRUE ? index : QString();
    // One multi-argument arg(): a '%' inside a name is not taken for a placeholder.
    return QStringLiteral("%1/%2%3%4").arg(directory, ClipPrefix.string(), indexPart, ClipSuffix.string());
}

void TQ_ClipInfo::CreateLUTs()
{
    colourspace.vFreeTables();
    if (!colourspace.bConversionRequired())
        return;
    TQ_ColourspaceParameters& c = colourspace;
    std::size_t const n8 = TQ_ColourspaceParameters::uiEntries8, n16 = TQ_ColourspaceParameters::uiEntries16;
    vBuildTable(c.lut8To16, n8);
    vBuildTable(c.lut16To8, n16);
    vBuildTable(c.lut16To16Forward, n16);
    vBuildTable(c.lut16To16Inverse, n16);
    if (c.colourspace == TQ_COLORSPACE_GAMMA)
        vBuildTable(c.lutHalfToFloat, n16);
    vBuildTable(c.lut8ToFloat, n8);
    vBuildTable(c.lutFloatTo8, n16);
    vBuildTable(c.lut16ToFloat, n16);
    vBuildTable(c.lutFloatTo16, n16);
    // Any other colourspace keeps its tables allocated and zero.
    switch (c.colourspace) {
    case TQ_COLORSPACE_GAMMA:
        vBuildGammaTables(c);
        break;
    case TQ_COLORSPACE_LOGARITHMIC:
        vBuildLogTables(c);
        break;
    case TQ_COLORSPACE_PANALOG:
        vBuildPanalogTables(c);
        break;
    }
}

void TQ_ClipInfo::vRebuildDataTypeOfFile()
{
    if (!colourspace.bConversionRequired())
        return;
    if (colourspace.floatFormat != TQ_FALSE)
        ImageDataTypeOfFile = GAN_FLOAT;
    else if (colourspace.eightBitFormat != TQ_FALSE)
        ImageDataTypeOfFile = GAN_UCHAR;
    else
        ImageDataTypeOfFile = GAN_USHORT;
}

TQ_ClipInfo* TQ_ClipInfo::copyHeaderInfo() const
{
    auto* const copy = new TQ_ClipInfo();
    std::memcpy(&copy->imageHeaderInfo, &imageHeaderInfo, sizeof imageHeaderInfo);
    copy->ImageDataTypeOfFile = ImageDataTypeOfFile;
    copy->ImageFormatOfFile = ImageFormatOfFile;
    return copy;
}

bool TQ_ClipInfo::bStreamOut(QTextStream& out, QString const& prefix, bool bQualify)
{
    if (DiscreteFrames != TQ_TRUE) {
        init(true);
        return Prm::ParameterSet::bStreamOut(out, prefix, bQualify);
    }
    init(false);
    Prm::ParameterSet::bStreamOut(out, prefix, bQualify);
    QString linePrefix = prefix;
    if (!qstrScriptName().isEmpty())
        linePrefix += qstrScriptName() + QLatin1Char('.');
    linePrefix += QLatin1String("Frames.");
    Gan_List* const list = frameList.get();
    gan_list_goto_head(list);
    while (auto const* frame = static_cast<DiscreteFrame const*>(gan_list_get_next_node(list))) {
        out << linePrefix << "keyframes.append( DiscreteFrame( " << QString::fromUtf8(frame->name) << ", "
            << frame->frame << " ) )" << Qt::endl;
    }
    return true;
}

bool TQ_ClipInfo::bStreamIn(QString const& line)
{
    if (Prm::ParameterSet::bStreamIn(line))
        return true;
    if (!line.startsWith(QLatin1String("Frames."), Qt::CaseInsensitive))
        return false;
    // Greedy: a name keeps its commas up to the last one before the number.
    static QRegExp const pattern(QStringLiteral("DiscreteFrame\\(\\s*(\\S.*),\\s*([0-9]+)\\s*\\)"),
                                 Qt::CaseSensitive, QRegExp::RegExp);
    QRegExp matcher(pattern);
    if (matcher.indexIn(line) < 0)
        return false;
    // Digits beyond the unsigned range read as 0, as the number reader gives them; the line still counts.
    vAppendDiscreteFrame(matcher.cap(1).toUtf8(), matcher.cap(2).toUInt(nullptr, 10));
    return true;
}

Gan_List* TQ_ClipInfo::discreteFrameList() const
{
    return frameList.get();
}

void TQ_ClipInfo::vAppendDiscreteFrame(QByteArray const& utf8Name, unsigned int frame)
{
    if (!frameList)
        frameList = newFrameList();
    // A record's name is a C string: it ends at the first NUL byte, as saved projects read it back.
    if (frameList)
        vAppendFrame(frameList.get(), DiscreteFrame{QByteArray(utf8Name.constData()), frame});
}
