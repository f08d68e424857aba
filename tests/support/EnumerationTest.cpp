#include "support/Enumerations.h"
#include "support/Strings.h"

#include <gtest/gtest.h>

#include <QString>
#include <QTextStream>
#include <QVariant>

namespace {

template <typename E>
QString written(E value)
{
    QString text;
    QTextStream out(&text);
    out << value;
    out.flush();
    return text;
}

template <typename E>
E read(QString text, E initial)
{
    QTextStream in(&text);
    E value = initial;
    in >> value;
    return value;
}

} // namespace

TEST(Enumerations, WriteDecimalAndReadAnyNumberAsItStands)
{
    EXPECT_EQ(written(TQ_CLIP_MODE_PING_PONG), QStringLiteral("3"));
    EXPECT_EQ(written(TQ_COLORSPACE_PANALOG), QStringLiteral("2"));
    EXPECT_EQ(written(TQ_TRUE), QStringLiteral("1"));
    EXPECT_EQ(written(GAN_DISTORTION_MAP), QStringLiteral("15"));
    EXPECT_EQ(written(GAN_FLOAT), QStringLiteral("8"));
    EXPECT_EQ(written(GAN_UNDEFINED_IMAGE_FORMAT), QStringLiteral("13"));
    // Written as a signed int even though it is read as unsigned.
    EXPECT_EQ(written(static_cast<TQ_BlendMode>(-5)), QStringLiteral("-5"));

    // Numbers that name no enumerator are kept.
    EXPECT_EQ(read(QStringLiteral("7"), TQ_CLIP_MODE_DONT_REPEAT), 7);
    EXPECT_EQ(read(QStringLiteral("99"), TQ_INTERLACE_NONE), 99);
    EXPECT_EQ(read(QStringLiteral("1234"), TRACK_MODEL_DEFAULT), 1234);
    EXPECT_EQ(read(QStringLiteral("11"), GAN_LINEAR_CAMERA), 11);
    EXPECT_EQ(read(QStringLiteral("4000000"), GAN_UNDEFINED_TYPE), 4000000);
    EXPECT_EQ(read(QStringLiteral("  2 rest"), TQ_COLORSPACE_GAMMA), TQ_COLORSPACE_PANALOG);
    // Above INT_MAX the unsigned number wraps into the int-sized value.
    EXPECT_EQ(read(QStringLiteral("4294967295"), TQ_FALSE), -1);
}

TEST(Enumerations, ReadingGoesThroughTheUnsignedReader)
{
    // No digits: the unsigned reader fails and gives 0, which replaces the old value.
    EXPECT_EQ(read(QStringLiteral("x"), TQ_CLIP_MODE_LOOP), 0);
    // Qt's unsigned reader takes a sign and wraps; the value comes back as the int it was written from.
    EXPECT_EQ(read(QStringLiteral("-1"), TQ_CLIP_MODE_LOOP), -1);
    EXPECT_EQ(read(written(static_cast<TQ_BlendMode>(-5)), TQ_BLEND_MODE_DEFAULT), -5);

    // The operators chain and leave the stream after the number.
    QString text = QStringLiteral("3 1 15");
    QTextStream in(&text);
    _TQ_CLIP_MODE eMode = TQ_CLIP_MODE_DONT_REPEAT;
    _TQ_BOOL eFlag = TQ_FALSE;
    Gan_CameraType eCamera = GAN_LINEAR_CAMERA;
    in >> eMode >> eFlag >> eCamera;
    EXPECT_EQ(eMode, TQ_CLIP_MODE_PING_PONG);
    EXPECT_EQ(eFlag, TQ_TRUE);
    EXPECT_EQ(eCamera, GAN_DISTORTION_MAP);
    EXPECT_EQ(in.status(), QTextStream::Ok);
}

namespace {

// Checks one type's registration on first use. Each type is touched here for the first time in the
// process, so nothing is registered under its name before the first id request.
template <typename E>
void expectRegisteredOnFirstUse(char const* name, E sample)
{
    SCOPED_TRACE(name);
    EXPECT_EQ(QMetaType::type(name), int(QMetaType::UnknownType));
    int const id = qMetaTypeId<E>();
    EXPECT_NE(id, int(QMetaType::UnknownType));
    EXPECT_EQ(qMetaTypeId<E>(), id);
    EXPECT_EQ(QMetaType::type(name), id);
    EXPECT_STREQ(QMetaType::typeName(id), name);
    EXPECT_EQ(QMetaType::sizeOf(id), 4);

    QVariant const carried = QVariant::fromValue(sample);
    EXPECT_EQ(carried.userType(), id);
    EXPECT_EQ(carried.value<E>(), sample);
}

} // namespace

TEST(Enumerations, MetatypesRegisterOnFirstUseUnderTheirNames)
{
    expectRegisteredOnFirstUse("Gan_CameraType", GAN_XY_DISTORTION_4);
    expectRegisteredOnFirstUse("TrackModel", static_cast<_TrackModel>(3));
    expectRegisteredOnFirstUse("TQ_LUMINANCE_MODEL", static_cast<TQ_LUMINANCE_MODEL>(1));
    expectRegisteredOnFirstUse("TQ_FILL_ALGORITHM", static_cast<TQ_FILL_ALGORITHM>(2));
    expectRegisteredOnFirstUse("TQ_ILLUMINATION_MODEL", static_cast<TQ_ILLUMINATION_MODEL>(4));
    expectRegisteredOnFirstUse("TQ_REMOVESOURCE_MODE", static_cast<TQ_REMOVESOURCE_MODE>(5));
    expectRegisteredOnFirstUse("TQ_MATTE_SUBTYPE", static_cast<TQ_MATTE_SUBTYPE>(6));
    expectRegisteredOnFirstUse("TQ_BlendMode", static_cast<TQ_BlendMode>(7));
    expectRegisteredOnFirstUse("DISTORTION_ALGORITHM", static_cast<_DISTORTION_ALGORITHM>(8));
    // The underscored spellings are never registered.
    EXPECT_EQ(QMetaType::type("_TrackModel"), int(QMetaType::UnknownType));
    EXPECT_EQ(QMetaType::type("_DISTORTION_ALGORITHM"), int(QMetaType::UnknownType));
}

TEST(Strings, ExportedTablesHoldTheirTexts)
{
    char const* const clipModes[] = {"Don't repeat", "Repeat", "Loop", "Ping-pong"};
    for (int i = 0; i < 4; ++i)
        EXPECT_STREQ(_TQ_CLIP_MODE_NAME[i], clipModes[i]);

    char const* const sampleOps[] = {"Select Background", "Clean Background", "Clean Foreground",
                                     "Fine Tuning",       "Matte Sponge",     "Spill Sponge",
                                     "Make FG Transparent", "Restore Detail", "Spill +",
                                     "Spill -",           "Matte +",          "Matte -",
                                     "Detail +",          "Detail -"};
    for (int i = 0; i < 14; ++i)
        EXPECT_STREQ(_TQ_PRIMATTE_SAMPLEOP_NAME[i], sampleOps[i]);

    EXPECT_STREQ(_TQ_KOLBEDATA_FORMAT_NAME[0], "Result clips");
    EXPECT_STREQ(_TQ_KOLBEDATA_FORMAT_NAME[1], "Shake script using pre-rendered clips");
    EXPECT_STREQ(_TQ_KOLBEDATA_FORMAT_NAME[2], "Shake script using lufex plugins");
    EXPECT_STREQ(_TQ_KOLBEDATA_FORMAT_EXTENSION[0], ".txt");
    EXPECT_STREQ(_TQ_KOLBEDATA_FORMAT_EXTENSION[1], ".shk");
    EXPECT_STREQ(_TQ_KOLBEDATA_FORMAT_EXTENSION[2], ".shk");

    char const* const timecodes[] = {"30 fps non-drop", "30 fps drop-frame", "25 fps", "24 fps"};
    for (int i = 0; i < 4; ++i)
        EXPECT_STREQ(_TQ_TIMECODEFORMAT_NAME[i], timecodes[i]);

    EXPECT_STREQ(_TQ_LayerDataFormatName, "Vantrel Layer Script (*.layer)");
    EXPECT_STREQ(_TQ_LayerDataFormatExtension, ".layer");
}

TEST(Strings, ModuleNames)
{
    using namespace TQ::Strings;
    EXPECT_STREQ(MODULESTRING_CLIP, "Clip");
    EXPECT_STREQ(MODULESTRING_CAMERA, "Camera");
    EXPECT_STREQ(MODULESTRING_LENS, "Lens");
    EXPECT_STREQ(MODULESTRING_TRACK2D, "Track");
    EXPECT_STREQ(MODULESTRING_ADJUSTTRACK, "AdjustTrack");
    EXPECT_STREQ(MODULESTRING_REMOVE, "Remove");
    EXPECT_STREQ(MODULESTRING_STABILIZE, "Stabilize");
    EXPECT_STREQ(MODULESTRING_INSERT, "Insert");
    EXPECT_STREQ(MODULESTRING_WARPER, "Warp");
    EXPECT_STREQ(MODULESTRING_CAMERASOLVE, "Camera Solve");
    EXPECT_STREQ(MATTE_CLIP_PREFIX_FORMAT, "Matte for %1");
    EXPECT_EQ(QString::fromLatin1(MATTE_CLIP_PREFIX_FORMAT).arg(QStringLiteral("Plate")),
              QStringLiteral("Matte for Plate"));
}
