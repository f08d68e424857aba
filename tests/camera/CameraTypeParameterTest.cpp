#include "camera/CameraTypeParameter.h"

#include <gtest/gtest.h>

#include <QVariant>

TEST(CameraTypeParameter, ReadsWritesAndCarriesItsVariantType)
{
    Prm::Parameter<Gan_CameraType> type(false, "Type", GAN_LINEAR_CAMERA, Prm::InterpolationStep,
                                        Prm::ExtrapolationHold);
    EXPECT_TRUE(type.streamInValue("value=2", {}));
    EXPECT_EQ(type.staticValue(), GAN_RADIAL_DISTORTION_2);
    EXPECT_EQ(type.valueString(0.0f, nullptr), "2");
    EXPECT_STREQ(type.exportValueAt(0.0f).typeName(), "Gan_CameraType");
}
