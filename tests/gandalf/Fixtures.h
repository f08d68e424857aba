#pragma once
#include "gandalf/gandalf.h"

#include <memory>

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

} // namespace TQTest
