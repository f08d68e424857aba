#include "support/Enumerations.h"
#include "support/Strings.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <QTextStream>
#include <QVariant>

#include <iterator>

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
int read(QString text, E initial)
{
    QTextStream in(&text);
    E value = initial;
    in >> value;
    return value;
}

} // namespace

TEST(Enumerations, WriteDecimalAndReadThroughTheUnsignedReader)
{
    // Written as a signed int even though it is read as unsigned.
    QString const pairs[][2] = {
        {written(TQ_CLIP_MODE_PING_PONG), "3"}, {written(TQ_COLORSPACE_PANALOG), "2"}, {written(TQ_TRUE), "1"},
        {written(GAN_DISTORTION_MAP), "15"}, {written(GAN_FLOAT), "8"}, {written(GAN_UNDEFINED_IMAGE_FORMAT), "13"},
        {written(static_cast<TQ_BlendMode>(-5)), "-5"}};
    for (auto const& pair : pairs)
        EXPECT_EQ(pair[0], pair[1]);

    // Numbers that name no enumerator are kept; above INT_MAX the unsigned number wraps into the int-sized
    // value. No digits: the unsigned reader fails and gives 0, which replaces the old value. Qt's unsigned
    // reader takes a sign and wraps; the value comes back as the int it was written from.
    int const reads[][2] = {
        {read(QStringLiteral("7"), TQ_CLIP_MODE_DONT_REPEAT), 7}, {read(QStringLiteral("99"), TQ_INTERLACE_NONE), 99},
        {read(QStringLiteral("1234"), TRACK_MODEL_DEFAULT), 1234}, {read(QStringLiteral("11"), GAN_LINEAR_CAMERA), 11},
        {read(QStringLiteral("4000000"), GAN_UNDEFINED_TYPE), 4000000},
        {read(QStringLiteral("  2 rest"), TQ_COLORSPACE_GAMMA), TQ_COLORSPACE_PANALOG},
        {read(QStringLiteral("4294967295"), TQ_FALSE), -1}, {read(QStringLiteral("x"), TQ_CLIP_MODE_LOOP), 0},
        {read(QStringLiteral("-1"), TQ_CLIP_MODE_LOOP), -1},
        {read(written(static_cast<TQ_BlendMode>(-5)), TQ_BLEND_MODE_DEFAULT), -5}};
    for (int i = 0; i < int(std::size(reads)); ++i)
        EXPECT_EQ(reads[i][0], reads[i][1]) << "read row " << i;

    // The operators chain and leave the stream after the number.
    QString text = QStringLiteral("3 1 15");
    QTextStream in(&text);
    _TQ_CLIP_MODE eMode = TQ_CLIP_MODE_DONT_REPEAT;
    _TQ_BOOL eFlag = TQ_FALSE;
    Gan_CameraType eCamera = GAN_LINEAR_CAMERA;
    in >> eMode >> eFlag >> eCamera;
    EXPECT_TRUE(eMode == TQ_CLIP_MODE_PING_PONG && eFlag == TQ_TRUE && eCamera == GAN_DISTORTION_MAP);
    EXPECT_EQ(in.status(), QTextStream::Ok);
}

namespace {

// Checks one type's registration on first use. Each type is touched here for the first time in the
// process, so nothing is registered under its name before the first id request.
template <typename E>
void expectRegisteredOnFirstUse(char const* name, int iSample)
{
    SCOPED_TRACE(name);
    EXPECT_EQ(QMetaType::type(name), int(QMetaType::UnknownType));
    int const id = qMetaTypeId<E>();
    EXPECT_TRUE(id != QMetaType::UnknownType && qMetaTypeId<E>() == id && QMetaType::type(name) == id);
    EXPECT_TRUE(QMetaType::typeName(id) == QByteArray(name) && QMetaType::sizeOf(id) == 4);
    QVariant const carried = QVariant::fromValue(static_cast<E>(iSample));
    EXPECT_TRUE(carried.userType() == id && carried.value<E>() == static_cast<E>(iSample));
}

} // namespace

TEST(Enumerations, MetatypesRegisterOnFirstUseUnderTheirNames)
{
    expectRegisteredOnFirstUse<Gan_CameraType>("Gan_CameraType", GAN_XY_DISTORTION_4);
    expectRegisteredOnFirstUse<_TrackModel>("TrackModel", 3);
    expectRegisteredOnFirstUse<TQ_LUMINANCE_MODEL>("TQ_LUMINANCE_MODEL", 1);
    expectRegisteredOnFirstUse<TQ_FILL_ALGORITHM>("TQ_FILL_ALGORITHM", 2);
    expectRegisteredOnFirstUse<TQ_ILLUMINATION_MODEL>("TQ_ILLUMINATION_MODEL", 4);
    expectRegisteredOnFirstUse<TQ_REMOVESOURCE_MODE>("TQ_REMOVESOURCE_MODE", 5);
    expectRegisteredOnFirstUse<TQ_MATTE_SUBTYPE>("TQ_MATTE_SUBTYPE", 6);
    expectRegisteredOnFirstUse<TQ_BlendMode>("TQ_BlendMode", 7);
    expectRegisteredOnFirstUse<_DISTORTION_ALGORITHM>("DISTORTION_ALGORITHM", 8);
    // The underscored spellings are never registered.
    EXPECT_EQ(QMetaType::type("_TrackModel"), int(QMetaType::UnknownType));
    EXPECT_EQ(QMetaType::type("_DISTORTION_ALGORITHM"), int(QMetaType::UnknownType));
}

TEST(Strings, ExportedTablesAndModuleNames)
{
    using namespace TQ::Strings;
    auto const list = [](auto const& table) { return QStringList(std::begin(table), std::end(table)); };
    EXPECT_EQ(list(_TQ_CLIP_MODE_NAME), QStringList({"Don't repeat", "Repeat", "Loop", "Ping-pong"}));
    EXPECT_EQ(list(_TQ_PRIMATTE_SAMPLEOP_NAME),
              QStringList({"Select Background", "Clean Background", "Clean Foreground", "Fine Tuning",
                           "Matte Sponge", "Spill Sponge", "Make FG Transparent", "Restore Detail", "Spill +",
                           "Spill -", "Matte +", "Matte -", "Detail +", "Detail -"}));
    EXPECT_EQ(list(_TQ_KOLBEDATA_FORMAT_NAME), QStringList({"Result clips", "Shake script using pre-rendered clips",
                                                             "Shake script using lufex plugins"}));
    EXPECT_EQ(list(_TQ_KOLBEDATA_FORMAT_EXTENSION), QStringList({".txt", ".shk", ".shk"}));
    EXPECT_EQ(list(_TQ_TIMECODEFORMAT_NAME),
              QStringList({"30 fps non-drop", "30 fps drop-frame", "25 fps", "24 fps"}));
    char const* const others[] = {_TQ_LayerDataFormatName, _TQ_LayerDataFormatExtension, MODULESTRING_CLIP,
                                  MODULESTRING_CAMERA, MODULESTRING_LENS, MODULESTRING_TRACK2D,
                                  MODULESTRING_ADJUSTTRACK, MODULESTRING_REMOVE, MODULESTRING_STABILIZE,
                                  MODULESTRING_INSERT, MODULESTRING_WARPER, MODULESTRING_CAMERASOLVE};
    EXPECT_EQ(list(others), QStringList({"Vantrel Layer Script (*.layer)", ".layer", "Clip", "Camera", "Lens",
                                         "Track", "AdjustTrack", "Remove", "Stabilize", "Insert", "Warp",
                                         "Camera Solve"}));
    EXPECT_EQ(QString::fromLatin1(MATTE_CLIP_PREFIX_FORMAT).arg("Plate"), "Matte for Plate");
}
