#pragma once

#include "camera/FilmType.h"
#include "prm/set/ParameterSet.h"
#include "support/Enumerations.h"

#include <QSize>
#include <QString>

class QTextStream;

/// Timing and geometry of one clip: length, frame size, crop, interlace or pulldown layout, frame rate,
/// film back, display colour and the last view. A parameter set named "Core" whose fields are plain public
/// members, each streamed through a heap-allocated virtual parameter bound to it; the set owns and frees
/// those parameters. Copies and assigned sets keep parameters bound to their own members. Nothing here
/// throws; an interlace mode outside the known ones gives 0xFFFFFFFF from the frame counts.
class TQ_BaseClipInfo : public Prm::ParameterSet
{
public:
    /// Named "Core", all members at their defaults (the view fields at the largest float: no view yet).
    TQ_BaseClipInfo();
    /// Copies every member but not the display names of the source; new parameters bind to the copy.
    TQ_BaseClipInfo(TQ_BaseClipInfo const& other);
    ~TQ_BaseClipInfo() override;
    /// Copies every member, both display names and the script name; the parameters stay bound to this object.
    TQ_BaseClipInfo& operator=(TQ_BaseClipInfo const& other);
    /// Binds one new virtual parameter per field, in text order, and hands their ownership to the set.
    /// Every constructor runs it; a later call finds the fields bound already and changes nothing.
    void init();

    unsigned int getClipLength() const;
    QSize getFrameSize() const;
    TQ::FilmType getFilmType() const;
    /// Stores `film` and derives "PixelAspectRatio" (for the current frame size, doubled for the field
    /// modes 1 and 2) and "AspectRatio" from it. Set the frame size and interlace mode first: nothing else
    /// refreshes the two ratios. A film back of zero height gives non-finite ratios, unguarded.
    void setFilmType(TQ::FilmType const& film);
    /// Frames in a clip of `files` image files, by the interlace or pulldown mode; 0xFFFFFFFF for an
    /// unknown mode. Unsigned 32-bit arithmetic, wrapping.
    unsigned int uiGetNumberOfFrames(unsigned int files) const;
    /// Image files holding `frames` frames; 0xFFFFFFFF for an unknown mode or an odd count in modes 1 and
    /// 2. Not the inverse of uiGetNumberOfFrames.
    unsigned int uiGetNumberOfPulldownFiles(unsigned int frames) const;
    /// "ClipLength" becomes uiGetNumberOfFrames(files), 0xFFFFFFFF included.
    void setNumImageFilesInClip(unsigned int files);

    bool bStreamOut(QTextStream& out, QString const& prefix, bool bQualify) override;
    bool bStreamIn(QString const& line) override;

    unsigned int ClipLength;
    unsigned int FrameWidth;
    unsigned int FrameHeight;
    unsigned int CropTop;
    unsigned int CropLeft;
    unsigned int CropRight;
    unsigned int CropBottom;
    _TQ_INTERLACE_MODE eInterlaceMode;
    float FrameRate;
    unsigned int MasterTimelineClipID;
    /// Added to frame numbers for display (see PrmFrameOffset).
    int FirstFrameOffset;
    TQ::FilmType filmType;
    double AspectRatio;
    double PixelAspectRatio;
    _TQ_PROXY_SCALE ProxyScale;
    unsigned char DisplayRed;
    unsigned char DisplayGreen;
    unsigned char DisplayBlue;
    float ViewOriginX;
    float ViewOriginY;
    float ViewZoom;
    _TQ_CLIP_MODE ClipModeBefore;
    _TQ_CLIP_MODE ClipModeAfter;

private:
    void vCopyMembers(TQ_BaseClipInfo const& other);
    template <class T>
    void vAddVirtual(char const* name, T* member);
};
