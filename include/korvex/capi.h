/* Korvex C-style interface.
 *
 * Double-precision functions on caller-owned coordinate arrays, grouped by
 * family. Conventions shared by every family:
 *
 *  - A 2D point or vector is double[2] (x, y), a 3D one double[3] (x, y, z),
 *    a homogeneous point double[4] (x, y, z, w).
 *  - Arguments come in the order inputs, tolerances, outputs. An output may be
 *    the same array as an input unless its comment says otherwise.
 *  - Truth values are int 1 or 0. Angles are radians, anticlockwise positive.
 *  - Tolerance tests are strict: a quantity counts as zero when tol > quantity.
 *  - Nothing throws. Failures are reported by the return value; where a
 *    function fails, its comment says which outputs are left untouched.
 *  - Only the five global tolerances (gm...) are process-wide state; the
 *    math... functions take their tolerances as arguments and never read them.
 *
 * The header is valid C and C++; every function has C linkage.
 */
#ifndef KORVEX_CAPI_H
#define KORVEX_CAPI_H

#include "korvex/export.h"

#ifdef __cplusplus
extern "C" {
#endif

#include "korvex/sections/c_core.h"
#include "korvex/sections/c_container.h"
#include "korvex/sections/c_linear.h"
#include "korvex/sections/c_band.h"
#include "korvex/sections/c_poly.h"
#include "korvex/sections/c_frame.h"
#include "korvex/sections/c_line.h"
#include "korvex/sections/c_triangle.h"

#ifdef __cplusplus
} /* extern "C" */
#endif

#endif /* KORVEX_CAPI_H */
