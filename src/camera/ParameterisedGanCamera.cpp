#include "camera/ParameterisedGanCamera.h"

#include "gandalf/Camera.h"
#include "prm/ValueConversion.h"

namespace {

using Prm::NumericParameter;

NumericParameter<double> coefficient(char const* name)
{
    return NumericParameter<double>(true, name, 0.0, 0.0, 10000.0, Prm::InterpolationLinear,
                                    Prm::ExtrapolationLinear);
}

/// Distortion slots that Gandalf model `type` reads; the B-spline models read the grids instead.
int iDistortionSlots(Gan_CameraType type)
{
    switch (type) {
    case GAN_RADIAL_DISTORTION_1:
    case GAN_RADIAL_DISTORTION_1_INV:
        return 1;
    case GAN_RADIAL_DISTORTION_2:
    case GAN_RADIAL_DISTORTION_2_INV:
        return 2;
    case GAN_RADIAL_DISTORTION_3:
        return 3;
    case GAN_XY_DISTORTION_4:
        return 4;
    default:
        return 0;
    }
}

bool bUsesGrid(Gan_CameraType type)
{
    return type == GAN_CUBIC_BSPLINE_CAMERA || type == GAN_CUBIC_BSPLINE_CAMERA_INV;
}

/// Types outside 1 to 14 carry only the common values.
bool bHasModelValues(Gan_CameraType type)
{
    return type >= 1 && type <= 14;
}

template <class T>
T tLimited(NumericParameter<T> const& parameter, T value)
{
    return Prm::tClamp(value, parameter.minimum(), parameter.maximum());
}

void vSetLimited(NumericParameter<double>& parameter, double value, float time)
{
    parameter.vSetValue(tLimited(parameter, value), time);
}

double dLimitedValue(NumericParameter<double> const& parameter, float time)
{
    return tLimited(parameter, parameter.value(time, nullptr));
}

} // namespace

TQ_ParameterisedGanCamera::TQ_ParameterisedGanCamera()
    : Prm::ParameterSet(QStringLiteral("GanCamera"), nullptr),
      Type(true, "Type", GAN_LINEAR_CAMERA, Prm::InterpolationStep, Prm::ExtrapolationHold),
      Z(coefficient("Z")), Fx(coefficient("Fx")), Fy(coefficient("Fy")), X0(coefficient("X0")),
      Y0(coefficient("Y0")), Distortion1(coefficient("Distortion1")), Distortion2(coefficient("Distortion2")),
      Distortion3(coefficient("Distortion3")), Distortion4(coefficient("Distortion4")), X(), Y()
{
    for (int i = 0; i < iGridSize; ++i) {
        for (int j = 0; j < iGridSize; ++j) {
            QByteArray const stem = "Weight-" + QByteArray::number(i) + '-' + QByteArray::number(j);
            X[i][j] = NumericParameter<float>(true, (stem + 'X').constData(), 0.0f, -100.0f, 100.0f,
                                              Prm::InterpolationLinear, Prm::ExtrapolationLinear);
            Y[i][j] = NumericParameter<float>(true, (stem + 'Y').constData(), 0.0f, -100.0f, 100.0f,
                                              Prm::InterpolationLinear, Prm::ExtrapolationLinear);
        }
    }
    init();
}

TQ_ParameterisedGanCamera::TQ_ParameterisedGanCamera(TQ_ParameterisedGanCamera const& other)
    : Prm::ParameterSet(other), Type(other.Type), Z(other.Z), Fx(other.Fx), Fy(other.Fy), X0(other.X0),
      Y0(other.Y0), Distortion1(other.Distortion1), Distortion2(other.Distortion2),
      Distortion3(other.Distortion3), Distortion4(other.Distortion4), X(other.X), Y(other.Y)
{
    init();
}

TQ_ParameterisedGanCamera::~TQ_ParameterisedGanCamera() = default;

TQ_ParameterisedGanCamera& TQ_ParameterisedGanCamera::operator=(TQ_ParameterisedGanCamera const& other)
{
    if (this == &other)
        return *this;
    // NumericParameter's assignment carries the limits; the set's own assignment takes only the names,
    // so the registered list stays bound to this object's members.
    Type = other.Type;
    Z = other.Z;
    Fx = other.Fx;
    Fy = other.Fy;
    X0 = other.X0;
    Y0 = other.Y0;
    Distortion1 = other.Distortion1;
    Distortion2 = other.Distortion2;
    Distortion3 = other.Distortion3;
    Distortion4 = other.Distortion4;
    X = other.X;
    Y = other.Y;
    Prm::ParameterSet::operator=(other);
    return *this;
}

void TQ_ParameterisedGanCamera::init()
{
    addParameter(&Type);
    for (Prm::ParameterWithoutType* parameter : {&Z, &Fx, &Fy, &X0, &Y0})
        addParameter(parameter);
    for (Prm::NumericParameter<double>* parameter : distortions())
        addParameter(parameter);
    for (int i = 0; i < iGridSize; ++i) {
        for (int j = 0; j < iGridSize; ++j) {
            addParameter(&X[i][j]);
            addParameter(&Y[i][j]);
        }
    }
}

std::array<Prm::NumericParameter<double>*, 4> TQ_ParameterisedGanCamera::distortions()
{
    return {{&Distortion1, &Distortion2, &Distortion3, &Distortion4}};
}

std::array<Prm::NumericParameter<double> const*, 4> TQ_ParameterisedGanCamera::distortions() const
{
    return {{&Distortion1, &Distortion2, &Distortion3, &Distortion4}};
}

void TQ_ParameterisedGanCamera::setFromGanCamera(Gan_Camera const& camera, float time)
{
    Type.vSetValue(camera.type, time);
    vSetLimited(Z, camera.zh, time);
    vSetLimited(Fx, camera.fx, time);
    vSetLimited(Fy, camera.fy, time);
    vSetLimited(X0, camera.x0, time);
    vSetLimited(Y0, camera.y0, time);
    if (!bHasModelValues(camera.type))
        return;
    int const iSlots = iDistortionSlots(camera.type);
    for (int i = 0; i < iSlots; ++i)
        vSetLimited(*distortions()[i], camera.d[i], time);
    if (!bUsesGrid(camera.type) || !camera.weights)
        return;
    for (int i = 0; i < iGridSize; ++i) {
        for (int j = 0; j < iGridSize; ++j) {
            Gan_Vector2 const& weight = camera.weights->weight[i][j];
            X[i][j].vSetValue(static_cast<float>(weight.x), time);
            Y[i][j].vSetValue(static_cast<float>(weight.y), time);
        }
    }
}

void TQ_ParameterisedGanCamera::populateGanCamera(Gan_Camera& camera, float time) const
{
    camera.type = Type.value(time, nullptr);
    camera.zh = dLimitedValue(Z, time);
    camera.fx = dLimitedValue(Fx, time);
    camera.fy = dLimitedValue(Fy, time);
    camera.x0 = dLimitedValue(X0, time);
    camera.y0 = dLimitedValue(Y0, time);
    if (!bHasModelValues(camera.type))
        return;
    int const iSlots = iDistortionSlots(camera.type);
    for (int i = 0; i < iSlots; ++i)
        camera.d[i] = dLimitedValue(*distortions()[i], time);
    if (!bUsesGrid(camera.type) || !camera.weights)
        return;
    for (int i = 0; i < iGridSize; ++i) {
        for (int j = 0; j < iGridSize; ++j) {
            Gan_Vector2& weight = camera.weights->weight[i][j];
            weight.x = X[i][j].value(time, nullptr);
            weight.y = Y[i][j].value(time, nullptr);
        }
    }
}
