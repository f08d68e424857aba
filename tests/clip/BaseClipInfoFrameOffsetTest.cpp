#include "clip/BaseClipInfo.h"
#include "clip/BaseClipInfoContainer.h"
#include "clip/FrameOffsetParameter.h"

#include <gtest/gtest.h>

#include <QMap>

namespace {

class Clips : public TQ_BaseClipInfoContainer
{
public:
    TQ_BaseClipInfo* baseClipInfo(unsigned int clipId) override
    {
        ++iCalls;
        lastId = clipId;
        return clips.contains(clipId) ? &clips[clipId] : nullptr;
    }

    QMap<unsigned int, TQ_BaseClipInfo> clips;
    int iCalls = 0;
    unsigned int lastId = 0;
};

PrmFrameOffset makeOffset(TQ_BaseClipInfoContainer* container)
{
    return PrmFrameOffset(true, "InputRangeMin", 0u, 0u, 4294967295u, Prm::Interpolation(2),
                          Prm::Extrapolation(1), container);
}

} // namespace

TEST(BaseClipInfoFrameOffset, ShiftsByFirstClipAndWraps)
{
    Clips clips;
    clips.clips[1].FirstFrameOffset = 1000;
    clips.clips[2].FirstFrameOffset = 5;
    PrmFrameOffset const offset = makeOffset(&clips);

    EXPECT_EQ(1010u, offset.value2Display(10u, 3.0f));
    EXPECT_EQ(1u, clips.lastId);
    EXPECT_EQ(10u, offset.display2Value(1010u, -7.0f));
    EXPECT_EQ(4294966296u, offset.display2Value(0u, 0.0f));
    EXPECT_EQ(999u, offset.value2Display(4294967295u, 0.0f));
    EXPECT_EQ(1010.0, offset.value2DisplayAsDouble(10.0, 0.0f));

    clips.clips[1].FirstFrameOffset = -20;
    EXPECT_EQ(4294967286u, offset.value2Display(10u, 0.0f));
    EXPECT_EQ(10u, offset.display2Value(4294967286u, 0.0f));
    EXPECT_EQ(40u, offset.display2Value(20u, 0.0f));

    // The stored value is untouched by the display mapping.
    EXPECT_EQ(0u, offset.value(0.0f, nullptr));
}

TEST(BaseClipInfoFrameOffset, CopyKeepsContainerAssignmentDoesNot)
{
    Clips clips;
    clips.clips[1].FirstFrameOffset = 7;
    PrmFrameOffset const original = makeOffset(&clips);
    PrmFrameOffset copy(original);
    EXPECT_EQ(&clips, copy.clipContainer);
    EXPECT_EQ(8u, copy.value2Display(1u, 0.0f));

    PrmFrameOffset other = makeOffset(nullptr);
    other = original;
    EXPECT_EQ(nullptr, other.clipContainer);
    // Without a container nothing is shifted.
    EXPECT_EQ(1u, other.value2Display(1u, 0.0f));
    EXPECT_EQ("InputRangeMin", other.qstrScriptName());
}
