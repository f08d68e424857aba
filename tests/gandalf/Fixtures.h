#pragma once
#include "gandalf/gandalf.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace TQTest {

/// A weight grid for the B-spline models: a radial-looking field with a twist, `strength` pixels at the corners.
inline std::unique_ptr<Gan_CubicBSplineWeights> gridWeights(double strength)
{
    auto w = std::make_unique<Gan_CubicBSplineWeights>();
    for (int i = 0; i < GAN_CUBIC_BSPLINE_GRID_SIZE; ++i)
        for (int j = 0; j < GAN_CUBIC_BSPLINE_GRID_SIZE; ++j) {
            double const x = (j - 8) / 8.0, y = (i - 8) / 8.0, r2 = x * x + y * y;
            w->weight[i][j] = {strength * (x * r2 / 2 + 0.1 * y), strength * (y * r2 / 2 - 0.1 * x)};
        }
    return w;
}

/// A distortion map image that scales pixels by `scale` about the centre; exact in float at these sizes.
inline std::shared_ptr<Gan_Image> scaleMap(unsigned long width, unsigned long height, double scale)
{
    std::shared_ptr<Gan_Image> image(gan_image_alloc(GAN_VECTOR_FIELD_2D, GAN_FLOAT, height, width), gan_image_free);
    for (unsigned long row = 0; row < height; ++row)
        for (unsigned long col = 0; col < width; ++col) {
            auto* pixel = static_cast<float*>(gan_image_get_pixptr(image.get(), row, col));
            pixel[0] = static_cast<float>(width / 2.0 + (col + 0.5 - width / 2.0) * scale);
            pixel[1] = static_cast<float>(height / 2.0 + (row + 0.5 - height / 2.0) * scale);
        }
    return image;
}

/// A lens of one model on a frame, with what the model needs beyond its coefficients.
struct Lens {
    std::string name;
    Gan_CameraType type;
    double f; // focal length in pixels
    std::vector<double> d{};
    std::shared_ptr<Gan_CubicBSplineWeights> weights{};
    std::shared_ptr<Gan_Image> direct{}, inverse{};
    double width = 1920, height = 1080;
};

/// The lens as a Gandalf camera centred on its frame, with the image plane at half the width; not internalised.
/// The camera borrows the lens's grid and maps: the lens must outlive it.
inline Gan_Camera cameraOf(Lens const& lens)
{
    Gan_Camera camera{lens.type, {lens.f}, {lens.f}, {lens.width / 2}, {lens.height / 2}, {lens.width / 2}, {},
                      lens.weights.get(), nullptr, nullptr, nullptr};
    std::copy(lens.d.begin(), lens.d.end(), camera.d);
    if (lens.direct)
        camera.map = {lens.direct.get(), lens.inverse.get()};
    return camera;
}

/// Every model, bending the frame's corners by tens of pixels; the radial ones both ways. The inverse models'
/// factor undistorts, so a positive coefficient is barrel there.
inline std::vector<Lens> lenses()
{
    std::vector<Lens> all;
    for (double sign : {-1.0, 1.0}) {
        std::string const kind = sign < 0 ? " barrel" : " pincushion";
        double const k1 = 0.2 * sign, k2 = 0.05, k3 = 0.02 * sign, c = 0.1 * sign;
        std::shared_ptr<Gan_CubicBSplineWeights> const w = gridWeights(40 * sign);
        for (Lens const& lens : {Lens{"radial 1", GAN_RADIAL_DISTORTION_1, 1500, {k1}},
                                 {"radial 2", GAN_RADIAL_DISTORTION_2, 1500, {k1, k2}},
                                 {"radial 3", GAN_RADIAL_DISTORTION_3, 1500, {k1, k2, k3}},
                                 {"inverse radial 1", GAN_RADIAL_DISTORTION_1_INV, 1500, {-0.3 * sign}},
                                 {"inverse radial 2", GAN_RADIAL_DISTORTION_2_INV, 1500, {-0.25 * sign, -0.05 * sign}},
                                 {"anamorphic", GAN_XY_DISTORTION_4, 1500, {c, c / 2, -c * 0.8, c * 1.2}},
                                 {"B-spline grid", GAN_CUBIC_BSPLINE_CAMERA, 1500, {}, w},
                                 {"inverse B-spline grid", GAN_CUBIC_BSPLINE_CAMERA_INV, 1500, {}, w}}) {
            all.push_back(lens);
            all.back().name += kind;
        }
    }
    for (Lens const& lens : {Lens{"linear", GAN_LINEAR_CAMERA, 1500}, {"stereographic", GAN_STEREOGRAPHIC_CAMERA, 800},
                             {"equidistant", GAN_EQUIDISTANT_CAMERA, 800}, {"sine law", GAN_SINE_LAW_CAMERA, 1200},
                             {"equi-solid-angle", GAN_EQUI_SOLID_ANGLE_CAMERA, 800}})
        all.push_back(lens);
    // Undistorted points spread out by 2 about the centre; the inverse brings them back.
    all.push_back(
        {"distortion map", GAN_DISTORTION_MAP, 50, {}, {}, scaleMap(64, 32, 2), scaleMap(64, 32, 0.5), 64, 32});
    return all;
}

} // namespace TQTest
