#include "gandalf/Matrix.h"

#include "gandalf/Error.h"

#include <cmath>

namespace {

bool bAllFinite(Gan_Matrix33 const& m)
{
    double const v[9] = {m.xx, m.xy, m.xz, m.yx, m.yy, m.yz, m.zx, m.zy, m.zz};
    for (double d : v)
        if (!std::isfinite(d))
            return false;
    return true;
}

} // namespace

extern "C" {

Gan_Matrix33 gan_mat33_ident_s(void)
{
    return Gan_Matrix33{1, 0, 0, 0, 1, 0, 0, 0, 1};
}

Gan_Matrix33* gan_mat33_invert(Gan_Matrix33 const* source, Gan_Matrix33* destination, int* error)
{
    if (error)
        *error = GAN_ERROR_SINGULAR_MATRIX;
    if (!source || !destination || !bAllFinite(*source))
        return nullptr;
    Gan_Matrix33 const& a = *source;
    // Cofactors of the first row give the determinant; the adjugate divided by it is the inverse.
    double const cxx = a.yy * a.zz - a.yz * a.zy;
    double const cxy = a.yz * a.zx - a.yx * a.zz;
    double const cxz = a.yx * a.zy - a.yy * a.zx;
    double const det = a.xx * cxx + a.xy * cxy + a.xz * cxz;
    if (det == 0.0 || !std::isfinite(det))
        return nullptr;
    double const s = 1.0 / det;
    Gan_Matrix33 const inv{
        cxx * s, (a.xz * a.zy - a.xy * a.zz) * s, (a.xy * a.yz - a.xz * a.yy) * s,
        cxy * s, (a.xx * a.zz - a.xz * a.zx) * s, (a.xz * a.yx - a.xx * a.yz) * s,
        cxz * s, (a.xy * a.zx - a.xx * a.zy) * s, (a.xx * a.yy - a.xy * a.yx) * s};
    if (!bAllFinite(inv))
        return nullptr;
    *destination = inv;
    if (error)
        *error = 0;
    return destination;
}

} // extern "C"
