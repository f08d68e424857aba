#include "ModuleSetTable.h"
#include "modules/InsertParameterSet.h"

#include <gtest/gtest.h>

TEST(InsertParameterSet, RegionOfInterestReadsTheClipOfTheSetItWasBuiltIn)
{
    Clips clips;
    TQ_InsertParameterSet source(&clips);
    TQ_InsertParameterSet const copy(source);
    TQ_InsertParameterSet target(nullptr);
    target = source;
    for (TQ::ROIParameter const* roi : {&copy.ROI.ROIX1, &copy.ROI.ROIY2}) {
        EXPECT_EQ(roi->clipIdParameter, &source.InsertClipID) << "a copy still reads the source's clip";
        EXPECT_EQ(roi->clipContainer, &clips);
    }
    EXPECT_EQ(target.ROI.ROIX1.clipIdParameter, &target.InsertClipID) << "assignment leaves the children";
    EXPECT_EQ(target.ROI.ROIX1.clipContainer, nullptr);
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
    TQ_InsertROIParameterSet roi(&insertClip, &clips);
    struct Row {
        unsigned int uiClip;
        float fX, fY; // shown for a stored 0.5
    };
    Row const rows[] = {
        {2, 1024.0f, 389.0f}, // progressive: width and height
        {3, 360.0f, 243.0f},  // interlaced: each field holds half the height
        {4, 360.0f, 243.0f},
        {0, 0.5f, 0.5f}, // no clip: unscaled
        {8, 0.5f, 0.5f}, // no such clip: unscaled
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.uiClip);
        insertClip.vSetValue(row.uiClip, 7.0f);
        EXPECT_EQ(roi.ROIX1.value2Display(0.5f, 7.0f), row.fX);
        EXPECT_EQ(roi.ROIY1.value2Display(0.5f, 7.0f), row.fY);
        EXPECT_EQ(roi.ROIX2.display2Value(row.fX, 7.0f), 0.5f);
        EXPECT_EQ(roi.ROIY2.display2ValueAsDouble(row.fY, 7.0f), 0.5);
    }
    insertClip.vSetValue(2u, 7.0f);
    auto* const copy = new TQ_InsertROIParameterSet(roi);
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
    TQ_InsertOffsetParameterSet::RotationParameter const copy(offset.OffsetRotationZ);
    double const pi = 3.141592653589793;
    struct Row {
        double dStored, dShown;
    };
    for (Row const& row : {Row{pi, -180.0}, Row{-pi / 2.0, 90.0}, Row{0.0, -0.0}, Row{2.0, 2.0 * -180.0 / pi}}) {
        EXPECT_EQ(copy.value2Display(row.dStored, 0.0f), row.dShown) << row.dStored;
        EXPECT_EQ(copy.display2Value(row.dShown, 0.0f), row.dShown * pi / -180.0) << row.dShown;
        EXPECT_NEAR(offset.OffsetRotationZ.display2ValueAsDouble(row.dShown, 0.0f), row.dStored, 1e-15);
    }
}
