#include "camera/Camera.h"
#include "camera/Clips.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

namespace {

TQ::Camera lens(Gan_CameraType type, bool bActive)
{
    TQ::Camera camera;
    camera.type = type;
    camera.focalDistance = 35.0f;
    camera.imageCentreX = 0.45f;
    camera.imageCentreY = 0.55f;
    camera.distortionActive = bActive;
    camera.radialK1 = 0.125f;
    camera.radialK2 = -0.25f;
    camera.cxx = 0.5f;
    camera.cxy = -0.75f;
    camera.cyx = 1.5f;
    camera.cyy = -2.0f;
    return camera;
}

TQ_BaseClipInfo clip(_TQ_INTERLACE_MODE mode)
{
    return clipOf(1920, 1080, mode, 24.0, 1.25);
}

} // namespace

TEST(Camera, ToGanCameraFillsTheModelsSlots)
{
    Gan_Image direct = {}, inverse = {};
    struct Row {
        Gan_CameraType type;
        bool bActive;
        Gan_CameraType expectedType;
        double d[4];
    };
    Row const rows[] = {
        {GAN_RADIAL_DISTORTION_1, true, GAN_RADIAL_DISTORTION_1, {0.125, 0, 0, 0}},
        {GAN_RADIAL_DISTORTION_1_INV, true, GAN_RADIAL_DISTORTION_1_INV, {0.125, 0, 0, 0}},
        {GAN_RADIAL_DISTORTION_2, true, GAN_RADIAL_DISTORTION_2, {0.125, -0.25, 0, 0}},
        {GAN_XY_DISTORTION_4, true, GAN_XY_DISTORTION_4, {0.5, -0.75, 1.5, -2.0}},
        {GAN_RADIAL_DISTORTION_3, true, GAN_RADIAL_DISTORTION_3, {0, 0, 0, 0}},
        // Inactive: linear, and no slot written whatever the model.
        {GAN_RADIAL_DISTORTION_2, false, GAN_LINEAR_CAMERA, {0, 0, 0, 0}},
        {GAN_XY_DISTORTION_4, false, GAN_LINEAR_CAMERA, {0, 0, 0, 0}},
    };
    for (Row const& row : rows) {
        Gan_Camera const camera = lens(row.type, row.bActive).toGanCamera(QSize(2000, 1000), 20.0, 2.0, false, false);
        EXPECT_EQ(row.expectedType, camera.type) << row.type;
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(row.d[i], camera.d[i]) << "type " << row.type << " slot " << i + 1;
        EXPECT_DOUBLE_EQ(0.45f * 2000.0, camera.x0);
        EXPECT_DOUBLE_EQ(0.55f * 1000.0, camera.y0);
        EXPECT_DOUBLE_EQ(35.0 * 2000.0 / 20.0, camera.fx);
        EXPECT_DOUBLE_EQ(2.0 * camera.fx, camera.fy);
        EXPECT_EQ(1000.0, camera.zh);
        EXPECT_NE(nullptr, camera.point_project) << "internalised";
    }

    TQ::Camera maps = lens(GAN_DISTORTION_MAP, true);
    maps.directMap = boost::shared_ptr<Gan_Image>(&direct, [](Gan_Image*) {});
    maps.inverseMap = boost::shared_ptr<Gan_Image>(&inverse, [](Gan_Image*) {});
    Gan_Camera const mapped = maps.toGanCamera(QSize(100, 50), 10.0, 1.0, false, false);
    EXPECT_EQ(GAN_DISTORTION_MAP, mapped.type);
    EXPECT_EQ(&direct, mapped.map.direct);
    EXPECT_EQ(&inverse, mapped.map.inverse);
    TQ::Camera const shared(maps);
    EXPECT_EQ(2, maps.directMap.use_count()) << "copies share the images";
}

TEST(Camera, FieldsHalveFyAndShiftTheSecondFieldByHalfARow)
{
    struct Row {
        _TQ_INTERLACE_MODE mode;
        unsigned int uiFrame;
        bool bHalved;
        double dShift;
    };
    Row const rows[] = {{TQ_INTERLACE_NONE, 3, false, 0.0},      {TQ_INTERLACE_FIELDS_1, 3, true, 0.5},
                        {TQ_INTERLACE_FIELDS_1, 4, true, 0.0},   {TQ_INTERLACE_FIELDS_2, 3, true, 0.0},
                        {TQ_INTERLACE_FIELDS_2, 4, true, 0.5},   {TQ_INTERLACE_PULLDOWN_FIRST, 3, false, 0.0},
                        {TQ_INTERLACE_LAST, 4, false, 0.0}};
    TQ::Camera const camera = lens(GAN_LINEAR_CAMERA, true);
    for (Row const& row : rows) {
        Gan_Camera const gan = camera.toGanCamera(row.uiFrame, clip(row.mode));
        double const fx = 35.0 * 1920.0 / 24.0;
        EXPECT_DOUBLE_EQ(row.bHalved ? fx * 1.25 * 0.5 : fx * 1.25, gan.fy) << row.mode << " " << row.uiFrame;
        EXPECT_DOUBLE_EQ(0.55f * 1080.0 + row.dShift, gan.y0) << row.mode << " " << row.uiFrame;
        EXPECT_DOUBLE_EQ(fx, gan.fx);
        EXPECT_EQ(960.0, gan.zh);
    }
}

TEST(Camera, UpdateInvertsToGanCamera)
{
    for (Gan_CameraType type : {GAN_LINEAR_CAMERA, GAN_RADIAL_DISTORTION_1, GAN_RADIAL_DISTORTION_2,
                                GAN_RADIAL_DISTORTION_1_INV, GAN_XY_DISTORTION_4}) {
        for (_TQ_INTERLACE_MODE mode : {TQ_INTERLACE_NONE, TQ_INTERLACE_FIELDS_1, TQ_INTERLACE_FIELDS_2}) {
            for (unsigned int frame : {10u, 11u}) {
                TQ_BaseClipInfo const info = clip(mode);
                TQ::Camera const source = lens(type, true);
                Gan_Camera gan = source.toGanCamera(frame, info);
                TQ::Camera back;
                back.type = type;
                back.distortionActive = true;
                back.update(&gan, frame, &info);
                char const* what = "type, mode, frame";
                EXPECT_FLOAT_EQ(source.imageCentreX, back.imageCentreX) << what << type << mode << frame;
                EXPECT_FLOAT_EQ(source.imageCentreY, back.imageCentreY) << what << type << mode << frame;
                EXPECT_FLOAT_EQ(source.focalDistance, back.focalDistance) << what << type << mode << frame;
                // Each model brings back exactly the coefficients it carries.
                bool const bRadial = type == GAN_RADIAL_DISTORTION_1 || type == GAN_RADIAL_DISTORTION_1_INV
                                     || type == GAN_RADIAL_DISTORTION_2;
                EXPECT_EQ(bRadial ? source.radialK1 : 0.0f, back.radialK1);
                EXPECT_EQ(type == GAN_RADIAL_DISTORTION_2 ? source.radialK2 : 0.0f, back.radialK2);
                bool const bAnamorphic = type == GAN_XY_DISTORTION_4;
                EXPECT_EQ(bAnamorphic ? source.cxx : 0.0f, back.cxx);
                EXPECT_EQ(bAnamorphic ? source.cyy : 0.0f, back.cyy);
            }
        }
    }
}

TEST(Camera, UpdateKeepsModelSwitchAndImagesAndSurvivesNulls)
{
    TQ_BaseClipInfo const info = clip(TQ_INTERLACE_FIELDS_1);
    Gan_Camera gan = lens(GAN_XY_DISTORTION_4, true).toGanCamera(4, info);
    TQ::Camera inactive = lens(GAN_RADIAL_DISTORTION_1, false);
    inactive.update(&gan, 4, &info);
    EXPECT_EQ(0.125f, inactive.radialK1) << "an inactive lens keeps its coefficients";
    EXPECT_EQ(GAN_RADIAL_DISTORTION_1, inactive.type);
    EXPECT_FALSE(inactive.distortionActive);
    EXPECT_FLOAT_EQ(0.55f, inactive.imageCentreY) << "first field: no shift to undo";

    TQ::Camera maps = lens(GAN_DISTORTION_MAP, true);
    auto const image = boost::make_shared<Gan_Image>();
    maps.directMap = image;
    maps.update(&gan, 4, &info);
    EXPECT_EQ(image, maps.directMap);
    EXPECT_EQ(0.125f, maps.radialK1) << "types past 9 take no coefficient";

    TQ::Camera const before = maps;
    maps.update(nullptr, 4, &info);
    maps.update(&gan, 4, nullptr);
    EXPECT_EQ(before.focalDistance, maps.focalDistance);
}
