#include "modules/ColourParameterSet.h"
#include "modules/LuminanceEffectsParameterSet.h"
#include "prm/Fixtures.h"
#include "prm/text/ParameterTextDocument.h"

TEST(ColourParameterSet, BandsOfOneNameReadBackByOrderTwice)
{
    TQ_ColourParameterSet source, target;
    for (int i = 0; i < 4; ++i)
        withKeys(source.bands[i].Contrast, {{1.0f, 0.1f * i}, {2.0f, 0.2f * i}});
    source.bands[2].Brightness.hide(true);
    QString const text = Prm::ParameterTextDocument(source).qstrWrite();
    Prm::ParameterTextDocument document(target);
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(document.iRead(text), text.count('\n'));
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(state(target.bands[i].Contrast), state(source.bands[i].Contrast));
        EXPECT_TRUE(target.bands[2].Brightness.isHidden() && !target.bands[3].Brightness.isHidden());
    }
    // A band's block that leaves out fields still ends where the next band's first field comes again.
    TQ_ColourParameterSet partial;
    for (char const* line : {"ColourBand.Hue.value=1", "ColourBand.Brightness.value=0.5",
                             "ColourBand.Saturation.value=2", "InputClipID.value=4"})
        EXPECT_TRUE(partial.bStreamIn(line)) << line;
    EXPECT_FALSE(partial.bStreamIn("ColourBand.Nothing.value=2"));
    EXPECT_EQ(partial.bands[0].Hue.staticValue(), 1.0f);
    EXPECT_EQ(partial.bands[0].Brightness.staticValue(), 0.5f);
    EXPECT_EQ(partial.bands[1].Saturation.staticValue(), 2.0f);
    EXPECT_EQ(partial.InputClipID.staticValue(), 4u);
}

TEST(LuminanceEffectsParameterSet, SampleStoreStartsEmptyInCopiesAndStaysOnAssignment)
{
    TQ_LuminanceEffectsParameterSet source, target;
    source.samplePointParameters.append(new Prm::NumericParameter<float>(true, "Sample"));
    source.referenceSampleColours.append(QVector<Prm::NumericParameter<float>>(2));
    source.targetSampleColours.append(QVector<Prm::NumericParameter<float>>(1));
    TQ_LuminanceEffectsParameterSet const copy(source);
    EXPECT_TRUE(copy.samplePointParameters.isEmpty() && copy.referenceSampleColours.isEmpty()
                && copy.targetSampleColours.isEmpty());
    target.samplePointParameters.append(new Prm::Parameter<bool>());
    target = source;
    EXPECT_EQ(target.samplePointParameters.size(), 1);
    EXPECT_NE(target.samplePointParameters.at(0), source.samplePointParameters.at(0));
    EXPECT_TRUE(target.referenceSampleColours.isEmpty());
    EXPECT_EQ(target.parameterList().size(), 30) << "the store is never registered";
}
