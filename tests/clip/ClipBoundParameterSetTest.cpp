#include "clip/ClipBoundParameterSet.h"
#include "modules/TrackingParameterSet.h"
#include "prm/Fixtures.h"

#include <gtest/gtest.h>

namespace {

using TQ::ClipBoundParameterSet;

Prm::Parameter<unsigned int> clipReference(unsigned int defaultId)
{
    return Prm::Parameter<unsigned int>(false, "AnyClipID", defaultId, Prm::InterpolationStep,
                                        Prm::ExtrapolationHold);
}

TEST(ClipBoundParameterSet, ForgetClipResetsToTheDefaultAndAnnouncesOnlyARealChange)
{
    struct Row {
        unsigned int uiDefault, uiStored, uiForgotten, uiExpected;
        bool bAnnounced;
    };
    Row const rows[] = {
        {0, 7, 7, 0, true},  // the named clip goes back to "no clip"
        {1, 7, 7, 1, true},  // ... or to the main input, never to 0 blindly
        {0, 7, 3, 7, false}, // another clip: untouched
        {0, 7, 0, 0, true},  // 0 is a wildcard
        {1, 1, 1, 1, false}, // already the default: no notice
        {1, 1, 0, 1, false},
        {0, 0, 0, 0, false},
    };
    for (Row const& row : rows) {
        Prm::Parameter<unsigned int> clip = clipReference(row.uiDefault);
        clip.vSetValue(row.uiStored, 0.0f);
        ChangeRecorder recorder(clip);
        ClipBoundParameterSet::forgetClip(clip, row.uiForgotten);
        EXPECT_EQ(clip.staticValue(), row.uiExpected) << row.uiStored << " forgetting " << row.uiForgotten;
        Events const expected = row.bAnnounced ? Events{{Prm::ParameterChange::StaticValueChanged, 0}} : Events{};
        EXPECT_EQ(recorder.events, expected) << row.uiStored << " forgetting " << row.uiForgotten;
    }
}

TEST(ClipBoundParameterSet, AMovedParameterLivesWhileAnySetHoldsItAndIsFreedOnce)
{
    auto* source = new TQ_TrackingParameterSet;
    TQ_TrackingParameterSet const copy(*source);
    TQ_TrackingParameterSet target;
    Prm::MovedParameter const* const ownBefore = target.Render.get();
    target = *source; // the target's own moved parameter has no other holder and goes now
    EXPECT_NE(target.Render.get(), ownBefore);
    TQ_TrackingParameterSet& alias = target;
    target = alias;
    EXPECT_EQ(target.Render.use_count(), 3);

    delete source; // the moved parameter lives on in the two others, and still takes its old line
    EXPECT_EQ(copy.Render.use_count(), 2);
    EXPECT_EQ(target.basicParameterList(), QVector<Prm::BasicParameter*>{copy.Render.get()});
    EXPECT_TRUE(target.bStreamIn(QStringLiteral("Render.value=1")));
}

} // namespace
