#include "clip/BaseClipInfo.h"

#include "prm/text/StreamOperators.h"
#include "prm/basic/VirtualParameter.h"
#include "support/EnumerationParameters.h"

#include <limits>

namespace {

unsigned int const uiNoCount = 0xFFFFFFFFu;

// Pulldown: a cycle of five image files holds four frames.
unsigned int uiPulldownFrames(int iMode, unsigned int files)
{
    unsigned int const b = 4u * (files / 5u);
    unsigned int const r = files % 5u;
    switch (iMode) {
    case 3: case 8: {
        unsigned int const add[5] = {0, 1, 2, 2, 3};
        return b + add[r];
    }
    case 4: case 9: {
        unsigned int const add[5] = {0, 1, 1, 2, 3};
        return b + add[r];
    }
    case 5: case 6: case 10: case 11:
        // b - 1 for r = 0 is left unguarded: zero files give 0xFFFFFFFF here.
        return b + r - 1u;
    case 7: case 12: {
        unsigned int const add[5] = {0, 1, 2, 3, 3};
        return b + add[r];
    }
    default:
        return uiNoCount;
    }
}

unsigned int uiPulldownFiles(int iMode, unsigned int frames)
{
    unsigned int const b = 5u * (frames / 4u);
    unsigned int const r = frames % 4u;
    switch (iMode) {
    case 3: case 5: case 6: case 8: case 10: case 11:
        return b + r;
    case 4: case 9: {
        unsigned int const add[4] = {0, 1, 2, 4};
        return b + add[r];
    }
    case 7: case 12:
        if (r == 0)
            return frames == 0 ? 0u : b - 1u;
        return b + r;
    default:
        return uiNoCount;
    }
}

bool bIsFieldMode(int iMode)
{
    return iMode == 1 || iMode == 2;
}

} // namespace

TQ_BaseClipInfo::TQ_BaseClipInfo()
    : Prm::ParameterSet("Core", nullptr), ClipLength(0), FrameWidth(0), FrameHeight(0), CropTop(0), CropLeft(0),
      CropRight(0), CropBottom(0), eInterlaceMode(_TQ_INTERLACE_MODE(0)), FrameRate(0.0f),
      MasterTimelineClipID(0), FirstFrameOffset(0), AspectRatio(0.0), PixelAspectRatio(0.0),
      ProxyScale(_TQ_PROXY_SCALE(0)), DisplayRed(0), DisplayGreen(0), DisplayBlue(0),
      ViewOriginX(std::numeric_limits<float>::max()), ViewOriginY(std::numeric_limits<float>::max()),
      ViewZoom(std::numeric_limits<float>::max()), ClipModeBefore(_TQ_CLIP_MODE(0)),
      ClipModeAfter(_TQ_CLIP_MODE(0))
{
    init();
}

TQ_BaseClipInfo::TQ_BaseClipInfo(TQ_BaseClipInfo const& other) : Prm::ParameterSet("Core", nullptr)
{
    vCopyMembers(other);
    init();
}

TQ_BaseClipInfo::~TQ_BaseClipInfo() = default;

TQ_BaseClipInfo& TQ_BaseClipInfo::operator=(TQ_BaseClipInfo const& other)
{
    if (this == &other)
        return *this;
    // The base's assignment carries both names over; the virtual setter then lets a subclass see the
    // script name change.
    Prm::ParameterSet::operator=(other);
    vCopyMembers(other);
    setScriptName(other.qstrScriptName());
    return *this;
}

void TQ_BaseClipInfo::vCopyMembers(TQ_BaseClipInfo const& other)
{
    ClipLength = other.ClipLength;
    FrameWidth = other.FrameWidth;
    FrameHeight = other.FrameHeight;
    CropTop = other.CropTop;
    CropLeft = other.CropLeft;
    CropRight = other.CropRight;
    CropBottom = other.CropBottom;
    eInterlaceMode = other.eInterlaceMode;
    FrameRate = other.FrameRate;
    MasterTimelineClipID = other.MasterTimelineClipID;
    FirstFrameOffset = other.FirstFrameOffset;
    filmType = other.filmType;
    AspectRatio = other.AspectRatio;
    PixelAspectRatio = other.PixelAspectRatio;
    ProxyScale = other.ProxyScale;
    DisplayRed = other.DisplayRed;
    DisplayGreen = other.DisplayGreen;
    DisplayBlue = other.DisplayBlue;
    ViewOriginX = other.ViewOriginX;
    ViewOriginY = other.ViewOriginY;
    ViewZoom = other.ViewZoom;
    ClipModeBefore = other.ClipModeBefore;
    ClipModeAfter = other.ClipModeAfter;
}

template <class T>
void TQ_BaseClipInfo::vAddVirtual(char const* name, T* member)
{
    basicParameters.append(new Prm::VirtualParameter<T>(QString::fromLatin1(name), member));
}

void TQ_BaseClipInfo::init()
{
    // The fields are bound once: a second set of parameters would read every line twice and leak.
    for (Prm::BasicParameter const* parameter : basicParameters) {
        if (parameter && parameter->scriptName() == QLatin1String("ClipLength"))
            return;
    }
    vAddVirtual("ClipLength", &ClipLength);
    vAddVirtual("FrameWidth", &FrameWidth);
    vAddVirtual("FrameHeight", &FrameHeight);
    vAddVirtual("CropTop", &CropTop);
    vAddVirtual("CropLeft", &CropLeft);
    vAddVirtual("CropRight", &CropRight);
    vAddVirtual("CropBottom", &CropBottom);
    vAddVirtual("eInterlaceMode", &eInterlaceMode);
    vAddVirtual("FrameRate", &FrameRate);
    vAddVirtual("MasterTimelineClipID", &MasterTimelineClipID);
    vAddVirtual("FirstFrameOffset", &FirstFrameOffset);
    vAddVirtual("FilmType", &filmType.name);
    vAddVirtual("FilmBackWidth", &filmType.filmBackWidth);
    vAddVirtual("FilmBackHeight", &filmType.filmBackHeight);
    // The pixel sizes are signed in the film type and written unsigned: same bits, same object.
    static char const* const widthNames[3] = {"FilmWidth1", "FilmWidth2", "FilmWidth3"};
    static char const* const heightNames[3] = {"FilmHeight1", "FilmHeight2", "FilmHeight3"};
    for (int i = 0; i < 3; ++i)
        vAddVirtual(widthNames[i], reinterpret_cast<unsigned int*>(&filmType.filmWidth[i]));
    for (int i = 0; i < 3; ++i)
        vAddVirtual(heightNames[i], reinterpret_cast<unsigned int*>(&filmType.filmHeight[i]));
    vAddVirtual("Anamorphic", &filmType.anamorphic);
    vAddVirtual("AspectRatio", &AspectRatio);
    vAddVirtual("PixelAspectRatio", &PixelAspectRatio);
    vAddVirtual("ProxyScale", &ProxyScale);
    vAddVirtual("DisplayRed", &DisplayRed);
    vAddVirtual("DisplayGreen", &DisplayGreen);
    vAddVirtual("DisplayBlue", &DisplayBlue);
    vAddVirtual("ClipModeBefore", &ClipModeBefore);
    vAddVirtual("ClipModeAfter", &ClipModeAfter);
    vAddVirtual("ViewOriginX", &ViewOriginX);
    vAddVirtual("ViewOriginY", &ViewOriginY);
    vAddVirtual("ViewZoom", &ViewZoom);
    bBasicParametersOwned = true;
}

unsigned int TQ_BaseClipInfo::getClipLength() const
{
    return ClipLength;
}

QSize TQ_BaseClipInfo::getFrameSize() const
{
    return QSize(int(FrameWidth), int(FrameHeight));
}

TQ::FilmType TQ_BaseClipInfo::getFilmType() const
{
    return filmType;
}

void TQ_BaseClipInfo::setFilmType(TQ::FilmType const& film)
{
    filmType = film;
    PixelAspectRatio = film.pixelAspectRatio(getFrameSize(), bIsFieldMode(eInterlaceMode));
    AspectRatio = film.getFilmBackAspectRatio();
}

unsigned int TQ_BaseClipInfo::uiGetNumberOfFrames(unsigned int files) const
{
    int const iMode = eInterlaceMode;
    if (iMode == 0 || iMode == 13)
        return files;
    if (bIsFieldMode(iMode))
        return 2u * files;
    return uiPulldownFrames(iMode, files);
}

unsigned int TQ_BaseClipInfo::uiGetNumberOfPulldownFiles(unsigned int frames) const
{
    int const iMode = eInterlaceMode;
    if (iMode == 0 || iMode == 13)
        return frames;
    if (bIsFieldMode(iMode))
        return (frames & 1u) ? uiNoCount : frames / 2u;
    return uiPulldownFiles(iMode, frames);
}

void TQ_BaseClipInfo::setNumImageFilesInClip(unsigned int files)
{
    ClipLength = uiGetNumberOfFrames(files);
}

bool TQ_BaseClipInfo::bStreamOut(QTextStream& out, QString const& prefix, bool bQualify)
{
    return Prm::ParameterSet::bStreamOut(out, prefix, bQualify);
}

bool TQ_BaseClipInfo::bStreamIn(QString const& line)
{
    return Prm::ParameterSet::bStreamIn(line);
}
