#include "camera/ParameterisedFrameWarp.h"

#include "prm/ValueConversion.h"

#include <limits>

TQ_INSTANTIATE_STATIC_PARAMETER(TQ::FrameWarp::_Type)

namespace TQ {

namespace {

constexpr unsigned int uiNoLayer = 4294967295u;

// The homography entries in the order of the parameters, row by row.
constexpr double Gan_Matrix33::*entries[9] = {&Gan_Matrix33::xx, &Gan_Matrix33::xy, &Gan_Matrix33::xz,
                                               &Gan_Matrix33::yx, &Gan_Matrix33::yy, &Gan_Matrix33::yz,
                                               &Gan_Matrix33::zx, &Gan_Matrix33::zy, &Gan_Matrix33::zz};

Prm::NumericParameter<double> homographyEntry(char const* name)
{
    double const dLargest = std::numeric_limits<double>::max();
    return Prm::NumericParameter<double>(true, name, 0.0, -dLargest, dLargest, Prm::InterpolationLinear,
                                         Prm::ExtrapolationLinear);
}

template <class T>
T tClamped(Prm::NumericParameter<T> const& parameter, T value)
{
    return Prm::tClamp(value, parameter.minimum(), parameter.maximum());
}

} // namespace

ParameterisedFrameWarp::ParameterisedFrameWarp()
    : Prm::ParameterSet(QString(), nullptr),
      LayerID(true, "LayerID", 0u, 0u, uiNoLayer, Prm::InterpolationStep, Prm::ExtrapolationHold),
      ClipID(true, "ClipID", 0u, Prm::InterpolationStep, Prm::ExtrapolationHold),
      UseBackprojectionCamera(true, "UseBackprojectionCamera", false, Prm::InterpolationStep, Prm::ExtrapolationHold),
      UseProjectionCamera(true, "UseProjectionCamera", false, Prm::InterpolationStep, Prm::ExtrapolationHold),
      // No script name of its own exists for row 3, column 3: it is saved as "HomograpyZX" too.
      Homography{homographyEntry("HomograpyXX"), homographyEntry("HomograpyXY"), homographyEntry("HomograpyXZ"),
                 homographyEntry("HomograpyYX"), homographyEntry("HomograpyYY"), homographyEntry("HomograpyYZ"),
                 homographyEntry("HomograpyZX"), homographyEntry("HomograpyZY"), homographyEntry("HomograpyZX")},
      Type(FrameWarp::_Type(0))
{
    BackprojectionCamera.setDisplayName(QStringLiteral("BackprojectionCamera"));
    childSets.append(&BackprojectionCamera);
    ProjectionCamera.setDisplayName(QStringLiteral("ProjectionCamera"));
    childSets.append(&ProjectionCamera);
    for (Prm::ParameterWithoutType* parameter : keyedParameters())
        addParameter(parameter);
    basicParameters.append(new Prm::VirtualParameter<FrameWarp::_Type>(QStringLiteral("Type"), &Type));
    bBasicParametersOwned = true;
}

ParameterisedFrameWarp::~ParameterisedFrameWarp() = default;

void ParameterisedFrameWarp::setFromFrameWarp(FrameWarp const& warp, float time)
{
    unsigned int const uiLayer = warp.iLayerID < 0 ? uiNoLayer : static_cast<unsigned int>(warp.iLayerID);
    LayerID.vSetValue(tClamped(LayerID, uiLayer), time);
    ClipID.vSetValue(warp.uiClipID, time);
    UseBackprojectionCamera.vSetValue(warp.bUseBackprojectionCamera, time);
    BackprojectionCamera.setFromGanCamera(warp.tBackprojectionCamera, time);
    UseProjectionCamera.vSetValue(warp.bUseProjectionCamera, time);
    ProjectionCamera.setFromGanCamera(warp.tProjectionCamera, time);
    for (int i = 0; i < 9; ++i)
        Homography[i].vSetValue(tClamped(Homography[i], warp.tHomography.*entries[i]), time);
}

void ParameterisedFrameWarp::populateFrameWarp(FrameWarp& warp, float time) const
{
    // 4294967295, the stored form of "no layer", reads back as -1.
    warp.iLayerID = static_cast<int>(tClamped(LayerID, LayerID.value(time, nullptr)));
    warp.uiClipID = ClipID.value(time, nullptr);
    warp.bUseBackprojectionCamera = UseBackprojectionCamera.value(time, nullptr);
    BackprojectionCamera.populateGanCamera(warp.tBackprojectionCamera, time);
    warp.bUseProjectionCamera = UseProjectionCamera.value(time, nullptr);
    ProjectionCamera.populateGanCamera(warp.tProjectionCamera, time);
    for (int i = 0; i < 9; ++i)
        warp.tHomography.*entries[i] = tClamped(Homography[i], Homography[i].value(time, nullptr));
}

void ParameterisedFrameWarp::reset()
{
    for (Prm::ParameterWithoutType* parameter : keyedParameters())
        parameter->vDeleteAllKeyframes();
}

QVector<Prm::ParameterWithoutType*> ParameterisedFrameWarp::keyedParameters()
{
    QVector<Prm::ParameterWithoutType*> parameters{&LayerID, &ClipID, &UseBackprojectionCamera, &UseProjectionCamera};
    for (Prm::NumericParameter<double>& entry : Homography)
        parameters.append(&entry);
    return parameters;
}

} // namespace TQ
