#include "prm/Fixtures.h"
#include "support/EnumerationParameters.h"
#include "support/Enumerations.h"
#include "support/Strings.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <QTextStream>
#include <QVariant>
#include <QVector>

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
    EXPECT_EQ(QStringList({written(TQ_CLIP_MODE_PING_PONG), written(TQ_COLORSPACE_PANALOG), written(TQ_TRUE),
                           written(GAN_DISTORTION_MAP), written(GAN_FLOAT), written(GAN_UNDEFINED_IMAGE_FORMAT),
                           written(static_cast<TQ_BlendMode>(-5))}),
              QStringList({"3", "2", "1", "15", "8", "13", "-5"}));

    // Numbers that name no enumerator are kept; above INT_MAX the unsigned number wraps into the int-sized
    // value. No digits: the unsigned reader fails and gives 0, which replaces the old value. Qt's unsigned
    // reader takes a sign and wraps; the value comes back as the int it was written from.
    EXPECT_EQ((QVector<int>{read("7", TQ_CLIP_MODE_DONT_REPEAT), read("99", TQ_INTERLACE_NONE),
                            read("1234", TRACK_MODEL_DEFAULT), read("11", GAN_LINEAR_CAMERA),
                            read("4000000", GAN_UNDEFINED_TYPE), read("  2 rest", TQ_COLORSPACE_GAMMA),
                            read("4294967295", TQ_FALSE), read("x", TQ_CLIP_MODE_LOOP), read("-1", TQ_CLIP_MODE_LOOP),
                            read(written(static_cast<TQ_BlendMode>(-5)), TQ_BLEND_MODE_DEFAULT)}),
              (QVector<int>{7, 99, 1234, 11, 4000000, TQ_COLORSPACE_PANALOG, -1, 0, -1, -5}));

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

// The parameters over these enumerations write and read them as decimal numbers. (Variants are left alone
// here: the metatypes must still be unregistered when the test below looks at them.)
TEST(EnumerationParameter, KeyedAndStaticParametersOverEnumerations)
{
    Prm::Parameter<TQ_BlendMode> mode(true, "Mode", TQ_BLEND_MODE_DEFAULT, Prm::InterpolationStep,
                                      Prm::ExtrapolationHold);
    EXPECT_TRUE(mode.streamInValue("keyframes.append( Key( 2, 3, Step ) )", {}));
    EXPECT_EQ(mode.value(2.0f, nullptr), TQ_BlendMode(3));
    EXPECT_EQ(mode.keyframeSuffixString(2.0f), "keyframes.append( Key( 2, 3, Step ) )");
    _TQ_CLIP_MODE clipMode = TQ_CLIP_MODE_PING_PONG;
    Prm::VirtualParameter<_TQ_CLIP_MODE> clip("Mode", &clipMode);
    EXPECT_EQ(qstrStreamed(clip, QString()), "Mode.value=3\n");
    EXPECT_TRUE(clip.bStreamIn("value=1"));
    EXPECT_EQ(clipMode, TQ_CLIP_MODE_REPEAT);
}

namespace {

// Checks one type's registration on first use. Each type is touched here for the first time in the
// process, so nothing is registered under its name before the first id request.
template <typename E>
void expectRegisteredOnFirstUse(char const* name, int iSample)
{
    EXPECT_EQ(QMetaType::type(name), int(QMetaType::UnknownType)) << name;
    int const id = qMetaTypeId<E>();
    QVariant const carried = QVariant::fromValue(static_cast<E>(iSample));
    EXPECT_TRUE(id != QMetaType::UnknownType && qMetaTypeId<E>() == id && QMetaType::type(name) == id) << name;
    EXPECT_TRUE(QMetaType::typeName(id) == QByteArray(name) && QMetaType::sizeOf(id) == 4) << name;
    EXPECT_TRUE(carried.userType() == id && carried.value<E>() == static_cast<E>(iSample)) << name;
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
#define TQ_TABLE(t) QString(#t ": ") + QStringList(std::begin(t), std::end(t)).join('|')
#define TQ_TEXT(t) QString(#t ": ") + t
    QStringList const actual = {TQ_TABLE(_TQ_CLIP_MODE_NAME), TQ_TABLE(_TQ_PRIMATTE_SAMPLEOP_NAME),
        TQ_TABLE(_TQ_KOLBEDATA_FORMAT_NAME), TQ_TABLE(_TQ_KOLBEDATA_FORMAT_EXTENSION),
        TQ_TABLE(_TQ_TIMECODEFORMAT_NAME), TQ_TEXT(_TQ_LayerDataFormatName), TQ_TEXT(_TQ_LayerDataFormatExtension),
        TQ_TEXT(MODULESTRING_CLIP), TQ_TEXT(MODULESTRING_CAMERA), TQ_TEXT(MODULESTRING_LENS),
        TQ_TEXT(MODULESTRING_TRACK2D), TQ_TEXT(MODULESTRING_ADJUSTTRACK), TQ_TEXT(MODULESTRING_REMOVE),
        TQ_TEXT(MODULESTRING_STABILIZE), TQ_TEXT(MODULESTRING_INSERT), TQ_TEXT(MODULESTRING_WARPER),
        TQ_TEXT(MODULESTRING_CAMERASOLVE), TQ_TEXT(MATTE_CLIP_PREFIX_FORMAT)};
#undef TQ_TABLE
#undef TQ_TEXT
    QStringList expected = QString(
#include "data/Strings.txt"
        ).split('\n', Qt::SkipEmptyParts);
    expected.removeFirst(); // the heading
    EXPECT_EQ(actual, expected);
}
