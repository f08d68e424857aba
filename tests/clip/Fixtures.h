#pragma once

#include "clip/BaseClipInfo.h"
#include "clip/BaseClipInfoContainer.h"

#include <QMap>

namespace TQTest {

/// A container of clips keyed by identity, as the application would keep them; unknown ids give null.
class Clips : public TQ_BaseClipInfoContainer
{
public:
    TQ_BaseClipInfo* baseClipInfo(unsigned int clipId) override
    {
        return clips.contains(clipId) ? &clips[clipId] : nullptr;
    }
    QMap<unsigned int, TQ_BaseClipInfo> clips;
};

} // namespace TQTest
