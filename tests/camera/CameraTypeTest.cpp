#include "bsc/Licence.h"
#include "camera/CameraType.h"
#include "camera/CameraTypeParameter.h"

#include <gtest/gtest.h>

#include <QVariant>

#include <cstdlib>
#include <tuple>

using TQ::CameraType;

namespace {

/// The messages sent to Qt's critical stream since the last `vCaptureCriticals`.
QStringList criticals;

void vCaptureCriticals()
{
    criticals.clear();
    qInstallMessageHandler([](QtMsgType type, QMessageLogContext const&, QString const& text) {
        if (type == QtCriticalMsg)
            criticals << text;
    });
}

} // namespace

TEST(CameraType, InstancesAndOfferedTable)
{
    using Row = std::tuple<CameraType const&, int, char const*, int>; // instance, id, name, Gandalf model
    Row const rows[] = {{CameraType::LINEAR(), 0, "No distortion", 0},
                        {CameraType::ONE_PARAMETER(), 1, "1-Parameter", 1},
                        {CameraType::TWO_PARAMETER(), 2, "2-Parameter", 2},
                        {CameraType::ONE_PARAMETER_INV(), 3, "1-Parameter Inv", 4},
                        {CameraType::ANAMORPHIC(), 4, "Anamorphic", 9},
                        {CameraType::DISTORTION_MAP(), 5, "Distortion Map", 15}};
    QStringList names;
    for (auto const& [type, iId, name, iGan] : rows) {
        EXPECT_TRUE(type.id == iId && type.name == name && int(type.ganType) == iGan) << name;
        // Without a licence query every type is offered, and lookups by id and by model agree.
        EXPECT_TRUE(CameraType::fromId(iId).name == name && CameraType::fromGandalf(type.ganType).id == iId) << name;
        names << name;
    }
    EXPECT_EQ(names, CameraType::ALL_NAMES());
    EXPECT_EQ(QList<int>({0, 1, 2, 3, 4, 5}), CameraType::s_allTypes().keys());
    EXPECT_EQ(&CameraType::s_allTypes(), &CameraType::s_allTypes());

    // A parameter of the model streams its number and carries its variant type.
    Prm::Parameter<Gan_CameraType> type(false, "Type", GAN_LINEAR_CAMERA, Prm::InterpolationStep,
                                        Prm::ExtrapolationHold);
    EXPECT_TRUE(type.streamInValue("value=2", {}));
    EXPECT_TRUE(type.staticValue() == GAN_RADIAL_DISTORTION_2 && type.valueString(0.0f, nullptr) == "2");
    EXPECT_STREQ(type.exportValueAt(0.0f).typeName(), "Gan_CameraType");
}

TEST(CameraType, UnknownIdsAndModelsReadAsLinearWithAMessage)
{
    for (auto [bById, iValue, message] :
         {std::tuple{true, 6, "CameraType::fromId(): invalid id 6 "},
          {true, -1, "CameraType::fromId(): invalid id -1 "},
          {false, 3, "CameraType::fromGandalf(): no camera type found for Gandalftype 3 "},
          {false, 10, "CameraType::fromGandalf(): no camera type found for Gandalftype 10 "}}) {
        vCaptureCriticals();
        CameraType const& type =
            bById ? CameraType::fromId(iValue) : CameraType::fromGandalf(static_cast<Gan_CameraType>(iValue));
        EXPECT_EQ(&CameraType::LINEAR(), &type);
        EXPECT_EQ(QStringList{message}, criticals);
    }
    qInstallMessageHandler(nullptr);
}

// The table is filled once per process, so a refusing licence is tried in a process of its own.
TEST(CameraType, RefusedLicenceLeavesOutTheDistortionMap)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    auto const run = [] {
        QStringList asked;
        Bsc::Licence::vSetQuery([&asked](QString const& feature) {
            asked << feature;
            return false;
        });
        vCaptureCriticals();
        bool const bOk = CameraType::ALL_NAMES().size() == 5 && CameraType::fromId(5).id == 0
                         && CameraType::fromGandalf(GAN_DISTORTION_MAP).id == 0 && criticals.size() == 2
                         && asked == QStringList{"DistortionMap"} && CameraType::DISTORTION_MAP().id == 5;
        Bsc::Licence::vSetQuery(Bsc::Licence::Query());
        std::exit(bOk ? 0 : 1);
    };
    EXPECT_EXIT(run(), ::testing::ExitedWithCode(0), "");
}
