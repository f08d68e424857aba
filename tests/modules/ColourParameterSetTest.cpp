#include "modules/ColourFilterParameterSet.h"
#include "modules/ColourParameterSet.h"
#include "modules/LuminanceEffectsParameterSet.h"
#include "prm/Fixtures.h"
#include "prm/text/ParameterTextDocument.h"

TEST(ColourParameterSet, BandsExtrapolateAlongTheSlopeWithinTheirLimits)
{
    TQ_ColourParams band;
    band.Saturation.vSetValue(1.0f, 0.0f);
    band.Saturation.vSetValue(2.0f, 10.0f);
    EXPECT_EQ(band.Saturation.value(20.0f, nullptr), 3.0f);
    EXPECT_EQ(band.Saturation.value(50.0f, nullptr), 5.0f) << "clamped to the maximum";
    EXPECT_EQ(band.Saturation.value(-20.0f, nullptr), 0.0f) << "and to the minimum";
    EXPECT_EQ(band.Hue.maximum(), 6.3f);
}

TEST(ColourParameterSet, CopyAndAssignmentCarryAllFourBands)
{
    TQ_ColourParameterSet source;
    for (int i = 0; i < 4; ++i)
        source.bands[i].Hue.vSetValue(0.5f * i, 1.0f);
    source.Render.vSetValue(false, 0.0f);
    TQ_ColourParameterSet const copy(source);
    TQ_ColourParameterSet target;
    target = source;
    for (TQ_ColourParameterSet const* set : {&copy, static_cast<TQ_ColourParameterSet const*>(&target)}) {
        EXPECT_FALSE(set->Render.staticValue());
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(set->bands[i].Hue.keyframeValue(0), 0.5f * i);
            EXPECT_EQ(set->childSetList().at(i), &set->bands[i]);
            EXPECT_EQ(set->bands[i].parameterList().at(0), &set->bands[i].Hue);
        }
    }
    target.InputClipID.vSetValue(3u, 0.0f);
    target.OutputClipID.vSetValue(3u, 0.0f);
    target.removeReferencesToClip(3);
    EXPECT_EQ(target.InputClipID.staticValue(), 1u);
    EXPECT_EQ(target.OutputClipID.staticValue(), 0u);
}

TEST(ColourParameterSet, BandsOfOneNameReadBackByOrderTwice)
{
    TQ_ColourParameterSet source;
    for (int i = 0; i < 4; ++i) {
        source.bands[i].Contrast.vSetValue(0.1f * i, 1.0f);
        source.bands[i].Contrast.vSetValue(0.2f * i, 2.0f);
    }
    source.bands[2].Brightness.hide(true);
    QString const text = Prm::ParameterTextDocument(source).qstrWrite();
    TQ_ColourParameterSet target;
    Prm::ParameterTextDocument document(target);
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(document.iRead(text), text.count('\n'));
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(keysOf(target.bands[i].Contrast),
                      (Keys<Prm::NumericParameter<float>>{{1.0f, 0.1f * i}, {2.0f, 0.2f * i}}));
        EXPECT_TRUE(target.bands[2].Brightness.isHidden());
        EXPECT_FALSE(target.bands[3].Brightness.isHidden());
    }
    // A band's block that leaves out fields still ends where the next band's first field comes again.
    TQ_ColourParameterSet partial;
    EXPECT_TRUE(partial.bStreamIn("ColourBand.Hue.value=1"));
    EXPECT_TRUE(partial.bStreamIn("ColourBand.Brightness.value=0.5"));
    EXPECT_TRUE(partial.bStreamIn("ColourBand.Saturation.value=2"));
    EXPECT_EQ(partial.bands[0].Hue.staticValue(), 1.0f);
    EXPECT_EQ(partial.bands[0].Brightness.staticValue(), 0.5f);
    EXPECT_EQ(partial.bands[1].Saturation.staticValue(), 2.0f);
    EXPECT_FALSE(partial.bStreamIn("ColourBand.Nothing.value=2"));
    EXPECT_TRUE(partial.bStreamIn("InputClipID.value=4"));
    EXPECT_EQ(partial.InputClipID.staticValue(), 4u);
}

TEST(LuminanceEffectsParameterSet, SampleStoreStartsEmptyInCopiesAndStaysOnAssignment)
{
    TQ_LuminanceEffectsParameterSet source;
    source.samplePointParameters.append(new Prm::NumericParameter<float>(true, "Sample"));
    source.referenceSampleColours.append(QVector<Prm::NumericParameter<float>>(2));
    source.targetSampleColours.append(QVector<Prm::NumericParameter<float>>(1));
    source.SelectedSample.vSetValue(2u, 0.0f);
    TQ_LuminanceEffectsParameterSet const copy(source);
    EXPECT_TRUE(copy.samplePointParameters.isEmpty());
    EXPECT_TRUE(copy.referenceSampleColours.isEmpty());
    EXPECT_TRUE(copy.targetSampleColours.isEmpty());
    EXPECT_EQ(copy.SelectedSample.staticValue(), 2u);

    TQ_LuminanceEffectsParameterSet target;
    target.samplePointParameters.append(new Prm::Parameter<bool>());
    target = source;
    EXPECT_EQ(target.samplePointParameters.size(), 1);
    EXPECT_NE(target.samplePointParameters.at(0), source.samplePointParameters.at(0));
    EXPECT_TRUE(target.referenceSampleColours.isEmpty());
    EXPECT_EQ(target.SelectedSample.staticValue(), 2u);
    EXPECT_EQ(target.parameterList().size(), 30) << "the store is never registered";
}

TEST(LuminanceEffectsParameterSet, ForgetsOnlyTheReferencesHoldingTheClip)
{
    TQ_LuminanceEffectsParameterSet luminance;
    Prm::Parameter<unsigned int>* const clips[] = {&luminance.LuminanceReferenceClipID, &luminance.LuminanceClipID,
                                                   &luminance.ShadowClipID, &luminance.HighlightClipID,
                                                   &luminance.FilterClipID};
    unsigned int const held[] = {3, 4, 3, 0, 3};
    for (int i = 0; i < 5; ++i)
        clips[i]->vSetValue(held[i], 0.0f);
    luminance.SelectedColour.vSetValue(3u, 0.0f);
    luminance.removeReferencesToClip(3);
    unsigned int const expected[] = {0, 4, 0, 0, 0};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(clips[i]->staticValue(), expected[i]) << clips[i]->qstrScriptName().toStdString();
    EXPECT_EQ(luminance.SelectedColour.staticValue(), 3u) << "not a clip reference";

    TQ_ColourFilterParameterSet filter;
    filter.FilledClipID.vSetValue(3u, 0.0f);
    filter.removeReferencesToClip(2);
    EXPECT_EQ(filter.FilledClipID.staticValue(), 3u);
    filter.removeReferencesToClip(3);
    EXPECT_EQ(filter.FilledClipID.staticValue(), 0u);
}
