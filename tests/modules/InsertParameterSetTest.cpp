#include "clip/Fixtures.h"
#include "modules/InsertParameterSet.h"

TEST(InsertROIParameterSet, ShowsFractionsInPixelsOfTheClipTheInsertSetNames)
{
    TQTest::Clips clips;
    TQ_InsertParameterSet insert(&clips);
    TQ_InsertROIParameterSet& roi = insert.ROI;
    struct { unsigned int uiClip, uiWidth, uiHeight; _TQ_INTERLACE_MODE eInterlace; float fX, fY; } const rows[] = {
        {2, 2048, 778, TQ_INTERLACE_NONE, 1024.0f, 389.0f}, // fX and fY: what a stored 0.5 shows
        {3, 720, 243, TQ_INTERLACE_FIELDS_1, 360.0f, 243.0f}, // each field holds half the height
        {4, 720, 243, TQ_INTERLACE_FIELDS_2, 360.0f, 243.0f},
        {0, 720, 243, TQ_INTERLACE_NONE, 0.5f, 0.5f}}; // id 0 is no clip, even where the container has one
    for (auto const& row : rows) {
        clips.clips[row.uiClip].FrameWidth = row.uiWidth;
        clips.clips[row.uiClip].FrameHeight = row.uiHeight;
        clips.clips[row.uiClip].eInterlaceMode = row.eInterlace;
        insert.InsertClipID.vSetValue(row.uiClip, 0.0f);
        EXPECT_EQ(roi.ROIX1.value2Display(0.5f, 7.0f), row.fX) << row.uiClip;
        EXPECT_EQ(roi.ROIY1.value2Display(0.5f, 7.0f), row.fY) << row.uiClip;
        EXPECT_EQ(roi.ROIX2.display2Value(row.fX, 7.0f), 0.5f) << row.uiClip;
        EXPECT_EQ(roi.ROIY2.display2ValueAsDouble(row.fY, 7.0f), 0.5) << row.uiClip;
    }
    insert.InsertClipID.vSetValue(8u, 0.0f);
    EXPECT_EQ(roi.ROIX1.value2Display(0.5f, 0.0f), 0.5f) << "no such clip: unscaled";

    insert.InsertClipID.vSetValue(2u, 0.0f);
    auto* const copy = new TQ_InsertParameterSet(insert);
    TQ_InsertParameterSet target(nullptr);
    target = insert;
    EXPECT_EQ(copy->ROI.ROIY2.clipIdParameter, &insert.InsertClipID) << "a copy still reads the source's clip";
    EXPECT_EQ(copy->ROI.ROIY2.clipContainer, &clips);
    EXPECT_EQ(target.ROI.ROIX1.clipIdParameter, &target.InsertClipID) << "assignment leaves the children";
    {
        Prm::Parameter<unsigned int> shortLived(false, "InsertClipID", 2u, Prm::InterpolationStep,
                                                Prm::ExtrapolationHold);
        copy->ROI.ROIX1.vSetClipIdParameter(&shortLived);
        EXPECT_EQ(copy->ROI.ROIX1.value2Display(0.5f, 0.0f), 1024.0f);
    }
    EXPECT_EQ(copy->ROI.ROIX1.value2Display(0.5f, 0.0f), 0.5f) << "a clip parameter gone reads as no clip";
    delete copy;
}

TEST(InsertOffsetParameterSet, RotationShowsDegreesTurnedOver)
{
    TQ_InsertOffsetParameterSet offset;
    TQ_InsertOffsetParameterSet::RotationParameter const copy(offset.OffsetRotationZ);
    double const pi = 3.141592653589793;
    for (auto const& [dStored, dShown] : {std::pair{pi, -180.0}, {-pi / 2.0, 90.0}, {0.0, -0.0}, {2.0, -360.0 / pi}}) {
        EXPECT_EQ(copy.value2Display(dStored, 0.0f), dShown) << dStored;
        EXPECT_EQ(copy.display2Value(dShown, 0.0f), dShown * pi / -180.0) << dShown;
        EXPECT_NEAR(offset.OffsetRotationZ.display2ValueAsDouble(dShown, 0.0f), dStored, 1e-15);
    }
}
