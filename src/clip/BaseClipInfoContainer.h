#pragma once

class TQ_BaseClipInfo;

/// Where the library finds a clip by id; the application implements it. The library keeps plain pointers
/// to a container and never owns or deletes one: it must outlive every set and parameter given it.
class TQ_BaseClipInfoContainer
{
public:
    virtual ~TQ_BaseClipInfoContainer() {}

    /// The clip with id `clipId`. Callers in the library do not test the result: the ids they pass (clip 1
    /// for frame offsets, a set's clip parameters) must name existing clips.
    virtual TQ_BaseClipInfo* baseClipInfo(unsigned int clipId) = 0;
};
