#pragma once
#include "gandalf/BSpline.h"
#include "prm/NumericParameter.h"
#include "prm/Parameter.h"
#include "camera/CameraTypeParameter.h"
#include "prm/set/ParameterSet.h"

#include <array>

struct Gan_Camera;

/// A Gandalf camera stored as keyframed parameters, so that it can be animated, undone and saved: the
/// model, the common values, four distortion coefficients and the two 17 x 17 grids of B-spline weights.
///
/// Script name "GanCamera". The parameters are public members, all keyframed, registered in text order:
/// "Type", "Z", "Fx", "Fy", "X0", "Y0", "Distortion1" to "Distortion4", then for each row i and column j the
/// pair "Weight-i-jX", "Weight-i-jY". The doubles are limited to 0 .. 10000, so a negative lens coefficient
/// is stored as 0; the weights to -100 .. 100. Nothing throws.
class TQ_ParameterisedGanCamera : public Prm::ParameterSet
{
public:
    static int const iGridSize = GAN_CUBIC_BSPLINE_GRID_SIZE;
    using WeightRow = std::array<Prm::NumericParameter<float>, GAN_CUBIC_BSPLINE_GRID_SIZE>;
    using WeightGrid = std::array<WeightRow, GAN_CUBIC_BSPLINE_GRID_SIZE>;

    TQ_ParameterisedGanCamera();
    /// Copies every parameter with its keys and limits, and the source's names.
    TQ_ParameterisedGanCamera(TQ_ParameterisedGanCamera const& other);
    ~TQ_ParameterisedGanCamera() override;
    /// Assigns every parameter with its limits, then the names. The list of registered parameters stays
    /// this object's own.
    TQ_ParameterisedGanCamera& operator=(TQ_ParameterisedGanCamera const& other);

    /// Keys the values that `camera`'s model uses at `time`, each clamped to its parameter's limits. The
    /// grids are read only for the B-spline models (12, 13) and only when the camera has a weight table.
    void setFromGanCamera(Gan_Camera const& camera, float time);
    /// Writes the values at `time` into `camera`: the type and common values always, the slots that the
    /// stored type uses, and for the B-spline models the camera's own weight table, which is written but
    /// never allocated (a camera without one keeps none). Does not internalise the camera.
    void populateGanCamera(Gan_Camera& camera, float time) const;

    Prm::Parameter<Gan_CameraType> Type;
    Prm::NumericParameter<double> Z;
    Prm::NumericParameter<double> Fx;
    Prm::NumericParameter<double> Fy;
    Prm::NumericParameter<double> X0;
    Prm::NumericParameter<double> Y0;
    Prm::NumericParameter<double> Distortion1;
    Prm::NumericParameter<double> Distortion2;
    Prm::NumericParameter<double> Distortion3;
    Prm::NumericParameter<double> Distortion4;
    /// X[i][j] and Y[i][j] are the x and y of weight (i, j): "Weight-i-jX" and "Weight-i-jY".
    WeightGrid X;
    WeightGrid Y;

private:
    void init();
    /// "Distortion1" to "Distortion4", in slot order.
    std::array<Prm::NumericParameter<double>*, 4> distortions();
    std::array<Prm::NumericParameter<double> const*, 4> distortions() const;
};
