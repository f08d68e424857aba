#include "clip/BaseClipInfo.h"
#include "clip/BaseClipInfoContainer.h"
#include "modules/InsertParameterSet.h"
#include "prm/Fixtures.h"

#include <QMap>

namespace {

class Clips : public TQ_BaseClipInfoContainer
{
public:
    TQ_BaseClipInfo* baseClipInfo(unsigned int clipId) override
    {
        return clips.contains(clipId) ? &clips[clipId] : nullptr;
    }
    QMap<unsigned int, TQ_BaseClipInfo> clips;
};

// Every clip reference of an insert set and its children, the order `removeReferencesToClip` visits them.
QVector<Prm::Parameter<unsigned int>*> references(TQ_InsertParameterSet& set)
{
    return {&set.InputClipID, &set.InsertClipID, &set.MatteClipID, &set.SurfaceMatteClipID, &set.AlphaInputClipID,
            &set.AlphaInsertClipID, &set.OutputClipID, &set.Composite.LayerClipID, &set.Blur.SmoothedInsertClipID,
            &set.Luminance.LuminanceReferenceClipID, &set.Luminance.LuminanceClipID, &set.Luminance.ShadowClipID,
            &set.Luminance.HighlightClipID, &set.Luminance.FilterClipID, &set.ColourFilter.FilledClipID};
}

} // namespace

TEST(InsertParameterSet, RemovingAClipResetsFifteenReferencesInOrder)
{
    TQ_InsertParameterSet set(nullptr);
    QVector<Prm::Parameter<unsigned int>*> const clips = references(set);
    ASSERT_EQ(clips.size(), 15);
    std::vector<Prm::ParameterWithoutType*> announced;
    for (Prm::Parameter<unsigned int>* clip : clips) {
        clip->vSetValue(clip == clips.at(3) ? 4u : 9u, 0.0f);
        QObject::connect(clip, &Prm::ParameterWithoutType::changed,
                         [&announced](Prm::ParameterChange& change) { announced.push_back(change.parameter()); });
    }
    set.ROI.removeReferencesToClip(9); // names no clip of its own
    set.Offset.removeReferencesToClip(9);
    set.Edge.removeReferencesToClip(9);
    EXPECT_TRUE(announced.empty());

    set.removeReferencesToClip(9);
    std::vector<Prm::ParameterWithoutType*> expected(clips.begin(), clips.end());
    expected.erase(expected.begin() + 3);
    EXPECT_EQ(announced, expected);
    EXPECT_EQ(set.InputClipID.staticValue(), 1u) << "back to its default, not to 0";
    EXPECT_EQ(set.SurfaceMatteClipID.staticValue(), 4u);
    EXPECT_EQ(set.ColourFilter.FilledClipID.staticValue(), 0u);
}

TEST(InsertParameterSet, RescaleScalesOnlyTheKeysOfFocusBlur)
{
    TQ_InsertParameterSet set(nullptr);
    set.Blur.FocusBlur.vSetValue(3.0f, 1.0f);
    set.Blur.FocusBlur.vSetValue(60.0f, 4.0f);
    set.Blur.MotionBlur.vSetValue(2.0f, 1.0f);
    set.Composite.IntensityAll.vSetValue(2.0f, 1.0f);
    TQ_InsertBlurParameterSet blurAlone;
    set.rescale(2.0f, 5.0f);
    blurAlone.rescale(2.0f, 5.0f);
    EXPECT_EQ(keysOf(set.Blur.FocusBlur), (Keys<Prm::NumericParameter<float>>{{1.0f, 6.0f}, {4.0f, 100.0f}}))
        << "scaled by the first factor and clamped to the maximum";
    EXPECT_EQ(set.Blur.MotionBlur.keyframeValue(0), 2.0f);
    EXPECT_EQ(set.Composite.IntensityAll.keyframeValue(0), 2.0f);
    EXPECT_EQ(blurAlone.FocusBlur.staticValue(), 0.5f) << "no keys: the static value stays";
}

TEST(InsertParameterSet, CopyTakesTheChildrenAssignmentLeavesThem)
{
    Clips clips;
    Clips otherClips;
    TQ_InsertParameterSet source(&clips);
    source.URL.vSetValue(QString("file.exr"), 2.0f);
    source.InsertClipID.vSetValue(5u, 0.0f);
    source.ROI.ROIX2.vSetValue(0.75f, 2.0f);
    source.Blur.FocusBlur.vSetValue(7.0f, 2.0f);
    source.Luminance.samplePointParameters.append(new Prm::Parameter<bool>());

    TQ_InsertParameterSet const copy(source);
    EXPECT_EQ(copy.URL.keyframeValue(0), "file.exr");
    EXPECT_EQ(copy.ROI.ROIX2.keyframeValue(0), 0.75f);
    EXPECT_EQ(copy.Blur.FocusBlur.keyframeValue(0), 7.0f);
    EXPECT_EQ(copy.clipContainer, &clips);
    EXPECT_EQ(copy.Render, source.Render);
    EXPECT_TRUE(copy.Luminance.samplePointParameters.isEmpty());
    EXPECT_EQ(copy.ROI.ROIX1.clipIdParameter, &source.InsertClipID) << "still reads the source's clip";
    EXPECT_EQ(copy.ROI.ROIY2.clipContainer, &clips);

    TQ_InsertParameterSet target(&otherClips);
    Prm::Parameter<unsigned int>* const ownClip = &target.InsertClipID;
    target.Blur.FocusBlur.vSetValue(9.0f, 3.0f);
    target = source;
    EXPECT_EQ(target.URL.keyframeValue(0), "file.exr");
    EXPECT_EQ(target.InsertClipID.staticValue(), 5u);
    EXPECT_EQ(target.basicParameterList().at(0), source.Render.get());
    EXPECT_EQ(keysOf(target.Blur.FocusBlur), (Keys<Prm::NumericParameter<float>>{{3.0f, 9.0f}})) << "children stay";
    EXPECT_EQ(target.ROI.ROIX2.keyframeCount(), 0u);
    EXPECT_EQ(target.ROI.ROIX1.clipIdParameter, ownClip);
    EXPECT_EQ(target.clipContainer, &otherClips);
    EXPECT_EQ(target.childSetList().size(), 7);
}

TEST(InsertROIParameterSet, ShowsFractionsInPixelsOfTheNamedClip)
{
    Clips clips;
    clips.clips[2].FrameWidth = 2048;
    clips.clips[2].FrameHeight = 778;
    clips.clips[3].FrameWidth = 720;
    clips.clips[3].FrameHeight = 243;
    clips.clips[3].eInterlaceMode = TQ_INTERLACE_FIELDS_2;
    clips.clips[4] = clips.clips[3];
    clips.clips[4].eInterlaceMode = TQ_INTERLACE_FIELDS_1;
    Prm::Parameter<unsigned int> insertClip(true, "InsertClipID", 0u, Prm::InterpolationStep, Prm::ExtrapolationHold);
    insertClip.vSetValue(2u, 10.0f);
    insertClip.vSetValue(3u, 20.0f);
    insertClip.vSetValue(4u, 30.0f);
    TQ_InsertROIParameterSet roi(&insertClip, &clips);

    struct Row {
        float fTime, fValue, fX, fY;
    };
    Row const rows[] = {
        {10.0f, 0.5f, 1024.0f, 389.0f}, // progressive: width and height
        {20.0f, 0.5f, 360.0f, 243.0f},  // interlaced: the height counts twice
        {30.0f, 0.5f, 360.0f, 243.0f},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.fTime);
        EXPECT_EQ(roi.ROIX1.value2Display(row.fValue, row.fTime), row.fX);
        EXPECT_EQ(roi.ROIY1.value2Display(row.fValue, row.fTime), row.fY);
        EXPECT_EQ(roi.ROIX2.display2Value(row.fX, row.fTime), row.fValue);
        EXPECT_EQ(roi.ROIY2.display2Value(row.fY, row.fTime), row.fValue);
        EXPECT_EQ(roi.ROIY2.value2DisplayAsDouble(row.fValue, row.fTime), double(row.fY));
    }
    insertClip.vDeleteAllKeyframes();
    EXPECT_EQ(roi.ROIX1.value2Display(0.25f, 0.0f), 0.25f) << "clip 0: unscaled";
    EXPECT_EQ(roi.ROIY1.display2Value(0.25f, 0.0f), 0.25f);
    insertClip.vSetValue(8u, 0.0f);
    EXPECT_EQ(roi.ROIX1.value2Display(0.25f, 0.0f), 0.25f) << "no such clip: unscaled";

    TQ_InsertROIParameterSet assigned(nullptr, nullptr);
    assigned = roi;
    EXPECT_EQ(assigned.ROIY1.clipIdParameter, &insertClip);
    EXPECT_EQ(assigned.ROIY1.clipContainer, &clips);
    EXPECT_FALSE(assigned.ROIY1.bHorizontal);
    TQ_InsertROIParameterSet* const copy = new TQ_InsertROIParameterSet(roi);
    {
        Prm::Parameter<unsigned int> shortLived(false, "InsertClipID", 2u, Prm::InterpolationStep,
                                                Prm::ExtrapolationHold);
        copy->ROIX1.vSetClipIdParameter(&shortLived);
        EXPECT_EQ(copy->ROIX1.value2Display(0.5f, 0.0f), 1024.0f);
    }
    EXPECT_EQ(copy->ROIX1.value2Display(0.5f, 0.0f), 0.5f) << "a clip parameter gone reads as no clip";
    delete copy;
}

TEST(InsertOffsetParameterSet, RotationShowsDegreesTurnedOver)
{
    TQ_InsertOffsetParameterSet offset;
    TQ_InsertOffsetParameterSet::RotationParameter const& rotation = offset.OffsetRotationZ;
    double const pi = 3.141592653589793;
    struct Row {
        double dStored, dShown;
    };
    for (Row const& row : {Row{pi, -180.0}, Row{-pi / 2.0, 90.0}, Row{0.0, -0.0}, Row{2.0, 2.0 * -180.0 / pi}}) {
        EXPECT_EQ(rotation.value2Display(row.dStored, 0.0f), row.dShown) << row.dStored;
        EXPECT_EQ(rotation.display2Value(row.dShown, 0.0f), row.dShown * pi / -180.0) << row.dShown;
        EXPECT_NEAR(rotation.display2ValueAsDouble(row.dShown, 0.0f), row.dStored, 1e-15);
    }
    TQ_InsertOffsetParameterSet::RotationParameter const copy(rotation);
    EXPECT_EQ(copy.value2Display(pi, 0.0f), -180.0);
    EXPECT_EQ(copy.qstrDisplayName(), "Rotation Z");
}
