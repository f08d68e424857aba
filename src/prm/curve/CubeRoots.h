#pragma once

/// Solves the monic cubic s^3 + c[2] s^2 + c[1] s + c[0] = 0.
///
/// Writes the real roots into roots[n][0] (roots[n][1], the imaginary part, is always 0) and returns how
/// many there are (1 to 3); complex roots are not listed, since callers want a curve parameter. A double
/// root is listed once per multiplicity found. Non-finite coefficients give 0 roots. Pure: callable from
/// any number of threads, allocates nothing.
int cuberoots(double const* c, double (*roots)[2]);
