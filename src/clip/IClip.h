#pragma once

#include <QString>

namespace TQ {

/// Read-only view of where a clip's images are, for the application. The library defines it and neither
/// implements nor calls it; TQ_ClipInfo does not derive from it.
class IClip
{
public:
    virtual ~IClip() {}

    /// Full path of the clip's first image file.
    virtual QString firstFileName() const = 0;
    /// True when the clip is a list of discrete frames rather than a numbered sequence.
    virtual bool bIsDiscrete() const = 0;
    /// First file index of a numbered sequence.
    virtual unsigned int uiGetMinimumIndex() const = 0;
    /// Last file index of a numbered sequence.
    virtual unsigned int uiGetMaximumIndex() const = 0;
    /// True when pixel values pass through lookup tables on the way in or out.
    virtual bool bConversionRequired() const = 0;
};

} // namespace TQ
