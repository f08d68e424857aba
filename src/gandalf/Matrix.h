#pragma once
/// Small fixed-size vectors and the 3 x 3 matrix, in double precision.

#ifdef __cplusplus
extern "C" {
#endif

typedef struct Gan_Vector2 { double x, y; } Gan_Vector2;
typedef struct Gan_Vector3 { double x, y, z; } Gan_Vector3;

/// Row-major: `xy` is row x, column y.
typedef struct Gan_Matrix33 {
    double xx, xy, xz;
    double yx, yy, yz;
    double zx, zy, zz;
} Gan_Matrix33;

/// The identity matrix.
Gan_Matrix33 gan_mat33_ident_s(void);

/// Writes the inverse of `source` to `destination` (which may be `source`) and returns `destination`.
/// Returns null and leaves `destination` unchanged when `source` is singular or holds a value that is not
/// finite, or when either pointer is null. `error`, when not null, receives 0 on success and a non-zero
/// code on failure.
Gan_Matrix33* gan_mat33_invert(Gan_Matrix33 const* source, Gan_Matrix33* destination, int* error);

/// The product `matrix` times `vector`. Defined in the header so that per-point callers inline it; C
/// callers get a static copy, so no library symbol is needed.
#ifdef __cplusplus
inline
#else
static inline
#endif
Gan_Vector3 gan_mat33_multv3_s(Gan_Matrix33 const* matrix, Gan_Vector3 const* vector)
{
    Gan_Matrix33 const* const m = matrix;
    Gan_Vector3 const* const v = vector;
    Gan_Vector3 const r = {m->xx * v->x + m->xy * v->y + m->xz * v->z, m->yx * v->x + m->yy * v->y + m->yz * v->z,
                           m->zx * v->x + m->zy * v->y + m->zz * v->z};
    return r;
}

#ifdef __cplusplus
}
#endif
