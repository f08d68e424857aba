#include "camera/Camera.h"
#include "camera/Fixtures.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <array>
#include <tuple>

namespace {

/// A lens whose coefficients differ from each other and from 0.
TQ::Camera lens(Gan_CameraType type, bool bActive)
{
    return {type, 35.0f, 0.45f, 0.55f, bActive, 0.125f, -0.25f, 0.5f, -0.75f, 1.5f, -2.0f, {}, {}};
}

} // namespace

TEST(Camera, ToGanCameraFillsTheModelsSlotsAndUpdateTakesThemBack)
{
    // Per model: the slots written, and what update takes back beyond the centre and focal
    // length (radialK1, radialK2, cxx, cxy, cyx, cyy): the coefficients of its own model only.
    using Row = std::tuple<Gan_CameraType, bool, std::array<double, 4>, std::array<float, 6>>;
    Row const rows[] = {
        {GAN_LINEAR_CAMERA, true, {0, 0, 0, 0}, {0, 0, 0, 0, 0, 0}},
        {GAN_RADIAL_DISTORTION_1, true, {0.125, 0, 0, 0}, {0.125f, 0, 0, 0, 0, 0}},
        {GAN_RADIAL_DISTORTION_1_INV, true, {0.125, 0, 0, 0}, {0.125f, 0, 0, 0, 0, 0}},
        {GAN_RADIAL_DISTORTION_2, true, {0.125, -0.25, 0, 0}, {0.125f, -0.25f, 0, 0, 0, 0}},
        {GAN_RADIAL_DISTORTION_3, true, {0, 0, 0, 0}, {0, 0, 0, 0, 0, 0}},
        {GAN_XY_DISTORTION_4, true, {0.5, -0.75, 1.5, -2.0}, {0, 0, 0.5f, -0.75f, 1.5f, -2.0f}},
        {GAN_RADIAL_DISTORTION_2, false, {0, 0, 0, 0}, {0, 0, 0, 0, 0, 0}}, // no slot written
        {GAN_DISTORTION_MAP, true, {}, {0, 0, 0, 0, 0, 0}}, // slots hold the images
    };
    auto const image = boost::make_shared<Gan_Image>();
    for (auto const& [type, bActive, d, expectedBack] : rows) {
        TQ::Camera source = lens(type, bActive);
        source.directMap = image;
        source.inverseMap = boost::make_shared<Gan_Image>();
        Gan_Camera const plain = source.toGanCamera(QSize(2000, 1000), 20.0, 2.0, false, false);
        EXPECT_EQ(bActive ? type : GAN_LINEAR_CAMERA, plain.type) << "an inactive lens is linear";
        if (type == GAN_DISTORTION_MAP)
            EXPECT_TRUE(plain.map.direct == image.get() && plain.map.inverse == source.inverseMap.get());
        else
            EXPECT_EQ(d, (std::array<double, 4>{plain.d[0], plain.d[1], plain.d[2], plain.d[3]})) << type;
        EXPECT_DOUBLE_EQ(0.45f * 2000.0, plain.x0);
        EXPECT_DOUBLE_EQ(35.0 * 2000.0 / 20.0, plain.fx);
        EXPECT_DOUBLE_EQ(2.0 * plain.fx, plain.fy);
        EXPECT_TRUE(plain.zh == 1000.0 && plain.point_project) << "internalised";

        // Through a clip: fields halve fy and move the second field down by half a row; update undoes it,
        // reading the slots only for an active lens.
        for (auto [mode, frame, bHalved, dShift] :
             {std::tuple{TQ_INTERLACE_NONE, 3u, false, 0.0}, {TQ_INTERLACE_FIELDS_1, 3u, true, 0.5},
              {TQ_INTERLACE_FIELDS_1, 4u, true, 0.0}, {TQ_INTERLACE_FIELDS_2, 3u, true, 0.0},
              {TQ_INTERLACE_FIELDS_2, 4u, true, 0.5}, {TQ_INTERLACE_PULLDOWN_FIRST, 3u, false, 0.0}}) {
            TQ_BaseClipInfo const info = clipOf(mode, 1.25);
            Gan_Camera gan = lens(type, true).toGanCamera(frame, info); // slots filled for every row
            double const fx = 35.0 * 2048.0 / 24.0;
            EXPECT_DOUBLE_EQ(fx, gan.fx);
            EXPECT_DOUBLE_EQ(fx * 1.25 * (bHalved ? 0.5 : 1.0), gan.fy) << type << " " << mode << " " << frame;
            EXPECT_DOUBLE_EQ(0.55f * 1152.0 + dShift, gan.y0) << type << " " << mode << " " << frame;
            TQ::Camera back;
            back.type = type;
            back.distortionActive = bActive;
            back.directMap = image;
            back.update(&gan, frame, &info);
            EXPECT_FLOAT_EQ(source.imageCentreX, back.imageCentreX);
            EXPECT_FLOAT_EQ(source.imageCentreY, back.imageCentreY);
            EXPECT_FLOAT_EQ(source.focalDistance, back.focalDistance);
            EXPECT_EQ(expectedBack, (std::array<float, 6>{back.radialK1, back.radialK2, back.cxx, back.cxy, back.cyx,
                                                      back.cyy}));
            EXPECT_TRUE(back.type == type && back.distortionActive == bActive && back.directMap == image);
            back.update(nullptr, frame, &info); // nothing to read: harmless
            back.update(&gan, frame, nullptr);
        }
    }
}
