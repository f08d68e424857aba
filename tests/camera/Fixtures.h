#pragma once
#include "clip/BaseClipInfo.h"

/// A 2048 x 1152 clip of the given field layout on a film back 24 mm wide, with a 16:9 film aspect.
inline TQ_BaseClipInfo clipOf(_TQ_INTERLACE_MODE mode = TQ_INTERLACE_NONE, double pixelAspectRatio = 1.0)
{
    TQ_BaseClipInfo info;
    info.FrameWidth = 2048;
    info.FrameHeight = 1152;
    info.eInterlaceMode = mode;
    info.filmType.filmBackWidth = 24.0;
    info.filmType.filmBackHeight = 24.0 * 9.0 / 16.0;
    info.PixelAspectRatio = pixelAspectRatio;
    info.AspectRatio = 16.0 / 9.0;
    return info;
}
