#pragma once

#include "camera/FilmType.h"

#include <QSize>

namespace TQ {

/// Read-only view of a clip's timing and geometry for the application. The library defines it and neither
/// implements nor calls it; TQ_BaseClipInfo does not derive from it.
class IBaseClip
{
public:
    virtual ~IBaseClip() {}

    /// Number of frames in the clip.
    virtual unsigned int uiGetClipLength() const = 0;
    /// Frame size in pixels.
    virtual QSize getFrameSize() const = 0;
    /// Film back the clip was shot on.
    virtual FilmType getFilmType() const = 0;
    /// Frames per second.
    virtual float fGetFrameRate() const = 0;
    /// Film back aspect ratio.
    virtual double dGetAspectRatio() const = 0;
    /// Pixel aspect ratio.
    virtual double dGetPixelAspectRatio() const = 0;
    /// Added to a frame number for display.
    virtual int iGetFirstFrameOffset() const = 0;
};

} // namespace TQ
