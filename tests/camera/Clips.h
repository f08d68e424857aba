#pragma once
#include "clip/BaseClipInfo.h"

/// A clip of the given size and field layout on a film back `filmBackWidth` wide, with a pixel aspect
/// ratio of `pixelAspectRatio` and a 16:9 film aspect.
inline TQ_BaseClipInfo clipOf(unsigned int width, unsigned int height, _TQ_INTERLACE_MODE mode,
                              double filmBackWidth = 24.0, double pixelAspectRatio = 1.0)
{
    TQ_BaseClipInfo info;
    info.FrameWidth = width;
    info.FrameHeight = height;
    info.eInterlaceMode = mode;
    info.filmType.filmBackWidth = filmBackWidth;
    info.filmType.filmBackHeight = filmBackWidth * 9.0 / 16.0;
    info.PixelAspectRatio = pixelAspectRatio;
    info.AspectRatio = 16.0 / 9.0;
    return info;
}
