#include "camera/CameraType.h"

#include "bsc/Licence.h"

#include <QCoreApplication>
#include <QtGlobal>
#include <utility>

namespace TQ {

namespace {

CameraType makeType(int id, char const* name, Gan_CameraType ganType)
{
    return CameraType(id, QCoreApplication::translate("CameraType", name), ganType);
}

QMap<int, CameraType> offeredTypes()
{
    QMap<int, CameraType> types;
    for (CameraType const* type : {&CameraType::LINEAR(), &CameraType::ONE_PARAMETER(), &CameraType::TWO_PARAMETER(),
                                   &CameraType::ONE_PARAMETER_INV(), &CameraType::ANAMORPHIC()})
        types.insert(type->id, *type);
    if (Bsc::Licence::bFeatureOffered(QStringLiteral("DistortionMap")))
        types.insert(CameraType::DISTORTION_MAP().id, CameraType::DISTORTION_MAP());
    return types;
}

} // namespace

CameraType::CameraType() : id(-1), name(), ganType(GAN_LINEAR_CAMERA) {}

CameraType::CameraType(int idIn, QString nameIn, Gan_CameraType ganTypeIn)
    : id(idIn), name(std::move(nameIn)), ganType(ganTypeIn)
{
}

CameraType const& CameraType::LINEAR()
{
    static CameraType const type = makeType(0, "No distortion", GAN_LINEAR_CAMERA);
    return type;
}

CameraType const& CameraType::ONE_PARAMETER()
{
    static CameraType const type = makeType(1, "1-Parameter", GAN_RADIAL_DISTORTION_1);
    return type;
}

CameraType const& CameraType::TWO_PARAMETER()
{
    static CameraType const type = makeType(2, "2-Parameter", GAN_RADIAL_DISTORTION_2);
    return type;
}

CameraType const& CameraType::ONE_PARAMETER_INV()
{
    static CameraType const type = makeType(3, "1-Parameter Inv", GAN_RADIAL_DISTORTION_1_INV);
    return type;
}

CameraType const& CameraType::ANAMORPHIC()
{
    static CameraType const type = makeType(4, "Anamorphic", GAN_XY_DISTORTION_4);
    return type;
}

CameraType const& CameraType::DISTORTION_MAP()
{
    static CameraType const type = makeType(5, "Distortion Map", GAN_DISTORTION_MAP);
    return type;
}

QMap<int, CameraType> const& CameraType::s_allTypes()
{
    static QMap<int, CameraType> const types = offeredTypes();
    return types;
}

CameraType const& CameraType::fromId(int id)
{
    QMap<int, CameraType> const& types = s_allTypes();
    auto const found = types.constFind(id);
    if (found != types.constEnd())
        return *found;
    qCritical("CameraType::fromId(): invalid id %d ", id);
    return LINEAR();
}

CameraType const& CameraType::fromGandalf(Gan_CameraType ganType)
{
    for (CameraType const& type : s_allTypes())
        if (type.ganType == ganType)
            return type;
    qCritical("CameraType::fromGandalf(): no camera type found for Gandalftype %d ", int(ganType));
    return LINEAR();
}

QStringList CameraType::ALL_NAMES()
{
    QStringList names;
    for (CameraType const& type : s_allTypes())
        names << type.name;
    return names;
}

} // namespace TQ
