#include "camera/Camera.h"
#include "camera/Clips.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

namespace {

/// A lens whose coefficients differ from each other and from 0: 0.125, -0.25, then 0.5, -0.75, 1.5, -2.
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

} // namespace

TEST(Camera, ToGanCameraFillsTheModelsSlots)
{
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
        {GAN_RADIAL_DISTORTION_2, false, GAN_LINEAR_CAMERA, {0, 0, 0, 0}}, // inactive: linear, no slot written
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
    maps.directMap = boost::make_shared<Gan_Image>();
    maps.inverseMap = boost::make_shared<Gan_Image>();
    Gan_Camera const mapped = TQ::Camera(maps).toGanCamera(QSize(100, 50), 10.0, 1.0, false, false);
    EXPECT_EQ(maps.directMap.get(), mapped.map.direct) << "copies share the images";
    EXPECT_EQ(maps.inverseMap.get(), mapped.map.inverse);
}

TEST(Camera, FieldsHalveFyAndShiftTheSecondFieldByHalfARow)
{
    struct Row {
        _TQ_INTERLACE_MODE mode;
        unsigned int uiFrame;
        bool bHalved;
        double dShift;
    };
    Row const rows[] = {{TQ_INTERLACE_NONE, 3, false, 0.0},    {TQ_INTERLACE_FIELDS_1, 3, true, 0.5},
                        {TQ_INTERLACE_FIELDS_1, 4, true, 0.0}, {TQ_INTERLACE_FIELDS_2, 3, true, 0.0},
                        {TQ_INTERLACE_FIELDS_2, 4, true, 0.5}, {TQ_INTERLACE_PULLDOWN_FIRST, 3, false, 0.0}};
    for (Row const& row : rows) {
        TQ_BaseClipInfo const info = clipOf(1920, 1080, row.mode, 24.0, 1.25);
        Gan_Camera const gan = lens(GAN_LINEAR_CAMERA, true).toGanCamera(row.uiFrame, info);
        double const fx = 35.0 * 1920.0 / 24.0;
        EXPECT_DOUBLE_EQ(fx * 1.25 * (row.bHalved ? 0.5 : 1.0), gan.fy) << row.mode << " " << row.uiFrame;
        EXPECT_DOUBLE_EQ(0.55f * 1080.0 + row.dShift, gan.y0) << row.mode << " " << row.uiFrame;
        EXPECT_DOUBLE_EQ(fx, gan.fx);
    }
}

TEST(Camera, UpdateInvertsToGanCameraForItsOwnModel)
{
    // What update takes back beyond the centre and focal length: the coefficients of its own model only.
    struct Row {
        Gan_CameraType type;
        bool bActive;
        float expected[6]; // radialK1, radialK2, cxx, cxy, cyx, cyy
    };
    Row const rows[] = {
        {GAN_LINEAR_CAMERA, true, {0, 0, 0, 0, 0, 0}},
        {GAN_RADIAL_DISTORTION_1, true, {0.125f, 0, 0, 0, 0, 0}},
        {GAN_RADIAL_DISTORTION_1_INV, true, {0.125f, 0, 0, 0, 0, 0}},
        {GAN_RADIAL_DISTORTION_2, true, {0.125f, -0.25f, 0, 0, 0, 0}},
        {GAN_XY_DISTORTION_4, true, {0, 0, 0.5f, -0.75f, 1.5f, -2.0f}},
        {GAN_RADIAL_DISTORTION_2, false, {0, 0, 0, 0, 0, 0}},
        {GAN_DISTORTION_MAP, true, {0, 0, 0, 0, 0, 0}},
    };
    auto const image = boost::make_shared<Gan_Image>();
    for (Row const& row : rows) {
        for (_TQ_INTERLACE_MODE mode : {TQ_INTERLACE_NONE, TQ_INTERLACE_FIELDS_1, TQ_INTERLACE_FIELDS_2}) {
            for (unsigned int frame : {10u, 11u}) {
                TQ_BaseClipInfo const info = clipOf(1920, 1080, mode, 24.0, 1.25);
                TQ::Camera const source = lens(row.type, true);
                Gan_Camera gan = source.toGanCamera(frame, info);
                TQ::Camera back;
                back.type = row.type;
                back.distortionActive = row.bActive;
                back.directMap = image;
                back.update(&gan, frame, &info);
                std::string const where =
                    std::to_string(row.type) + " " + std::to_string(mode) + " " + std::to_string(frame);
                EXPECT_FLOAT_EQ(source.imageCentreX, back.imageCentreX) << where;
                EXPECT_FLOAT_EQ(source.imageCentreY, back.imageCentreY) << where;
                EXPECT_FLOAT_EQ(source.focalDistance, back.focalDistance) << where;
                float const actual[6] = {back.radialK1, back.radialK2, back.cxx, back.cxy, back.cyx, back.cyy};
                for (int i = 0; i < 6; ++i)
                    EXPECT_EQ(row.expected[i], actual[i]) << where << " coefficient " << i;
                EXPECT_EQ(row.type, back.type);
                EXPECT_EQ(row.bActive, back.distortionActive);
                EXPECT_EQ(image, back.directMap);
                back.update(nullptr, frame, &info);
                back.update(&gan, frame, nullptr);
            }
        }
    }
}
