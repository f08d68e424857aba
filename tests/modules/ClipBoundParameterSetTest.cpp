#include "modules/ClipBoundParameterSet.h"
#include "modules/CopyDepartures.h"
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

/// The smallest set of the common shape: one clip reference, one moved parameter, one that assignment
/// skips and one that is never copied.
struct ProbeMembers {
    Prm::Parameter<unsigned int> InputClipID{false, "InputClipID", 1u, Prm::InterpolationStep,
                                             Prm::ExtrapolationHold};
    ClipBoundParameterSet::MovedParameterHandle Render = ClipBoundParameterSet::newMovedParameter("Render");
    TQ::KeptOnAssignment<Prm::Parameter<bool>> Kept{false, "Kept", false, Prm::InterpolationStep,
                                                    Prm::ExtrapolationHold};
    TQ::NotCopied<Prm::Parameter<bool>> Fresh;
};

class ProbeSet : public ClipBoundParameterSet, public ProbeMembers
{
public:
    ProbeSet() : ClipBoundParameterSet(QStringLiteral("Probe")) { init(); }
    ProbeSet(ProbeSet const& other) : ClipBoundParameterSet(QStringLiteral("Probe")), ProbeMembers(other) { init(); }
    ProbeSet& operator=(ProbeSet const& other)
    {
        bAssignSet<ProbeMembers>(other, {&Render});
        return *this;
    }

private:
    void init()
    {
        vAddParameters({&InputClipID, &Kept});
        vListMovedParameters({&Render});
    }
};

TEST(ClipBoundParameterSet, MovedParametersAreSharedByCopiesAndFreedOnceThroughAssignments)
{
    auto* source = new ProbeSet;
    source->setScriptName(QStringLiteral("Renamed"));
    source->Kept.vSetValue(true, 0.0f);
    source->Fresh.vSetValue(true, 0.0f);
    ProbeSet copy(*source);
    EXPECT_EQ(copy.qstrScriptName(), QStringLiteral("Probe"));
    EXPECT_EQ(copy.Render, source->Render);
    EXPECT_TRUE(copy.Kept.staticValue());
    EXPECT_FALSE(copy.Fresh.staticValue());
    EXPECT_EQ(copy.parameterList(), (QVector<Prm::ParameterWithoutType*>{&copy.InputClipID, &copy.Kept}));

    ProbeSet target;
    Prm::MovedParameter const* const ownBefore = target.Render.get();
    target = *source; // the target's own moved parameter has no other holder and goes now
    EXPECT_NE(target.Render.get(), ownBefore);
    EXPECT_EQ(target.basicParameterList(), QVector<Prm::BasicParameter*>{source->Render.get()});
    EXPECT_EQ(target.qstrScriptName(), QStringLiteral("Renamed"));
    EXPECT_FALSE(target.Kept.staticValue());
    EXPECT_FALSE(target.Fresh.staticValue());
    ProbeSet& alias = target;
    target = alias;
    EXPECT_EQ(target.Render.use_count(), 3);

    delete source; // the moved parameter lives on in the two others, and still takes its old line
    EXPECT_EQ(copy.Render.use_count(), 2);
    EXPECT_TRUE(copy.bStreamIn(QStringLiteral("Render.value=1")));
    EXPECT_TRUE(target.bStreamIn(QStringLiteral("Render.value=1")));
}

TEST(ClipBoundParameterSet, BaseOperationsDoNothing)
{
    ProbeSet set;
    set.InputClipID.vSetValue(5, 0.0f);
    ChangeRecorder recorder(set.InputClipID);
    set.removeReferencesToClip(5);
    set.rescale(2.0f, 2.0f);
    EXPECT_EQ(set.InputClipID.staticValue(), 5u);
    EXPECT_TRUE(recorder.events.empty());
}

} // namespace
