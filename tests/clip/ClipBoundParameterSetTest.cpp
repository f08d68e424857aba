#include "clip/ClipBoundParameterSet.h"
#include "prm/Fixtures.h"

#include <gtest/gtest.h>

TEST(ClipBoundParameterSet, ForgetClipResetsToTheDefaultAndAnnouncesOnlyARealChange)
{
    // The named clip goes back to its default ("no clip" or the main input, never 0 blindly); another clip is
    // untouched; 0 is a wildcard; a reference already at its default raises no notice.
    struct Row { unsigned int uiDefault, uiStored, uiForgotten, uiExpected; bool bAnnounced; };
    Row const rows[] = {{0, 7, 7, 0, true},   {1, 7, 7, 1, true},   {0, 7, 3, 7, false}, {0, 7, 0, 0, true},
                        {1, 1, 1, 1, false}, {1, 1, 0, 1, false}, {0, 0, 0, 0, false}};
    for (Row const& row : rows) {
        Prm::Parameter<unsigned int> clip(false, "AnyClipID", row.uiDefault, Prm::InterpolationStep,
                                          Prm::ExtrapolationHold);
        clip.vSetValue(row.uiStored, 0.0f);
        ChangeRecorder recorder(clip);
        TQ::ClipBoundParameterSet::forgetClip(clip, row.uiForgotten);
        EXPECT_EQ(clip.staticValue(), row.uiExpected) << &row - rows;
        Events const expected = row.bAnnounced ? Events{{Prm::ParameterChange::StaticValueChanged, 0}} : Events{};
        EXPECT_EQ(recorder.events, expected) << &row - rows;
    }
}
