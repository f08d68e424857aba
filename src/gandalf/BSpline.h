#pragma once
/// Weights of a cubic B-spline displacement field: a 17 x 17 grid of (x, y) pairs, 578 doubles in all,
/// rows one after another.
#include "gandalf/Matrix.h"

#ifdef __cplusplus
extern "C" {
#endif

enum { GAN_CUBIC_BSPLINE_GRID_SIZE = 17 };

typedef struct Gan_CubicBSplineWeights {
    Gan_Vector2 weight[GAN_CUBIC_BSPLINE_GRID_SIZE][GAN_CUBIC_BSPLINE_GRID_SIZE];
} Gan_CubicBSplineWeights;

#ifdef __cplusplus
}
#endif
