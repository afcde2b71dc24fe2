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

/* ======================================================================
 * Numeric foundation: tolerances, scalar helpers, vectors, points and
 * complex numbers
 *
 * Arrays: a 2D vector or point is double[2] (x, y), a 3D one double[3]
 * (x, y, z), a homogeneous point double[4] (x, y, z, w) standing for
 * (x/w, y/w, z/w), a planar homogeneous point double[3] (x, y, w), a complex
 * number double[2] (real, imaginary). The caller owns every array; none of
 * these functions allocates or keeps a pointer.
 *
 * Unless a comment says otherwise, an output may be the same array as any
 * input: all inputs are read before the first output is written.
 *
 * Tolerance tests are strict: a length counts as zero when tol > length.
 * The normalising functions set a vector shorter than the tolerance to zero
 * and return 0. Only the gm... functions touch the global tolerances; the
 * math... functions take their tolerances as arguments.
 * ====================================================================== */

/* ---------------------------------------------------------------------
 * Global tolerances
 *
 * Five process-wide values, read by the single-precision point and box
 * classes and by the picking functions. They hold their defaults from load
 * time. The setters store any value unchecked (zero and negative values are
 * accepted). They are plain unsynchronised globals: set them once at
 * start-up, not while other threads compute.
 * --------------------------------------------------------------------- */

/* Distance tolerance, default 0.002. */
KORVEX_API double gmGetDistTol(void);
/* Sets the distance tolerance to tol. */
KORVEX_API void gmSetDistTol(double tol);

/* Parallelism (angle) tolerance, default 0.0001. */
KORVEX_API double gmGetParaTol(void);
/* Sets the parallelism tolerance to tol. */
KORVEX_API void gmSetParaTol(double tol);

/* Absolute distance tolerance, default 1e-6. */
KORVEX_API double gmGetAbsDistTol(void);
/* Sets the absolute distance tolerance to tol. */
KORVEX_API void gmSetAbsDistTol(double tol);

/* Absolute parallelism tolerance, default 1e-6. */
KORVEX_API double gmGetAbsParaTol(void);
/* Sets the absolute parallelism tolerance to tol. */
KORVEX_API void gmSetAbsParaTol(double tol);

/* Absolute zero, default 1e-10. */
KORVEX_API double gmGetAbsZero(void);
/* Sets the absolute zero to tol. */
KORVEX_API void gmSetAbsZero(double tol);

/* ---------------------------------------------------------------------
 * 16-bit packing of 32-bit unsigned values
 * --------------------------------------------------------------------- */

/* High half of value: value >> 16 (logical shift). */
KORVEX_API unsigned int mathGetHigh16(unsigned int value);

/* Low half of value: value & 0xFFFF. */
KORVEX_API unsigned int mathGetLow16(unsigned int value);

/* value with its high half replaced: (high << 16) | (value & 0xFFFF).
 * Only the low 16 bits of high are used. */
KORVEX_API unsigned int mathSetHigh16(unsigned int value, unsigned int high);

/* value with its low half replaced: (value & 0xFFFF0000) | (low & 0xFFFF). */
KORVEX_API unsigned int mathSetLow16(unsigned int value, unsigned int low);

/* (high << 16) | (low & 0xFFFF); the high bits of low are dropped. */
KORVEX_API unsigned int mathMerge16(unsigned int high, unsigned int low);

/* ---------------------------------------------------------------------
 * Clamping
 * --------------------------------------------------------------------- */

/* x clamped to [low, high], bounds inclusive. Note the argument order
 * (low, high, value). low is tested first: low if low > x, else x if
 * x <= high, else high (so an inverted range with x between yields low). */
KORVEX_API double mathClamp(double low, double high, double x);

/* x clamped to [0, 1]. */
KORVEX_API double mathClamp01(double x);

/* angle reduced to [0, 2*pi]. An angle already in [0, 2*pi] (both ends
 * inclusive) is returned unchanged, so 2*pi stays 2*pi. */
KORVEX_API double mathClamp0PI2(double angle);

/* x reduced into the period [low, high]. x inside the range (inclusive) is
 * returned unchanged; otherwise x - floor((x - low) / p) * p with
 * p = high - low, without a final clamp (rounding may leave the result just
 * outside). A period shorter than 1e-10 yields the midpoint (low + high) / 2. */
KORVEX_API double mathClampPeriodic(double low, double high, double x);

/* ---------------------------------------------------------------------
 * Random numbers and swaps
 * --------------------------------------------------------------------- */

/* Coarse pseudo-random number in [0, 0.9999], in steps of 0.0001, from one
 * call of the C runtime's rand(). The generator is not seeded here. */
KORVEX_API double mathRand01(void);

/* Exchanges *a and *b. */
KORVEX_API void mathSwapInt(int *a, int *b);

/* Exchanges *a and *b. */
KORVEX_API void mathSwapDbl(double *a, double *b);

/* Exchanges a[i] and b[i] for i = 0 .. n-1.
 *   a, b  double[n]
 *   n     count; nothing happens for n <= 0 */
KORVEX_API void mathSwapDblN(double *a, double *b, int n);

/* Exchanges two 2D points a, b (double[2]). */
KORVEX_API void mathSwapPnt2D(double a[2], double b[2]);

/* Exchanges two 3D points a, b (double[3]). */
KORVEX_API void mathSwapPnt3D(double a[3], double b[3]);

/* ---------------------------------------------------------------------
 * Guarded inverse trigonometry
 *
 * Arguments within 1e-12 of +-1 or slightly beyond (through rounding) give
 * the exact end values instead of NaN. A NaN argument passes through.
 * --------------------------------------------------------------------- */

/* Arc cosine in [0, pi]: exactly 0 for x > 1 - 1e-12, exactly pi for
 * x < -(1 - 1e-12), else acos(x). */
KORVEX_API double mathACos(double x);

/* Arc sine in [-pi/2, pi/2]: exactly pi/2 for x > 1 - 1e-12, exactly -pi/2
 * for x < -(1 - 1e-12), else asin(x). */
KORVEX_API double mathASin(double x);

/* Angle in [0, 2*pi) from its cosine c and sine s (in that order; they need
 * not be normalised). 0 when |c| + |s| < 1e-20. A tiny negative angle
 * rounds up to exactly 2*pi: (1, -1e-30) gives 2*pi. */
KORVEX_API double mathSolAngleByCS(double c, double s);

/* ---------------------------------------------------------------------
 * Planar vectors
 * --------------------------------------------------------------------- */

/* Normalises v (double[2], in/out) in place.
 * Returns 1; or 0 when tol > |v|, with v set to (0, 0). A length equal to
 * tol normalises. tol = 0 with a zero vector divides by zero. */
KORVEX_API int mathUniVec2D(double v[2], double tol);

/* Length of v (double[2]). */
KORVEX_API double mathVecLen2D(const double v[2]);

/* Dot product a . b (double[2] each). */
KORVEX_API double mathOProduct2D(const double a[2], const double b[2]);

/* z component of the cross product: a.x * b.y - a.y * b.x. */
KORVEX_API double mathVProduct2D(const double a[2], const double b[2]);

/* Negates both components of v (double[2], in/out). */
KORVEX_API void mathRevVec2D(double v[2]);

/* out = p1 - p0.
 *   p0, p1  double[2]
 *   out     out double[2] */
KORVEX_API void mathGetVec2D(const double p0[2], const double p1[2], double out[2]);

/* Unit direction from p0 to p1.
 *   p0, p1  double[2]
 *   tol     length tolerance
 *   out     out double[2]
 * Returns 1 with out = unit(p1 - p0); or 0 when tol > |p1 - p0|, with out
 * holding the unnormalised difference (so (0, 0) for equal points). */
KORVEX_API int mathGetVecByPP2D(const double p0[2], const double p1[2], double tol, double out[2]);

/* Rotates v anticlockwise by angle: out = (c*x - s*y, s*x + c*y).
 *   angle  radians (comes first)
 *   v      double[2]
 *   out    out double[2]; must NOT be the same array as v */
KORVEX_API void mathRotVec2D(double angle, const double v[2], double out[2]);

/* Unsigned angle between a and b (double[2] each), in [0, pi].
 * Returns -1.0 when tol > |a| or tol > |b|. Cosines within 1e-12 of +-1
 * give exactly 0 or pi. */
KORVEX_API double mathGetAngle2D(const double a[2], const double b[2], double tol);

/* Unsigned angle between unit vectors a and b (double[2]): mathACos(a . b).
 * The lengths are not checked. */
KORVEX_API double mathGetAngle2DUnit(const double a[2], const double b[2]);

/* Signed angle from unit vector a to unit vector b (double[2]), in
 * [-pi, pi), positive when b lies anticlockwise of a. Exactly opposite
 * vectors give -pi and equal vectors -0.0. The lengths are not checked. */
KORVEX_API double mathGetAngle2DUnitEx(const double a[2], const double b[2]);

/* Angle of v (double[2]) to the x axis, in [0, 2*pi): atan2(y, x), plus
 * 2*pi when negative (so a tiny negative angle rounds up to 2*pi). */
KORVEX_API double mathGetAngleX2D(const double v[2]);

/* Unsigned angle at vertex p1 between p0 - p1 and p2 - p1 (double[2] each),
 * in [0, pi]; -1.0 when either leg is shorter than 1e-10. */
KORVEX_API double mathGetAngle3P2D(const double p0[2], const double p1[2], const double p2[2]);

/* Anticlockwise angle at vertex p1, in [0, 2*pi]: the turn that brings the
 * ray p1 -> p2 onto the ray p1 -> p0. For p0 = (1, 0), p1 = (0, 0),
 * p2 = (0, 1) it is 3*pi/2. The unsigned angle is 0 for rays within about
 * 1.4e-6 rad of each other, so a p2 just anticlockwise of the ray p1 -> p0
 * and more than 1e-10 off its line gives exactly 2*pi, not a value near 0.
 *   p0, p1, p2  double[2]
 * Returns -1.0 when either leg is shorter than 1e-10. */
KORVEX_API double mathGetACWAngle3P2D(const double p0[2], const double p1[2], const double p2[2]);

/* Anticlockwise angle from b to a (double[2] each), in [0, 2*pi]:
 * mathGetACWAngle3P2D(a, origin, b), so exactly 2*pi when b lies just
 * anticlockwise of a. -1.0 for a vector shorter than 1e-10. */
KORVEX_API double mathGetACWAngle2D(const double a[2], const double b[2]);

/* ---------------------------------------------------------------------
 * Spatial vectors
 * --------------------------------------------------------------------- */

/* Normalises v (double[3], in/out) in place.
 * Returns 1; or 0 when tol > |v|, with v set to (0, 0, 0). A length equal
 * to tol normalises. tol = 0 with a zero vector divides by zero. */
KORVEX_API int mathUniVec(double v[3], double tol);

/* Length of v (double[3]). */
KORVEX_API double mathVecLen(const double v[3]);

/* Dot product a . b (double[3] each). */
KORVEX_API double mathOProduct(const double a[3], const double b[3]);

/* Mixed pairing a.y*b.y + a.x*b.z + a.z*b.x (double[3] each). This is not
 * the dot product; hosts rely on exactly this combination. */
KORVEX_API double mathWProduct(const double a[3], const double b[3]);

/* Cross product out = a x b.
 *   a, b  double[3]
 *   out   out double[3] */
KORVEX_API void mathVProduct(const double a[3], const double b[3], double out[3]);

/* Unit cross product out = unit(a x b).
 *   a, b  double[3]
 *   out   out double[3]
 * Returns 1; or 0 when |a x b| < 1e-10, with out untouched. */
KORVEX_API int mathVProductUnit(const double a[3], const double b[3], double out[3]);

/* Scalar triple product (a x b) . c (double[3] each). */
KORVEX_API double mathMProduct(const double a[3], const double b[3], const double c[3]);

/* Negates all three components of v (double[3], in/out). */
KORVEX_API void mathRevVec(double v[3]);

/* out = p1 - p0.
 *   p0, p1  double[3]
 *   out     out double[3] */
KORVEX_API void mathGetVec(const double p0[3], const double p1[3], double out[3]);

/* Unit direction from p0 to p1.
 *   p0, p1  double[3]
 *   out     out double[3]
 * Returns 1; or 0 when |p1 - p0| < 1e-10, with out set to (0, 0, 0). */
KORVEX_API int mathGetVecUnit(const double p0[3], const double p1[3], double out[3]);

/* Rescales v (double[3], in/out) to the given length (a negative length
 * also reverses it). Returns 1; or 0 when |v| < 1e-20, with v untouched. */
KORVEX_API int mathChnVecLen(double v[3], double length);

/* Reflects v about the axis n: out = 2 (v . n) n - v (a half turn about n).
 *   v    double[3]
 *   n    double[3], unit (not checked)
 *   out  out double[3] */
KORVEX_API void mathRefVec(const double v[3], const double n[3], double out[3]);

/* Projection of v onto the direction u: out = (v . u) u.
 *   v    double[3]
 *   u    double[3], unit (not checked)
 *   out  out double[3] */
KORVEX_API void mathPrjVecVec(const double v[3], const double u[3], double out[3]);

/* 1 if |a x b| < tol (raw cross product of the unnormalised a, b), else 0.
 *   a, b  double[3] */
KORVEX_API int mathIsParallel(const double a[3], const double b[3], double tol);

/* 1 if |a . b| < tol (raw dot product of the unnormalised a, b), else 0.
 *   a, b  double[3] */
KORVEX_API int mathIsPerpendicular(const double a[3], const double b[3], double tol);

/* Compares two directions a, b (double[3]).
 *   opposite = 0: 1 if |b - a| < tol (same direction);
 *   opposite != 0: 1 if |a + b| < tol (opposite directions).
 * Returns 0 otherwise. */
KORVEX_API int mathChkAng(const double a[3], const double b[3], double tol, int opposite);

/* Turns x towards y in their plane: out = cos(angle) x + sin(angle) y.
 *   x, y   double[3]
 *   angle  radians
 *   out    out double[3] */
KORVEX_API void mathRotVecXY(const double x[3], const double y[3], double angle, double out[3]);

/* As mathRotVecXY with y = z x x (not normalised).
 *   x, z   double[3]
 *   angle  radians
 *   out    out double[3] */
KORVEX_API void mathRotVecXZ(const double x[3], const double z[3], double angle, double out[3]);

/* Rotates vector v by angle (right-handed) about the direction d: the point
 * q + v is rotated about the line (q, d) and q is subtracted again.
 *   d      double[3], axis direction, unit (not checked)
 *   q      double[3], axis point
 *   angle  radians
 *   v      double[3]
 *   out    out double[3] */
KORVEX_API void mathRotVec(const double d[3], const double q[3], double angle, const double v[3], double out[3]);

/* Mirrors vector v in the plane (q, n): the point q + v is mirrored and q is
 * subtracted again.
 *   q    double[3], plane point
 *   n    double[3], plane normal, unit (not checked)
 *   v    double[3]
 *   out  out double[3] */
KORVEX_API void mathMirVec(const double q[3], const double n[3], const double v[3], double out[3]);

/* Index of the element of a (double[n]) with the smallest absolute value;
 * the first such index on ties. 0 when n < 2. */
KORVEX_API int mathGetVecMinComSub(int n, const double *a);

/* Builds a frame around z: x perpendicular to z, of unit length, and
 * y = z x x (unit only if z is).
 *   z  double[3]
 *   x  out double[3]; must NOT be z
 *   y  out double[3]; must NOT be z
 * x is formed from the two components of z other than its smallest one
 * (the first on ties): for z = (0, 0, 1), x = (0, 1, 0), y = (-1, 0, 0).
 * Returns 1; or 0 when the x so built is shorter than 1e-10 (z is nearly
 * zero), with x = (0, 0, 0) and y untouched. */
KORVEX_API int mathGetXYFromZ(const double z[3], double x[3], double y[3]);

/* Turns dir to point from p0 towards p1: dir is negated when
 * dir . unit(p1 - p0) < -1e-10; a dir perpendicular to p1 - p0 stays.
 *   p0, p1  double[3]
 *   dir     double[3], in/out
 * Returns 1; or -4 when |p1 - p0| < 1e-10, with dir untouched. */
KORVEX_API int mathAdjVecDir(const double p0[3], double dir[3], const double p1[3]);

/* Bisector of two unit directions: out = unit(a + b).
 *   a, b  double[3], unit (not checked)
 *   out   out double[3]
 * Returns 1; or -4 when |a + b| < 1e-10, with out set to (0, 0, 0). */
KORVEX_API int mathAngleBisector(const double a[3], const double b[3], double out[3]);

/* Unsigned angle between a and b (double[3] each), in [0, pi].
 * Returns -1.0 when tol > |a| or tol > |b|. Cosines within 1e-12 of +-1
 * give exactly 0 or pi. */
KORVEX_API double mathGetAngle(const double a[3], const double b[3], double tol);

/* Unsigned angle between unit vectors a and b (double[3]): mathACos(a . b).
 * The lengths are not checked. */
KORVEX_API double mathGetAngleUnit(const double a[3], const double b[3]);

/* Angle between the lines along unit vectors a and b (double[3]), in
 * [0, pi/2]: the unsigned angle, or pi minus it when it exceeds pi/2. */
KORVEX_API double mathGetAcuteAngleUnit(const double a[3], const double b[3]);

/* Unsigned angle at vertex p1 between p0 - p1 and p2 - p1 (double[3] each),
 * in [0, pi]; -1.0 when either leg is shorter than 1e-10. */
KORVEX_API double mathGetAngle3P(const double p0[3], const double p1[3], const double p2[3]);

/* Polar angle of v in the frame (x, y), in [0, 2*pi):
 * atan2(v . y, v . x), plus 2*pi when negative.
 *   x, y, v  double[3]; x and y are not checked for length or angle */
KORVEX_API double mathGetRAngleXY(const double x[3], const double y[3], const double v[3]);

/* Polar angle of v in the frame (x, unit(z x x)), in [0, 2*pi).
 *   x, z, v  double[3]
 * When z and x are parallel (|z x x| < 1e-10) the y axis is taken as zero
 * and the result is 0 or pi according to the sign of v . x. */
KORVEX_API double mathGetRAngleXZ(const double x[3], const double z[3], const double v[3]);

/* Difference quotient out = (p1 - p0) / h.
 *   p0, p1  double[3]
 *   h       step
 *   out     out double[3]
 * Returns 1; or 0 when |h| < 1e-20, with out untouched. */
KORVEX_API int mathNumDer(const double p0[3], const double p1[3], double h, double out[3]);

/* ---------------------------------------------------------------------
 * Points: initialisation and copying
 * --------------------------------------------------------------------- */

/* Sets p (double[2]) to (0, 0). Returns 0. */
KORVEX_API int mathInitPnt2D(double p[2]);

/* Sets p (double[3]) to (0, 0, 0). */
KORVEX_API void mathInitPnt(double p[3]);

/* Copies source (double[2]) to target (double[2]). */
KORVEX_API void mathCpyPnt2D(const double source[2], double target[2]);

/* Copies source (double[2]) to target (double[3]) and sets target z = 0. */
KORVEX_API void mathCpyPnt2DTo3D(const double source[2], double target[3]);

/* Copies source (double[3]) to target (double[3]). */
KORVEX_API void mathCpyPnt(const double source[3], double target[3]);

/* Copies source (double[4]) to target (double[4]). */
KORVEX_API void mathCpyPnt4(const double source[4], double target[4]);

/* ---------------------------------------------------------------------
 * Points: distances and combinations
 * --------------------------------------------------------------------- */

/* Distance between p and q (double[2] each). */
KORVEX_API double mathDist2D(const double p[2], const double q[2]);

/* Distance between p and q (double[3] each). */
KORVEX_API double mathDist(const double p[3], const double q[3]);

/* Distance between p and q in n dimensions: sqrt(|sum (p[i] - q[i])^2|),
 * summed in index order.
 *   n     dimension; 0 is returned for n <= 0
 *   p, q  double[n] */
KORVEX_API double mathDistXD(int n, const double *p, const double *q);

/* Distance between the Cartesian points of the homogeneous p and q
 * (double[4] each). 0.0 when either weight is below 1e-10; the test is on
 * the signed weight, so a negative weight also gives 0.0. */
KORVEX_API double mathDist3H(const double p[4], const double q[4]);

/* Midpoint out = (p + q) * 0.5.
 *   p, q  double[2]
 *   out   out double[2] */
KORVEX_API void mathMidPnt2D(const double p[2], const double q[2], double out[2]);

/* Midpoint out = (p + q) * 0.5.
 *   p, q  double[3]
 *   out   out double[3] */
KORVEX_API void mathMidPnt(const double p[3], const double q[3], double out[3]);

/* Affine combination out = s p + t q.
 *   p, q  double[2]
 *   s, t  weights
 *   out   out double[2]
 * Returns out. */
KORVEX_API double *mathMixPnt2D(const double p[2], const double q[2], double s, double t, double out[2]);

/* Affine combination out = s p + t q.
 *   p, q  double[3]
 *   s, t  weights
 *   out   out double[3]
 * Returns out. */
KORVEX_API double *mathMixPnt(const double p[3], const double q[3], double s, double t, double out[3]);

/* Combination out = s p + t q over all four coordinates. Note that the
 * weights come first here.
 *   s, t  weights
 *   p, q  double[4]
 *   out   out double[4]
 * Returns out. */
KORVEX_API double *mathMixP4D(double s, double t, const double p[4], const double q[4], double out[4]);

/* out = p + t v.
 *   p, v  double[3]
 *   t     factor
 *   out   out double[3] */
KORVEX_API void mathAddVec(const double p[3], const double v[3], double t, double out[3]);

/* Cartesian point of the planar homogeneous point h.
 *   h    double[3] (x, y, w)
 *   out  out double[2]: (x/w, y/w)
 * Returns 1; or 0 when |w| < 1e-10, with out untouched. */
KORVEX_API int mathGetPnt3(const double h[3], double out[2]);

/* Cartesian point of the homogeneous point h.
 *   h    double[4] (x, y, z, w)
 *   out  out double[3]: (x/w, y/w, z/w)
 * Returns 1; or 0 when |w| < 1e-10, with out untouched. */
KORVEX_API int mathGetPnt4(const double h[4], double out[3]);

/* ---------------------------------------------------------------------
 * Points: transformations
 * --------------------------------------------------------------------- */

/* Rotates p anticlockwise by angle about the centre c.
 *   c      double[2]
 *   angle  radians
 *   p      double[2]
 *   out    out double[2] */
KORVEX_API void mathRotPnt2D(const double c[2], double angle, const double p[2], double out[2]);

/* Rotates p by angle about the line through q along d, right-handed about d.
 *   d      double[3], axis direction, unit (not normalised here)
 *   q      double[3], axis point
 *   angle  radians
 *   p      double[3]
 *   out    out double[3] */
KORVEX_API void mathRotPnt(const double d[3], const double q[3], double angle, const double p[3], double out[3]);

/* Mirrors p in the plane (q, n): out = p - 2 (n . (p - q)) n.
 *   q    double[3], plane point
 *   n    double[3], plane normal, unit (not checked)
 *   p    double[3]
 *   out  out double[3] */
KORVEX_API void mathMirPnt(const double q[3], const double n[3], const double p[3], double out[3]);

/* Point symmetry formed with the x coordinate of the centre for every
 * coordinate: out = (2 c.x - p.x, 2 c.x - p.y, 2 c.x - p.z). This is the
 * reflection of p through c only when c.x = c.y = c.z; hosts rely on the
 * formula as it stands.
 *   c    double[3]
 *   p    double[3]
 *   out  out double[3]; may be p, must NOT be c */
KORVEX_API void mathSymPnt(const double c[3], const double p[3], double out[3]);

/* Scales p about the centre c by per-axis factors:
 * out[i] = (p[i] - c[i]) f[i] + c[i].
 *   c, f, p  double[3]
 *   out      out double[3] */
KORVEX_API void mathScalePnt(const double c[3], const double f[3], const double p[3], double out[3]);

/* ---------------------------------------------------------------------
 * Homogeneous points
 *
 * Each function applies its Cartesian operation to p (double[4]) and keeps
 * the weight: out.w = p.w. With |p.w| >= 1e-10 the point is divided by w,
 * transformed and multiplied by w again; with |p.w| < 1e-10 the operation
 * is applied to (p.x, p.y, p.z) as they stand. They never fail.
 * --------------------------------------------------------------------- */

/* Translation by v.
 *   v    double[3], displacement (comes first)
 *   p    double[4]
 *   out  out double[4] */
KORVEX_API void mathMovePnt4H(const double v[3], const double p[4], double out[4]);

/* Rotation by angle about the line (q, d), as mathRotPnt.
 *   d      double[3], axis direction, unit (not normalised here)
 *   q      double[3], axis point
 *   angle  radians
 *   p      double[4]
 *   out    out double[4] */
KORVEX_API void mathRotPnt4H(const double d[3], const double q[3], double angle, const double p[4], double out[4]);

/* Mirror in the plane (q, n), as mathMirPnt.
 *   q     double[3], plane point
 *   n     double[3], plane normal, unit (not checked)
 *   p     double[4]
 *   out   out double[4] */
KORVEX_API void mathMirPnt4H(const double q[3], const double n[3], const double p[4], double out[4]);

/* Scaling about c by the per-axis factors f, as mathScalePnt.
 *   c     double[3], centre
 *   f     double[3], factors along x, y, z
 *   p     double[4]
 *   out   out double[4] */
KORVEX_API void mathScalePnt4H(const double c[3], const double f[3], const double p[4], double out[4]);

/* ---------------------------------------------------------------------
 * Complex numbers: double[2] (real, imaginary); a list of n is double[2n]
 * --------------------------------------------------------------------- */

/* out = a + b (double[2] each). Returns 1. */
KORVEX_API int mathCompPlus(const double a[2], const double b[2], double out[2]);

/* out = a - b (double[2] each). Returns 1. */
KORVEX_API int mathCompMinus(const double a[2], const double b[2], double out[2]);

/* out = a * b (double[2] each); out may be a or b. Returns 1. */
KORVEX_API int mathCompMult(const double a[2], const double b[2], double out[2]);

/* out = a / b (double[2] each).
 * Returns 1; or 0 when |b|^2 < 1e-20, with out untouched. */
KORVEX_API int mathCompDivi(const double a[2], const double b[2], double out[2]);

/* Value at x of the Lagrange polynomial through the n pairs (z[k], w[k]).
 *   n    number of nodes
 *   z    double[2n], nodes (may be null when n < 1)
 *   w    double[2n], values (may be null when n < 1)
 *   x    double[2], evaluation point
 *   out  out double[2]; may be x or any node or value
 * Returns 1 (out = 0 for n < 1); or 0 when two nodes coincide
 * (|z[k] - z[j]|^2 < 1e-20), with out holding the partial sum of the
 * terms completed before the failure. */
KORVEX_API int mathIntpComp(int n, const double *z, const double *w, const double x[2], double out[2]);
/* ======================================================================
 * Chains and arrays
 *
 * Intrusive chains of caller records, padded coefficient arrays (strings),
 * arrays of such rows (nets), and helpers on plain double arrays.
 *
 * Two-way chains: any record whose first two members are the pointers
 * prev and next to records of the same kind, for example
 *
 *     typedef struct MyItem {
 *         struct MyItem *prev;   (first member)
 *         struct MyItem *next;   (second member)
 *         double         value;  (the host's own data follows)
 *     } MyItem;
 *
 * A chain is named by its head, the record whose prev is null; the empty
 * chain is null. One-way chains: any record whose first member is next.
 * The chain functions take and return records as void pointers; they never
 * allocate and never copy, they only relink the records handed to them.
 *
 * Record allocation (important): mathFreBDChns and mathFreSDChns release
 * every record of a chain with the C++ single-object delete; no destructor
 * is run, so records must be plain data. A C++ host therefore allocates each
 * record it hands to these two functions with `new MyItem` (one object,
 * never `new MyItem[n]`, never malloc). A C host cannot do that: it may
 * still link malloc'd records with every other chain function, but must then
 * walk the chain and free the records itself instead of calling
 * mathFreBDChns / mathFreSDChns.
 *
 * Strings and nets are allocated here and released only with DelStr1D and
 * DelNet1D (whatever their dimension).
 * ====================================================================== */

/* ---- Two-way chains ------------------------------------------------- */

/* Joins two chains, a first.
 *   a, b  heads of two chains, either may be null
 * Links b after the last record of a and returns a; returns b when a is
 * null and a when b is null. */
KORVEX_API void *mathInsBDChnsAtHead(void *a, void *b);

/* Joins two chains, b first.
 *   a, b  heads of two chains, either may be null
 * Links a after the last record of b and returns b; returns a when b is
 * null and b when a is null. */
KORVEX_API void *mathInsBDChnsAtTail(void *a, void *b);

/* Puts one record in front of a chain.
 *   item  the record (null allowed)
 *   head  head of the chain (null allowed)
 * Sets item.prev = null, item.next = head and head.prev = item; returns
 * item, or head when item is null. */
KORVEX_API void *mathInsItemInBDChns(void *item, void *head);

/* Unlinks one record from a chain.
 *   item  a record of the chain (null allowed: nothing happens)
 *   head  head of the chain
 * Returns the new head: when item is the head, its next record, whose prev
 * is cleared (null for a one-record chain); otherwise head. The unlinked
 * record keeps its own prev and next; it is not freed. */
KORVEX_API void *mathDelItemInBDChns(void *item, void *head);

/* Releases every record of a chain, following next, with the single-object
 * delete (see the allocation note above).
 *   head  head of the chain (null allowed) */
KORVEX_API void mathFreBDChns(void *head);

/* Number of records in a chain (0 for null). */
KORVEX_API int mathGetNumOfItemInBDChns(const void *head);

/* Reverses a chain in place by exchanging prev and next in every record.
 *   head  head of the chain (null allowed)
 * Returns the old last record, the new head (null for null). */
KORVEX_API void *mathRevBDChns(void *head);

/* ---- One-way chains ------------------------------------------------- */

/* Links chain b after the last record of chain a and returns a (b when a is
 * null, a when b is null). */
KORVEX_API void *mathInsSDChnsAtHead(void *a, void *b);

/* Links chain a after the last record of chain b and returns b (a when b is
 * null, b when a is null). */
KORVEX_API void *mathInsSDChnsAtTail(void *a, void *b);

/* Puts item in front of a chain: item.next = head; returns item, or head
 * when item is null. */
KORVEX_API void *mathInsItemInSDChns(void *item, void *head);

/* Unlinks item from a chain and returns the new head: head.next when item
 * is the head, otherwise head, with item's predecessor relinked past it.
 * A record that is not in the chain changes nothing. The unlinked record
 * keeps its next pointer; it is not freed. */
KORVEX_API void *mathDelItemInSDChns(void *item, void *head);

/* Releases every record of a chain with the single-object delete (see the
 * allocation note above). Null is allowed. */
KORVEX_API void mathFreSDChns(void *head);

/* Number of records in a chain (0 for null). */
KORVEX_API int mathGetNumOfItemInSDChns(const void *head);

/* ---- Strings and nets ----------------------------------------------- */

/* New string for n + 1 points of dimension k, with room for three more
 * points of slack: (n + 3) * k doubles, uninitialised, k = 1 ... 5 for
 * NewStr1D ... NewStr5D.
 *   n  index of the last point
 * Returns the array, or null when it cannot be allocated (also for a
 * negative size). Release it with DelStr1D. */
KORVEX_API double *NewStr1D(int n);
KORVEX_API double *NewStr2D(int n);
KORVEX_API double *NewStr3D(int n);
KORVEX_API double *NewStr4D(int n);
KORVEX_API double *NewStr5D(int n);

/* New knot array of n + p + 5 doubles, uninitialised, for n + 1 control
 * points of degree p. Returns null when it cannot be allocated. Release it
 * with DelStr1D. */
KORVEX_API double *NewKntStr(int n, int p);

/* Releases a string or knot array made by NewStr...D or NewKntStr.
 *   s  address of the array pointer; *s is freed when set and then set to
 *      null (a null s is ignored) */
KORVEX_API void DelStr1D(double **s);

/* New net: *net receives an array of n + 3 row pointers; rows 0 ... n each
 * get a string of (m + 3) * k doubles (k = 1 ... 4 for NewNet1D ...
 * NewNet4D); the remaining row pointers are null.
 *   net   out: address of the net pointer
 *   n     index of the last row (n < 0: no rows are made)
 *   m     index of the last point in a row
 * Returns *net, or null when the row array cannot be allocated. When a row
 * cannot be allocated, allocation stops there and that row and all later
 * ones stay null while *net is still returned: a host that needs every row
 * checks (*net)[n]. Release the net with DelNet1D. */
KORVEX_API double **NewNet1D(double ***net, int n, int m);
KORVEX_API double **NewNet2D(double ***net, int n, int m);
KORVEX_API double **NewNet3D(double ***net, int n, int m);
KORVEX_API double **NewNet4D(double ***net, int n, int m);

/* Releases a net made by NewNet...D.
 *   n    the n it was made with
 *   net  address of the net pointer; rows 0 ... n are freed up to the first
 *        null row, then the row array; *net is set to null (also when it was
 *        already null; a null net is ignored) */
KORVEX_API void DelNet1D(int n, double ***net);

/* ---- Arrays of double ----------------------------------------------- */

/* Sorts a[0 ... n-1] ascending in place by exchange sort (quadratic; equal
 * values may change order). */
KORVEX_API void mathSortDblArray(int n, double *a);

/* Merges near-equal neighbours of a sorted array in place.
 *   n    number of elements
 *   a    sorted ascending; rewritten with the kept elements first
 *   tol  an element closer than tol (strict) to the last kept element is
 *        dropped; the comparison is always with the last kept element, not
 *        with a dropped one
 * Returns the new count; 1 when n < 2 (also for n = 0). Dropped elements
 * are marked with 1e100 before the array is squeezed, so 1e100 is a
 * reserved value: every input element of 9.999999999e99 or more is removed
 * as well. Elements beyond the returned count are left over from the
 * squeeze and may hold the marker. */
KORVEX_API int mathFilterDblArray(int n, double *a, double tol);

/* Largest element of a[0 ... n-1].
 *   max  out: the value (the first of equal maxima)
 * Returns its index. With n < 2 the result is 0 and max = a[0], so a must
 * hold at least one element even then. */
KORVEX_API int mathGetDblArrayMaxVal(int n, const double *a, double *max);

/* Smallest element of a[0 ... n-1]; as mathGetDblArrayMaxVal. */
KORVEX_API int mathGetDblArrayMinVal(int n, const double *a, double *min);

/* Smallest and largest elements of a[0 ... n-1].
 *   min, max  out, each may be null when not wanted
 * Returns 1. With n < 1 a is not read and min and max are left untouched. */
KORVEX_API int mathGetDblArrayMinMax(int n, const double *a, double *min, double *max);

/* Reverses a[0 ... n-1] in place. */
KORVEX_API void mathRevDblArray(int n, double *a);
/* ======================================================================
 * Linear systems and matrix inversion
 *
 * Dense matrices are flat double arrays in row-major order: element (i, j)
 * of a matrix of n rows and m columns is at index i*m + j, counted from 0.
 * Dimensions are passed beside the arrays; none of these functions checks
 * its pointers or dimensions, and dimensions below 1 make the loops empty.
 * Output arrays must not overlap the inputs unless a comment allows it.
 * Scratch storage is allocated inside a call and released before it
 * returns; nothing is kept between calls and nothing throws.
 * Result codes of the solvers: 1 solved, 0 no solution or singular,
 * 100 every value solves, -1 out of memory.
 * ====================================================================== */

/* ---- Matrix kernel -------------------------------------------------- */

/* Determinant of [[a11, a12], [a21, a22]]: a11*a22 - a12*a21. */
KORVEX_API double mathCalDeterm22(double a11, double a12, double a21, double a22);

/* Determinant of the 3x3 matrix given row by row, evaluated as
 * a12*a23*a31 + a11*a22*a33 + a13*a21*a32
 *   - a13*a22*a31 - a11*a23*a32 - a12*a21*a33 (in that order). */
KORVEX_API double mathCalDeterm33(double a11, double a12, double a13,
                                  double a21, double a22, double a23,
                                  double a31, double a32, double a33);

/* Matrix product C = A * B.
 *   A  n x k;  B  k x m;  C  out n x m (must not overlap A or B: each
 *      element is cleared and then accumulated in place)
 * Nothing is written when n < 1. */
KORVEX_API void mathMatxMult(const double *A, const double *B, double *C, int n, int k, int m);

/* Transpose: At (m x n) receives A (n x m) transposed. At must not overlap
 * A. Nothing happens when n < 1. */
KORVEX_API void mathMatxTrans(int n, int m, const double *A, double *At);

/* I (n x n) becomes the identity. Nothing happens when n < 1. */
KORVEX_API void mathUnitMatx(int n, double *I);

/* B = s * A element by element over n*m elements; B may be A. */
KORVEX_API void mathMatxScalar(int n, int m, const double *A, double s, double *B);

/* C = A + B over n*m elements; C may be A or B. */
KORVEX_API void mathMatxPlus(int n, int m, const double *A, const double *B, double *C);

/* C = A - B over n*m elements; C may be A or B. */
KORVEX_API void mathMatxMinus(int n, int m, const double *A, const double *B, double *C);

/* dst = src over n*m elements. Note the argument order: source first,
 * destination second, dimensions last. */
KORVEX_API void mathMatxCopy(const double *src, double *dst, int n, int m);

/* ---- Elementary transformations ------------------------------------- */

/* b[i] += c * a[i] for i < n. */
KORVEX_API void mathElemnTrans_2(int n, const double *a, double *b, double c);

/* Exchanges a[i] and b[i] for i < n. */
KORVEX_API void mathElemnTrans_3(int n, double *a, double *b);

/* Multiplies row i of M (n columns) by c; does nothing when
 * |1 - c| < 1e-20. */
KORVEX_API void mathElemnTrans_4(int n, int i, double *M, double c);

/* Row j of M += c * row i of M (n columns). */
KORVEX_API void mathElemnTrans_5(int n, int i, int j, double *M, double c);

/* Exchanges rows i and j of M (n columns); nothing when i == j. */
KORVEX_API void mathElemnTrans_6(int n, int i, int j, double *M);

/* ---- Inversion and general systems ---------------------------------- */

/* Moore-Penrose pseudo-inverse, built column by column (Greville).
 *   rows, cols  dimensions of A
 *   A           rows x cols, unchanged
 *   X           out cols x rows, the pseudo-inverse (must not overlap A)
 * Returns 1, or 0 only when scratch memory cannot be allocated (X is then
 * untouched); with rows or cols below 1 it returns 1 at once and writes
 * nothing. Rank deficiency is not an error: a zero matrix gives a zero X. Columns whose squared norm is 1e-20 or less count as zero, and a
 * column whose residual against the earlier ones has a squared norm below
 * 1e-20 counts as dependent. */
KORVEX_API int mathMatxInvs(int rows, int cols, const double *A, double *X);

/* Inverse by Gauss-Jordan elimination with elementary row transformations.
 *   n     order
 *   A     n x n, destroyed: ends as its upper-triangular echelon form (or
 *         partly eliminated on failure)
 *   Ainv  out n x n
 * The pivot of each column is the first row (not the largest element) whose
 * entry exceeds 1e-20 in magnitude. Returns 1, or 0 when a column has no
 * such pivot (Ainv then holds intermediate values). */
KORVEX_API int mathMatxInvsByET(int n, double *A, double *Ainv);

/* Solves A x = b by Gaussian elimination with complete pivoting.
 *   A  n x n, destroyed (partly eliminated, also on failure)
 *   b  length n: in the right side, out the solution (on failure partly
 *      transformed)
 *   n  order
 * Returns 1 (also for n < 1, with nothing done), or 0 when the matrix is
 * singular or its work array cannot be allocated. The singularity test
 * is absolute: a pivot p counts as zero when 1.0 + p == 1.0 in double
 * arithmetic, whatever the scale of the matrix, so a regular matrix whose
 * elements are all below about 1e-16 is reported singular. Scale such
 * systems first. */
KORVEX_API int mathGaussEliminate(double *A, double *b, int n);

/* Solves A x = b.
 *   n  order
 *   A  n x n, unchanged
 *   b  length n, unchanged
 *   x  out length n (must not overlap A or b)
 * Uses mathGaussEliminate on a copy; when that reports the matrix singular,
 * x becomes pinv(A) b, the least-squares solution of minimum norm, and the
 * result is still 1. Both tests are absolute: a regular matrix with all
 * elements below about 1e-16 fails the pivot test, and as its columns are
 * then also shorter than 1e-10 the pseudo-inverse counts them as zero and
 * x = 0. Returns 1 (also for n < 1, with nothing written), 0 when the
 * pseudo-inverse cannot be computed (out of memory; x then holds the
 * partial elimination), -1 when the copy cannot be allocated (nothing is
 * written). */
KORVEX_API int mathSolLineEqua(int n, const double *A, const double *b, double *x);

/* ---- Small systems -------------------------------------------------- */

/* Solves a11 x + a12 y = b1, a21 x + a22 y = b2 by Cramer's rule.
 *   tol   determinant tolerance
 *   x, y  out
 * Returns 1, or 0 when |det| < tol (x, y untouched). */
KORVEX_API int mathSolLineEqua22(double a11, double a12, double a21, double a22,
                                 double b1, double b2, double tol, double *x, double *y);

/* Solves the 3x3 system with coefficients a11 ... a33 (row by row) and
 * right side b1, b2, b3 by Cramer's rule, using mathCalDeterm33.
 *   tol      determinant tolerance
 *   x, y, z  out
 * Returns 1, or 0 when |det| < tol (x, y, z untouched). */
KORVEX_API int mathSolLineEqua33(double a11, double a12, double a13,
                                 double a21, double a22, double a23,
                                 double a31, double a32, double a33,
                                 double b1, double b2, double b3, double tol,
                                 double *x, double *y, double *z);

/* Unit solution of the homogeneous system a x + b y = 0, c x + d y = 0.
 *   tol  tolerance on the row lengths and on the residual
 *   v    out double[2]: the unit solution, taken perpendicular to the longer
 *        row (the second on a tie)
 * Returns 1 when v also satisfies the other row within tol (inclusive),
 * 0 when only the zero vector solves (v then keeps the candidate), 100 when
 * both rows are shorter than tol (every vector solves; v = (0, 0)). */
KORVEX_API int mathSolHomoEqua22(double a, double b, double c, double d, double tol, double v[2]);

/* Solves a cos t + b sin t = c for t in [0, 2 pi].
 *   tol  tolerance on the equation
 *   t    out double[2], first set to (0, pi/2)
 * Returns the number of roots written (0, 1 or 2) or 100 when every t
 * solves: when the amplitude r = sqrt(a^2 + b^2) is below 1e-20 and
 * |c| < tol, or when both |c - r| and |c + r| are below tol. A double root
 * (tangency) gives 1 with both entries equal. Two roots more than
 * 2 pi - 1e-11 apart are one angle at both ends of the period (the root 0):
 * the result is then 1 with t = (0, 2 pi). Roots lie in [0, 2 pi],
 * unsorted. */
KORVEX_API int mathSolExpoEqua(double a, double b, double c, double tol, double t[2]);

/* Solves a cos^2 t + b cos t sin t + c sin^2 t = 0 for t in [0, pi].
 *   tol  tolerance on the equation
 *   t    out double[2]
 * Returns the number of roots (0, 1 or 2), or 100 when every t solves
 * (t then holds (0, pi/2), not halved). */
KORVEX_API int mathSolHomoEqua(double a, double b, double c, double tol, double t[2]);

/* Decomposes v = c1 e1 + c2 e2 + c3 e3.
 *   v, e1, e2, e3  double[3]
 *   c1, c2, c3     out coefficients
 * Coplanar directions still give the least-squares coefficients of minimum
 * norm. Returns 1, or 0 when scratch memory fails (outputs untouched). */
KORVEX_API int mathDecVec(const double v[3], const double e1[3], const double e2[3],
                          const double e3[3], double *c1, double *c2, double *c3);

/* ---- Least squares -------------------------------------------------- */

/* x minimising |x a - b|: (a.b)/(a.a), or 0 when a.a <= 1e-100.
 *   a, b  double[3];  x  out.  Returns 1. */
KORVEX_API int mathSolLeastSquare31(const double a[3], const double b[3], double *x);

/* x minimising |x0 a + x1 b - c| through the normal equations.
 *   a, b, c  double[3];  x  out double[2]
 * When a and b are parallel (the determinant of the normal equations is
 * below 1e-100) the fit is split between them in proportion to their
 * lengths, and x = (0, 0) when b.b < 1e-50. Returns 1. */
KORVEX_API int mathSolLeastSquare32(const double a[3], const double b[3], const double c[3],
                                    double x[2]);

/* Parameters of the closest points of the lines P1 + t0 d1 and P2 + t1 d2.
 *   P1, d1, P2, d2  double[3]
 *   t               out double[2]: (t0, t1)
 * For parallel lines (|d1 x d2| < 1e-11) the parameters are those of the
 * midpoint of P1 and P2 projected on each line, computed as plain dot
 * products: they are right only for unit directions. Returns 1, or 0 when a
 * denominator vanishes (below 1e-100): t is untouched when the first one
 * does, t[0] is already written when only the second one does (possible
 * with huge, nearly parallel directions). */
KORVEX_API int mathSolLeastSquareLin(const double P1[3], const double d1[3], const double P2[3],
                                     const double d2[3], double t[2]);
/* ======================================================================
 * Band-matrix interpolation solvers
 *
 * Solve the systems of curve and surface interpolation: a narrow band with
 * a dense end block of order k (k <= 4) in its last rows, for many right
 * sides at once. The cost is linear in n; nothing is allocated.
 *
 * Coefficient layout, A = n rows of four doubles (n x 4, row-major):
 *   row 0                  coefficients of unknowns 0, 1, 2, 3;
 *   row i, 1 <= i <= n-k   coefficients of unknowns i-1, i, i+1, i+2
 *                          (only the first k of the four are used);
 *   rows n-k+1 ... n-1     in their first k entries, the coefficients of
 *                          unknowns n-k ... n-1 (the dense end block).
 * n must not be smaller than k; with n == k the whole system is the end
 * block. A and the right sides are overwritten by the elimination; on
 * failure they are left partly eliminated and X partly written.
 * Results: 1 solved, 0 a pivot below 1e-20 in magnitude or a singular end
 * block (also, without touching anything, when k is outside 1 ... 4 or
 * n < k). With k = 1 only n = 1 can be solved: the band rows then keep no
 * pivot after elimination.
 * ====================================================================== */

/* Band system with homogeneous (4D) points as right sides.
 *   n  number of unknowns;  k  order of the end block (1 ... 4)
 *   A  in/out n x 4 coefficients (layout above)
 *   B  in/out n x 4 right sides, one 4D point per equation
 *   X  out n x 4 solution (must not overlap A or B)
 * Returns 1 or 0 as above. */
KORVEX_API int mathSolCurvBandMatx4D(int n, int k, double *A, double *B, double *X);

/* As mathSolCurvBandMatx4D with 3D points: B and X are n x 3. */
KORVEX_API int mathSolCurvBandMatx(int n, int k, double *A, double *B, double *X);

/* As mathSolCurvBandMatx4D for a net of 4D points: equation i has the
 * right sides B[i][0 ... 4m-1] (m points of four doubles) and the solution
 * goes to X[i] in the same shape.
 *   n, k  as above;  m  number of points per row
 *   A     in/out n x 4 coefficients
 *   B     n row pointers, each to m 4D points, overwritten
 *   X     n row pointers, each to room for m 4D points
 * Returns 1 or 0 as above. */
KORVEX_API int mathSolSurfBandMatx(int n, int m, int k, double *A, double **B, double **X);
/* ======================================================================
 * Polynomial equations and polynomials
 *
 * Closed-form solvers for degrees 2 to 4, a general solver through the
 * companion matrix, root finding on an interval, Newton iteration, and the
 * small polynomial arithmetic that the curve code uses.
 *
 * Coefficient order differs between functions and each keeps its own:
 *  - highest degree first (coef[0] multiplies x^n, coef[n] is the constant):
 *    mathEvalPoly, mathEvalRPoly, mathSolUniNEqua, mathSolRatiEqua,
 *    mathSolTriaEqua, mathSolQuarEqua;
 *  - constant first (coef[i] multiplies x^i): mathPolyDeri, mathPolyIntg,
 *    mathIntgPolyMult, mathSlvequN; mathPolyMult works in either order;
 *  - the scalar-argument solvers take a, b, c, ... highest degree first.
 *
 * Two families of closed-form solvers exist side by side:
 *  - the real-root family (mathSolQuadEqua, mathSolTriaEqua, mathSolQuarEqua)
 *    returns the number of real roots written, or 100 when every x solves
 *    (all coefficients negligible). Roots are not sorted; callers read only
 *    as many entries as the count says.
 *  - the complex-root family (mathSlvequ3, mathSlvequ4) writes every root as
 *    real part wr[i] and imaginary part wi[i]; a conjugate pair occupies two
 *    consecutive positions. mathSlvequR3 / mathSlvequR4 keep the real ones.
 *
 * Every function is re-entrant except mathSolRatiEqua (see there).
 * ====================================================================== */

/* Real roots of a*x^2 + b*x + c = 0.
 *   a, b, c  coefficients
 *   tol      tolerance on the value of the polynomial at its vertex: a vertex
 *            within tol of zero gives one double root
 *   x        out double[2]; set to (1, 1) first, so it is always written
 * Returns 2 (x[0], x[1], not sorted: the order depends on the sign of b),
 * 1 (a double root or the root of the linear equation, in both x[0] and x[1]),
 * 0 (no real root; x holds (1, 1) or the vertex abscissa twice), or 100 when
 * every x solves (a and b negligible and abs(c) < tol). */
KORVEX_API int mathSolQuadEqua(double a, double b, double c, double tol, double x[2]);

/* Real roots of the cubic coef[0]*x^3 + coef[1]*x^2 + coef[2]*x + coef[3].
 *   coef  double[4], highest degree first
 *   tol   passed to mathSolQuadEqua when the cubic degenerates
 *   x     out double[3]
 * Returns 3 (three distinct real roots: x[0] the largest, x[1] the smallest,
 * x[2] the middle one; or a simple root in x[0] and a double root in x[1]
 * and x[2]), 1 (one real root in x[0]), or the result of mathSolQuadEqua on
 * coef + 1 when (abs(coef[1]) + abs(coef[2]) + abs(coef[3])) * 1e-20 >
 * abs(coef[0]) (including 100 for an all-zero equation). Cube roots use the
 * exponent 0.33333333333333, so x^3 = 8 gives slightly less than 2. A pure
 * cube (x - r)^3 yields not-a-number roots with the result 3. */
KORVEX_API int mathSolTriaEqua(const double coef[4], double tol, double x[3]);

/* Real roots of the quartic coef[0]*x^4 + ... + coef[4].
 *   coef  double[5], highest degree first
 *   tol   value tolerance of the quadratic factors (divided by abs(coef[0]))
 *   x     out double[4]; x[0] is set to 0 once the quartic is found
 *         non-degenerate
 * Returns 0 ... 4 roots, each quadratic factor contributing its roots in turn
 * as mathSolQuadEqua orders them (a double root counts once), 100 when every
 * x solves, or the result of mathSolTriaEqua on coef + 1 when
 * (abs(coef[1]) + ... + abs(coef[4])) * 1e-20 > abs(coef[0]).
 * Returns 0 as well when the factorisation degenerates:
 *  - a triple or quadruple root makes the resolvent cubic a pure cube whose
 *    roots are not-a-number, so no usable resolvent root is found;
 *  - both factors would get the same linear coefficient (R < 1e-32).
 * Caution: the biquadratics x^4 + C x^2 + E with E < 0 (x^4 - 1, for one)
 * need exactly that second split; rounding in the resolvent (cube roots with
 * the exponent 0.33333333333333) keeps R near 1e-7, above the limit, and
 * the roots written are then spurious values near +-sqrt(-C/2) or 0, not the
 * true ones: x^4 - x^2 - 2 gives four roots near +-0.7071 instead of
 * +-1.4142, x^4 - 1 two roots near 0 instead of +-1. */
KORVEX_API int mathSolQuarEqua(const double coef[5], double tol, double x[4]);

/* Real roots in [lo, hi] of the polynomial of degree n (1 ... 4).
 *   n       degree; any other value returns 0
 *   coef    double[n + 1], highest degree first
 *   lo, hi  the interval; lo and hi themselves count as roots when the
 *           polynomial is below tol there
 *   tol     value tolerance
 *   roots   out double[n]
 * Returns the number of roots written (at most n), sorted ascending with
 * neighbours closer than 1e-10 merged, or 100 when every x solves (roots
 * untouched). */
KORVEX_API int mathSolUniNEqua(int n, const double* coef, double lo, double hi, double tol,
                               double* roots);

/* Real roots in [lo, hi] of the rational function N(x)/D(x), where x counts
 * as a root when abs(N(x)/D(x)) < tol (a negative or vanishing D gives 0, see
 * mathEvalRPoly).
 *   n       degree of both N and D (1 ... 4); any other value returns 0
 *   num     double[n + 1], N highest degree first
 *   den     double[n + 1], D highest degree first
 *   lo, hi  the interval
 *   tol     value tolerance
 *   roots   out, room for 3*n doubles (the count normally stays at or below n)
 * The candidates are the roots of N (found with tolerance 1e-10), the minima
 * of abs(N/D) below tol between the roots of N - tol*D and of N + tol*D
 * (mathOptMonoMoun), and lo and hi. Returns the number of roots written,
 * sorted ascending, neighbours closer than 1e-10 merged, and any two
 * neighbours with abs(N/D) < tol at their midpoint merged into one (the left
 * one, or the right one when it lies on hi); 100 when the coefficients of N
 * are all negligible (roots untouched).
 * Not re-entrant: the function keeps the degree and the two coefficient
 * pointers in module-level variables while it runs, so two threads must not
 * call it at the same time. */
KORVEX_API int mathSolRatiEqua(int n, const double* num, const double* den, double lo, double hi,
                               double tol, double* roots);

/* Newton iteration for f(x) = c.
 *   f, df  the function and its derivative
 *   c      the target value
 *   x0     the start value
 *   tol    accepted residual abs(c - f(x))
 *   x      out: the last iterate (written on every result)
 * Returns 1 when the residual fell below tol within 32 steps, 800 when the
 * derivative vanished (abs(df) < 1e-20) at an iterate, 0 when 32 steps did
 * not converge. */
KORVEX_API int mathSolUnivEqua(double (*f)(double), double (*df)(double), double c, double x0,
                               double tol, double* x);

/* Angles t in [0, 2*pi) with a*cos(t) + b*cos(t)*sin(t) + c*sin(t) = 0.
 *   a, b, c  coefficients
 *   tol      tolerance of the underlying quartics in tan(t/2) (used doubled)
 *   t        out double[4]
 * Returns the number of angles written (0 ... 4; a fifth one is dropped), or
 * 100 when every angle solves (then t[0] = 0). The angles of u = tan(t/2)
 * (abs(u) < 1.0000000001) come first, then those of t = pi - 2 atan(u)
 * (abs(u) < 0.9999999999), each in the order of the quartic's roots.
 * For b = c = 0 (cos t = 0) both quartics are u^4 - 1, of the degenerate
 * kind described at mathSolQuarEqua: the result is 4 with angles near 2*pi,
 * 0, pi and pi instead of the solutions pi/2 and 3*pi/2. */
KORVEX_API int mathSolAngleByCCSS(double a, double b, double c, double tol, double t[4]);

/* All roots of a*x^3 + b*x^2 + c*x + d, complex ones included.
 *   a, b, c, d  coefficients
 *   wr, wi      out double[3]: real and imaginary parts
 *   n           out: 3, or the lower count when a is negligible
 *               ((abs(b) + abs(c) + abs(d)) * 1e-10 > abs(a)): then the
 *               quadratic b*x^2 + c*x + d gives 2 roots, or, when b is
 *               negligible too, 1 root wr[0] = d/c: the linear step keeps
 *               the sign of d (it is not -d/c) and divides by c even when c
 *               is zero
 * Three real roots come largest, middle, smallest. With one real root it is
 * wr[0], followed by the conjugate pair. An all-zero equation gives
 * not-a-number roots. When the depressed cubic has no
 * linear term (a shifted pure cube plus a constant) the first root wr[0]
 * lacks the shift -b/(3a): it is right only for b = 0; the pair at
 * positions 1, 2 is right. */
KORVEX_API void mathSlvequ3(double a, double b, double c, double d, double* wr, double* wi,
                            int* n);

/* All roots of a*x^4 + b*x^3 + c*x^2 + d*x + e, complex ones included.
 *   a ... e  coefficients
 *   wr, wi   out double[4]: real and imaginary parts
 *   n        out: 4, or the lower degree's count of mathSlvequ3 when a is
 *            negligible ((abs(b) + ... + abs(e)) * 1e-10 > abs(a))
 * Roots 0, 1 come from one monic quadratic factor and roots 2, 3 from the
 * other; within a factor the smaller real root comes first, or the complex
 * pair with its positive imaginary part first. */
KORVEX_API void mathSlvequ4(double a, double b, double c, double d, double e, double* wr,
                            double* wi, int* n);

/* Real roots of a*x^3 + b*x^2 + c*x + d (through mathSlvequ3).
 *   roots  out double[3]
 *   n      out: 1 or 3 (the pair at positions 1, 2 counts as complex when
 *          abs(im) >= 1e-6 and abs(im) / abs(re + im) >= 1e-6). When a is
 *          negligible the real roots of the lower-degree equation (0 ... 2). */
KORVEX_API void mathSlvequR3(double a, double b, double c, double d, double* roots, int* n);

/* Real roots of a*x^4 + ... + e (through mathSlvequ4).
 *   roots  out double[4]
 *   n      out: 0, 2 or 4; each quadratic factor's pair counts as real when
 *          abs(im) < 1e-6 or abs(im) / (abs(re) + abs(im)) < 1e-6. When a is
 *          negligible the real roots of the lower-degree equation. */
KORVEX_API void mathSlvequR4(double a, double b, double c, double d, double e, double* roots,
                             int* n);

/* All roots of the polynomial coef[0] + coef[1]*x + ... + coef[n]*x^n, as the
 * eigenvalues of its companion matrix (mathHQR).
 *   coef    double[n + 1], constant first
 *   n       nominal degree
 *   wr, wi  out double[n]: real and imaginary parts of m roots
 *   m       out: the effective degree, the highest i with abs(coef[i]) >= 1e-10
 *   eps     relative deflation tolerance of the QR iteration (e.g. 1e-14)
 *   maxit   iteration limit per eigenvalue
 * Returns 1 when every root was found, 0 when the iteration did not converge
 * or the work matrix could not be allocated (the roots are then incomplete).
 * The m x m work matrix is allocated and freed inside the call. */
KORVEX_API int mathSlvequN(const double* coef, int n, double* wr, double* wi, int* m, double eps,
                           int maxit);

/* Eigenvalues of an upper Hessenberg matrix (Francis double-shift QR).
 *   H       double[n * n], row-major, upper Hessenberg; destroyed
 *   n       order; 0 returns 1 at once
 *   wr, wi  out double[n]: real and imaginary parts; a complex pair occupies
 *           two consecutive positions, negative imaginary part first
 *   eps     relative tolerance: a subdiagonal element counts as zero when
 *           abs(H[l][l-1]) <= eps * (abs(H[l-1][l-1]) + abs(H[l][l]))
 *   maxit   iteration limit per eigenvalue (or pair)
 * Returns 1 on convergence, 0 when an eigenvalue took more than maxit sweeps
 * (the ones found so far, from the bottom up, are written). The 11th and
 * 21st sweep on one block use an exceptional shift, which breaks the cycle
 * the standard shifts fall into on cyclic matrices (the companion matrix of
 * x^n - c). */
KORVEX_API int mathHQR(double* H, int n, double* wr, double* wi, double eps, int maxit);

/* Value of the polynomial coef[0]*x^n + ... + coef[n] (highest first).
 * Summed from the constant upwards with powers built by repeated
 * multiplication. n < 0 gives 0. */
KORVEX_API double mathEvalPoly(int n, const double* coef, double x);

/* Value of the rational function N(x)/D(x), both of degree n, highest first.
 * Returns 0 when D(x) < 1e-20; the test is signed, so a negative denominator
 * also gives 0. */
KORVEX_API double mathEvalRPoly(int n, const double* num, const double* den, double x);

/* Product of two polynomials given in the same coefficient order.
 *   np, nq  degrees of p and q
 *   p, q    double[np + 1], double[nq + 1]
 *   r       out double[np + nq + 1]; must not overlap p or q. It is cleared
 *           over np + nq + 1 entries first, so with a negative degree it
 *           holds zeros there (nothing is written when np + nq + 1 <= 0) */
KORVEX_API void mathPolyMult(int np, int nq, const double* p, const double* q, double* r);

/* Derivative of the polynomial coef[0] + coef[1]*x + ... + coef[n]*x^n.
 *   k     derivative order; k < 1 writes nothing, k > n writes out[0] = 0
 *   n     degree
 *   coef  double[n + 1], constant first
 *   out   out double[n]: coefficients of the derivative, constant first
 * Each of the k passes differentiates coef into out, so the k-th derivative
 * results only when out is the same array as coef (in-place use); with
 * separate arrays the output is the first derivative whatever k. */
KORVEX_API void mathPolyDeri(int k, int n, const double* coef, double* out);

/* Definite integral over [a, b] of coef[0] + coef[1]*x + ... + coef[n]*x^n.
 * Returns 0 when b - a < 1e-10 (also for b < a); n < 0 counts as 0. */
KORVEX_API double mathPolyIntg(int n, double a, double b, const double* coef);

/* Integrals over [a, b] of products of two polynomials and their derivatives.
 *   n     number of coefficients of p and q (degree n - 1), 0 ... 7
 *   p, q  double[n], constant first
 *   a, b  the interval (an interval shorter than 1e-10 gives zeros)
 *   out   out double[3]: integral of p*q, of p'*q', of p''*q''
 *         (out[2] is written only when n >= 3)
 * Returns 0. For n > 7 nothing is written. */
KORVEX_API int mathIntgPolyMult(int n, const double* p, const double* q, double a, double b,
                                double out[3]);

/* ======================================================================
 * Optimisation
 * ====================================================================== */

/* Minimum of a unimodal function of one variable on [u, v].
 *   f     the function
 *   u, v  the interval ends (either order)
 *   tol   length threshold: the search stops once the remaining interval
 *         is shorter than tol, and after 32 halvings in any case
 *   x     out: abscissa of the returned value (may be null)
 * Each step compares f at the quarter points of the interval and keeps the
 * half around the smallest value; finally the ends and the centre of the
 * last interval are compared. Returns the smallest value found. */
KORVEX_API double mathOptMonoMoun(double (*f)(double), double u, double v, double tol, double* x);
/* ======================================================================
 * Reference frames and double 4x4 matrices
 *
 * A reference frame (MathRFrame) places a local coordinate system in the
 * world: a local point (x, y, z) is the world point
 *     origin + x * xAxis + y * yAxis + z * zAxis.
 * World-to-local conversions take dot products with the axes, so they are
 * only meaningful for orthonormal axes; nothing checks that.
 *
 * Matrices are 16 doubles in one of two layouts, named in each comment:
 *  - row form: rows xAxis, yAxis, zAxis, origin; m[3] = m[7] = m[11] = 0,
 *    m[15] = scale. A point is a row vector multiplied on the left,
 *    translation in m[12..14] (the layout of the float matrices).
 *  - column form, its transpose: m[0..3] = (x.x, y.x, z.x, origin.x),
 *    m[4..7] = (x.y, y.y, z.y, origin.y), m[8..11] = (x.z, y.z, z.z,
 *    origin.z), m[12..14] = 0, m[15] = scale.
 *
 * A gravity frame (MathGFrame) is a reference tetrahedron used to convert
 * between Cartesian and barycentric coordinates.
 *
 * Homogeneous points are double[4] (x, y, z, w) standing for (x/w, y/w, z/w).
 * ====================================================================== */

/* A reference frame: thirteen doubles in this order. */
typedef struct MathRFrame {
    double xAxis[3];  /* unit X direction in world coordinates */
    double yAxis[3];  /* unit Y direction in world coordinates */
    double zAxis[3];  /* unit Z direction in world coordinates */
    double origin[3]; /* origin in world coordinates */
    double scale;     /* 1 in every frame the library builds */
} MathRFrame;

/* A gravity frame: a reference tetrahedron, thirteen doubles. */
typedef struct MathGFrame {
    double p0[3];  /* first vertex of the base triangle */
    double p1[3];  /* second vertex of the base triangle */
    double p2[3];  /* third vertex of the base triangle */
    double p3[3];  /* apex above the centroid of the base */
    double volume; /* volume of the tetrahedron p0 p1 p2 p3 */
} MathGFrame;

/* ---- Frame records and algebra ------------------------------------- */

/* Sets f to the identity frame (axes along X, Y, Z, origin 0, scale 1).
 *   f  frame to initialise; a null pointer is ignored */
KORVEX_API void mathInitRFrame(MathRFrame* f);

/* Moves the frame: origin += v. Axes and scale are unchanged.
 *   v  double[3] displacement
 *   f  frame, modified in place */
KORVEX_API void mathMoveRFrame(const double v[3], MathRFrame* f);

/* Moves the frame's origin by v exactly like mathMoveRFrame; the factor s is
 * not used, and the axes and scale stay as they are.
 *   v  double[3] displacement
 *   s  unused
 *   f  frame, modified in place */
KORVEX_API void mathScaleRFrame(const double v[3], double s, MathRFrame* f);

/* Rotates the frame by angle (right-handed) about the axis through point b
 * with unit direction a: the origin is rotated as a point (mathRotPnt), the
 * three axes as vectors (mathRotVec).
 *   a      double[3] unit axis direction
 *   b      double[3] point on the axis
 *   angle  radians
 *   f      frame, modified in place */
KORVEX_API void mathRotateRFrame(const double a[3], const double b[3], double angle, MathRFrame* f);

/* Column-form matrix of a frame.
 *   f  frame
 *   m  out double[16], column form
 * Does nothing when either pointer is null. */
KORVEX_API void mathGetMatrixFromRFrame(const MathRFrame* f, double m[16]);

/* Row-form matrix of a frame. Neither pointer is checked.
 *   f  frame
 *   m  out double[16], row form */
KORVEX_API void mathGetMatrixFromRFrame2(const MathRFrame* f, double m[16]);

/* Frame from a column-form matrix (the inverse of mathGetMatrixFromRFrame;
 * the scale is taken from m[15]).
 *   m  double[16], column form
 *   f  out frame
 * Does nothing when either pointer is null. */
KORVEX_API void mathGetRFrameFromMatrix(const double m[16], MathRFrame* f);

/* Row-form matrix of a frame, like mathGetMatrixFromRFrame2.
 *   f  frame
 *   m  out double[16], row form
 * Does nothing when f is null. */
KORVEX_API void mathMatxGetRFrame(const MathRFrame* f, double m[16]);

/* Product of two 4x4 matrices, out = a . b (ordinary row-by-column product,
 * each sum started at 0 and accumulated in index order).
 *   a, b  double[16]
 *   out   out double[16]; may be the same array as a or b */
KORVEX_API void mathMatxMult4x4(const double a[16], const double b[16], double out[16]);

/* Frame product: frame b, given in the coordinates of frame a, expressed in
 * world coordinates (the frame of Ma . Mb with the column-form matrices).
 *   a, b  frames
 *   out   out frame; may be a or b
 * Does nothing unless all three pointers are set. */
KORVEX_API void mathMultRFrame(const MathRFrame* a, const MathRFrame* b, MathRFrame* out);

/* Inverse of an orthonormal frame: the frame that takes world coordinates
 * to f's local coordinates. Its axes are the columns of f's axis block, its
 * origin (-origin . xAxis, -origin . yAxis, -origin . zAxis), its scale 1.
 *   f    frame (orthonormal axes assumed)
 *   inv  out frame; may be f
 * Neither pointer is checked. */
KORVEX_API void mathInvsRFrame(const MathRFrame* f, MathRFrame* inv);

/* Frame b expressed in the coordinates of frame a: the product of the
 * inverse of a with b (mathEvalRFrame(f, f) is the identity).
 *   a, b  frames (a orthonormal)
 *   out   out frame; may be a or b
 * a must not be null; out is left untouched when b or out is null. */
KORVEX_API void mathEvalRFrame(const MathRFrame* a, const MathRFrame* b, MathRFrame* out);

/* Builds a frame from an origin, a Z direction and a reference direction:
 * zAxis = unit(z) (tolerance 1e-8), xAxis = unit(r x zAxis),
 * yAxis = unit(zAxis x xAxis) (tolerance 1e-10), scale 1.
 *   o  double[3] origin
 *   z  double[3] Z direction (need not be unit)
 *   r  double[3] reference direction, not parallel to z
 *   f  out frame
 * Returns 1, or 0 as soon as one of the normalisations fails (z too short,
 * r parallel to z); f is then partly written. */
KORVEX_API int mathDerivFrame(const double o[3], const double z[3], const double r[3], MathRFrame* f);

/* Equality of two frames within tol: the origins at most tol apart and each
 * pair of like axes at most tol radians apart (the one value serves as a
 * distance and as an angle). The scale is not compared.
 *   a, b  frames
 *   tol   tolerance (length and angle)
 * Returns 1 if equal, else 0. */
KORVEX_API int mathRFrameEqu(const MathRFrame* a, const MathRFrame* b, double tol);

/* Whether f is the identity frame: each of its thirteen values differs from
 * the identity frame's by less than 1e-12.
 *   f  frame or null
 * Returns 1 if so, 0 otherwise or for a null pointer. */
KORVEX_API int mathIsRFrameUnit(const MathRFrame* f);

/* Allocates an array of n pointers, each to a new frame whose scale is 1
 * (the other fields are not initialised).
 *   n  number of frames (at least 1)
 * Returns the array, or null when n < 1 or an allocation fails (the frames
 * already allocated are freed again). Release it with mathFreRFrameStr(n, array). */
KORVEX_API MathRFrame** mathNewRFrameStr(int n);

/* Frees an array made by mathNewRFrameStr: its n frames and the array.
 *   n    number of frames in the array
 *   arr  array or null (ignored) */
KORVEX_API void mathFreRFrameStr(int n, MathRFrame** arr);

/* ---- Conversions with a frame -------------------------------------- */
/* In all of them the output may be the same array as the input. */

/* Local point to world: q = origin + p.x xAxis + p.y yAxis + p.z zAxis.
 *   f  frame;  p  double[3] local;  q  out double[3] world */
KORVEX_API void mathTransLocalPnt3D(const MathRFrame* f, const double p[3], double q[3]);

/* World point to local: with d = p - origin, q = (d.xAxis, d.yAxis, d.zAxis).
 *   f  frame;  p  double[3] world;  q  out double[3] local */
KORVEX_API void mathTransWorldPnt3D(const MathRFrame* f, const double p[3], double q[3]);

/* Local point of the frame's XY plane to world: q = origin + p.x xAxis +
 * p.y yAxis.
 *   f  frame;  p  double[2] local;  q  out double[3] world */
KORVEX_API void mathTransLocalPnt2D(const MathRFrame* f, const double p[2], double q[3]);

/* World point to the frame's XY plane: with d = p - origin,
 * q = (d.xAxis, d.yAxis) (the local z is dropped).
 *   f  frame;  p  double[3] world;  q  out double[2] local */
KORVEX_API void mathTransWorldPnt3DTo2D(const MathRFrame* f, const double p[3], double q[2]);

/* Local vector to world: w = v.x xAxis + v.y yAxis + v.z zAxis.
 *   f  frame;  v  double[3] local;  w  out double[3] world */
KORVEX_API void mathTransLocalVec3D(const MathRFrame* f, const double v[3], double w[3]);

/* World vector to local: w = (v.xAxis, v.yAxis, v.zAxis).
 *   f  frame;  v  double[3] world;  w  out double[3] local */
KORVEX_API void mathTransWorldVec3D(const MathRFrame* f, const double v[3], double w[3]);

/* Local vector of the frame's XY plane to world: w = v.x xAxis + v.y yAxis.
 *   f  frame;  v  double[2] local;  w  out double[3] world */
KORVEX_API void mathTransLocalVec2D(const MathRFrame* f, const double v[2], double w[3]);

/* Local homogeneous points to world. Each point (x, y, z, w) is divided by
 * its weight, converted with mathTransLocalPnt3D, multiplied by the weight
 * again, and the weight is copied.
 *   n    number of points
 *   f    frame
 *   in   double[4 n] homogeneous points
 *   out  out double[4 n]; may be in
 * Returns 1 (also for n < 1, writing nothing), or 0 at the first point whose
 * weight is below 1e-10 in absolute value; the earlier points are written. */
KORVEX_API int mathTransLocalStr4D(int n, const MathRFrame* f, const double* in, double* out);

/* World homogeneous points to local, as mathTransLocalStr4D but through
 * mathTransWorldPnt3D. Same arguments and results. */
KORVEX_API int mathTransWorldStr4D(int n, const MathRFrame* f, const double* in, double* out);

/* ---- Conversions with separate axes -------------------------------- */
/* The axes are unit vectors (not checked). Outputs may alias inputs. */

/* World to local in the plane frame with origin o and X axis x; the Y axis
 * is x turned by +90 degrees. With d = p - o:
 * q = (d.x x.x + d.y x.y, d.y x.x - d.x x.y), i.e. (along, left of x).
 *   o, x, p  double[2];  q  out double[2] */
KORVEX_API void mathTransWorldPnt2DByOX(const double o[2], const double x[2], const double p[2], double q[2]);

/* Local to world in the same plane frame:
 * q = (o.x + p.x x.x - p.y x.y, o.y + p.x x.y + p.y x.x).
 *   o, x, p  double[2];  q  out double[2] */
KORVEX_API void mathTransLocalPnt2DByOX(const double o[2], const double x[2], const double p[2], double q[2]);

/* World point to the XY plane of the frame (o, x, y):
 * q = ((p - o).x, (p - o).y).
 *   o, x, y, p  double[3];  q  out double[2]
 * Returns q. */
KORVEX_API double* mathTransWorldPnt3DTo2DByOXY(const double o[3], const double x[3], const double y[3],
                                                const double p[3], double q[2]);

/* World point to the frame (o, x, y, z):
 * q = ((p - o).x, (p - o).y, (p - o).z).
 *   o, x, y, z, p  double[3];  q  out double[3]
 * Returns q. */
KORVEX_API double* mathTransWorldPnt3DByOXYZ(const double o[3], const double x[3], const double y[3],
                                             const double z[3], const double p[3], double q[3]);

/* Local point of the frame (o, x, y, z) to world:
 * q = o + p.x x + p.y y + p.z z.
 *   o, x, y, z, p  double[3];  q  out double[3]
 * Returns q. */
KORVEX_API double* mathTransLocalPnt3DByOXYZ(const double o[3], const double x[3], const double y[3],
                                             const double z[3], const double p[3], double q[3]);

/* World vector to the axes (x, y, z): w = (v.x, v.y, v.z).
 *   x, y, z, v  double[3];  w  out double[3]
 * Returns w. */
KORVEX_API double* mathTransWorldVec3DByXYZ(const double x[3], const double y[3], const double z[3],
                                            const double v[3], double w[3]);

/* Local vector of the axes (x, y, z) to world: w = v.x x + v.y y + v.z z.
 *   x, y, z, v  double[3];  w  out double[3]
 * Returns w. */
KORVEX_API double* mathTransLocalVec3DByXYZ(const double x[3], const double y[3], const double z[3],
                                            const double v[3], double w[3]);

/* ---- Row-form matrices on points and frames ------------------------ */

/* q = (p.x, p.y, p.z, 1) . m, first three components.
 *   m  double[16] row form;  p  double[3];  q  out double[3] (may be p) */
KORVEX_API void mathMatxPnt3D(const double m[16], const double p[3], double q[3]);

/* Homogeneous point through a row-form matrix: the Cartesian point p/w is
 * transformed as by mathMatxPnt3D, multiplied by w, and w is copied.
 *   m  double[16] row form;  p  double[4];  q  out double[4] (may be p)
 * When w < 1e-10 (so for every negative weight too) q is left untouched. */
KORVEX_API void mathMatxPnt4D(const double m[16], const double p[4], double q[4]);

/* Vector through a row-form matrix: the image of the point v minus the
 * image of the origin, so the translation cancels.
 *   m  double[16] row form;  v  double[3];  w  out double[3] (may be v) */
KORVEX_API void mathMatxVec3D(const double m[16], const double v[3], double w[3]);

/* Frame through a row-form matrix: out.origin = image of f.origin, out's X
 * and Y axes the images of f's (mathMatxVec3D, not renormalised), out's Z
 * axis unit(X x Y) (left as it was in out when X and Y are parallel),
 * out.scale = 1.
 *   m    double[16] row form
 *   f    frame
 *   out  out frame; may be f
 * Does nothing when f or out is null. */
KORVEX_API void mathMatxRFrame(const double m[16], const MathRFrame* f, MathRFrame* out);

/* Product of two 4x4 matrices, out = a . b: apply a, then b.
 *   a, b  double[16];  out  out double[16] (may be a or b) */
KORVEX_API void mathMatxMult16(const double a[16], const double b[16], double out[16]);

/* Row-form translation by v: the identity with m[12..14] = v.
 *   v  double[3];  m  out double[16] */
KORVEX_API void mathMatxMove(const double v[3], double m[16]);

/* Row-form scaling about the point c by the factors s:
 * diag(s0, s1, s2, 1) with m[12 + i] = (1 - s_i) c_i.
 *   c  double[3] fixed point;  s  double[3] factors;  m  out double[16] */
KORVEX_API void mathMatxScale(const double c[3], const double s[3], double m[16]);

/* Row-form rotation by angle (right-handed) about the axis through b with
 * unit direction a (the argument order of mathRotateRFrame).
 *   a  double[3] unit direction;  b  double[3] axis point
 *   angle  radians;  m  out double[16] */
KORVEX_API void mathMatxRotate(const double a[3], const double b[3], double angle, double m[16]);

/* Row-form reflection in the plane through p with unit normal n.
 *   p  double[3];  n  double[3] unit;  m  out double[16] */
KORVEX_API void mathMatxMirror(const double p[3], const double n[3], double m[16]);

/* Row-form matrix taking world coordinates to f's local coordinates (the
 * matrix of mathInvsRFrame(f)).
 *   f  frame (orthonormal);  m  out double[16]
 * Does nothing when f is null. */
KORVEX_API void mathMatxWorldToRFrame(const MathRFrame* f, double m[16]);

/* Row-form matrix of mathEvalRFrame(a, b): takes b's local coordinates to
 * a's local coordinates.
 *   a, b  frames (a orthonormal), neither null;  m  out double[16]
 * Returns 0 always. */
KORVEX_API int mathMatxRFrameToRFrame(const MathRFrame* a, const MathRFrame* b, double m[16]);

/* ---- Gravity frames ------------------------------------------------- */

/* Builds the reference tetrahedron on the triangle p0 p1 p2: with
 * n = (p1 - p0) x (p2 - p0) and h = sqrt(|n|), the apex is
 * p3 = (p0 + p1 + p2) / 3 + n / h (height h above the centroid) and the
 * volume h^3 / 6.
 *   p0, p1, p2  double[3]
 *   g           out gravity frame
 * Returns 1, or 0 when h < 1e-20 (collinear points); p0, p1, p2 are stored
 * in g in either case. */
KORVEX_API int mathGetGFrame3Pnt(const double p0[3], const double p1[3], const double p2[3], MathGFrame* g);

/* Barycentric to Cartesian:
 * q = b0 p0 + b1 p1 + b2 p2 + (1 - b0 - b1 - b2) p3.
 *   g  gravity frame;  b  double[3];  q  out double[3] (may be b) */
KORVEX_API void mathTransGraviPnt3D(const MathGFrame* g, const double b[3], double q[3]);

/* Cartesian to barycentric: q = (vol(p, p1, p2, p3), vol(p0, p, p2, p3),
 * vol(p0, p1, p, p3)) / volume with signed volumes (mathCalPyramidVolume);
 * (1, 0, 0) when |volume| < 1e-30.
 *   g  gravity frame;  p  double[3];  q  out double[3] (may be p) */
KORVEX_API void mathTransRectaPnt3D(const MathGFrame* g, const double p[3], double q[3]);

/* Barycentric homogeneous points to Cartesian: each point is divided by its
 * weight, converted with mathTransGraviPnt3D, multiplied by the weight, and
 * the weight is copied.
 *   n    number of points
 *   g    gravity frame
 *   in   double[4 n]
 *   out  out double[4 n]; may be in
 * Returns 1 (also for n < 1), or 0 at the first point whose weight is below
 * 1e-10 in absolute value; the earlier points are written. */
KORVEX_API int mathTransGraviStr4D(int n, const MathGFrame* g, const double* in, double* out);

/* Cartesian homogeneous points to barycentric, as mathTransGraviStr4D but
 * through mathTransRectaPnt3D. Same arguments and results. */
KORVEX_API int mathTransRectaStr4D(int n, const MathGFrame* g, const double* in, double* out);
/* ======================================================================
 * Lines and planes
 *
 * A line is given either by a point L and a unit direction D (the caller
 * guarantees the unit length; these functions do not normalise it), or by
 * two points A and B (parameter 0 at A, 1 at B). A plane is a point P0 and a
 * unit normal N; the signed distance of a point P is (P - P0) . N, positive
 * on the side into which N points. In the plane, "left" of a direction D is
 * the side of (-Dy, Dx), and signed distances are positive on the left.
 *
 * distTol is a distance tolerance; paraTol a parallelism tolerance compared
 * with the length of a cross product of unit vectors (the sine of the angle
 * between them). All tolerance tests are strict: a quantity counts as zero
 * when tol > quantity.
 *
 * Result codes: 1 one point / success, 2 parallel and apart (for
 * mathChkPntLin2D: on the line), 3 left (mathChkPntLin2D only), 4 coincident
 * or overlapping (for mathChkPntLin2D: on the right), 5 skew 3D lines,
 * 800 degenerate input or vanishing denominator, 801 mathInt3Pln,
 * 0 no / false, -4 mathGetLinDirLen on coincident points.
 *
 * No function allocates memory or keeps a pointer. Unless stated otherwise,
 * every output array may be the same array as any input.
 * ====================================================================== */

/* ---- Lines in the plane ---------------------------------------------- */

/* Point of the line (l, d) at parameter t.
 *   l, d  double[2]: point on the line, unit direction
 *   t     parameter
 *   p     out double[2]: l + t d */
KORVEX_API void mathEvalLin2D(const double l[2], const double d[2], double t, double p[2]);

/* Signed distance of p from the line (l, d), d of unit length.
 *   p, l, d  double[2]
 * Returns d x (p - l) = dx (py - ly) - dy (px - lx): positive on the left. */
KORVEX_API double mathDistPntLin2D(const double p[2], const double l[2], const double d[2]);

/* Signed distance of p from the line through a and b (positive on the left
 * of a -> b).
 *   p, a, b  double[2]
 * If |b - a| < 1e-8 the line is degenerate and the unsigned distance from p
 * to a is returned instead. */
KORVEX_API double mathDistPntLin2DEx(const double p[2], const double a[2], const double b[2]);

/* Foot of the perpendicular from p onto the line (l, d), d of unit length.
 *   p, l, d  double[2]
 *   q        out double[2]: l + ((p - l) . d) d */
KORVEX_API void mathPrjPntLin2D(const double p[2], const double l[2], const double d[2], double q[2]);

/* Foot of the perpendicular from p onto the line through a and b.
 *   p, a, b  double[2]
 *   q        out double[2]
 * Returns 1 with the foot in q, or 0 if |b - a| < 1e-10 (degenerate line),
 * in which case q = a. */
KORVEX_API int mathPrjPntLin2DEx(const double p[2], const double a[2], const double b[2], double q[2]);

/* Side of point p relative to the directed line a -> b (2D).
 *   p, a, b  double[2]
 *   tol      distance tolerance
 * Returns 800 if |b - a| < 1e-10 (degenerate line), 2 if the point lies on
 * the line (tol > |signed distance|, strict), 3 if it lies on the left,
 * 4 if it lies on the right. Writes nothing. */
KORVEX_API int mathChkPntLin2D(const double p[2], const double a[2], const double b[2], double tol);

/* Unit left normal of the directed line a -> b: (ay - by, bx - ax) / length.
 *   a, b  double[2]
 *   n     out double[2]
 * Returns 1, or 0 if the normal is shorter than 1e-10; n then holds the
 * unnormalised normal. */
KORVEX_API int mathGetLinLeftDir2D(const double a[2], const double b[2], double n[2]);

/* Unit right normal of the directed line a -> b: (by - ay, ax - bx) / length.
 *   a, b  double[2]
 *   n     out double[2]
 * Returns 1, or 0 if the normal is shorter than 1e-10; n then holds the
 * unnormalised normal. */
KORVEX_API int mathGetLinRightDir2D(const double a[2], const double b[2], double n[2]);

/* Direction and length of a -> b.
 *   a, b  double[2]
 *   tol   minimum length
 *   d     out double[2]: b - a, made unit on success
 *   len   out: |b - a|, always written
 * Returns 1, or 0 if tol > |b - a|; d then holds the unnormalised b - a. */
KORVEX_API int mathGetLinDirLen2D(const double a[2], const double b[2], double tol, double d[2], double *len);

/* Intersection of the lines (l1, d1) and (l2, d2), directions of unit length.
 *   l1, d1, l2, d2  double[2]
 *   distTol         distance tolerance for coincident lines
 *   paraTol         parallelism tolerance on |d1 x d2|
 *   x               out double[2]
 * Returns 1 with the intersection point in x; 4 if the lines are parallel
 * and coincident within distTol, x then being the mean of the feet of the
 * midpoint of l1 and l2 on both lines; 2 if parallel and apart, x untouched. */
KORVEX_API int mathIntLin2D(const double l1[2], const double d1[2], const double l2[2], const double d2[2],
                            double distTol, double paraTol, double x[2]);

/* Intersection of the lines a1 -> b1 and a2 -> b2.
 *   a1, b1, a2, b2  double[2]
 *   distTol, paraTol, x  as for mathIntLin2D
 * Returns 800 (x untouched) if either |bi - ai| is below distTol, else the
 * result of mathIntLin2D on the unit directions. */
KORVEX_API int mathIntLin2DEx(const double a1[2], const double b1[2], const double a2[2], const double b2[2],
                              double distTol, double paraTol, double x[2]);

/* ---- Lines in space -------------------------------------------------- */

/* Unsigned distance of p from the line (l, d), d of unit length.
 *   p, l, d  double[3] */
KORVEX_API double mathDistPntLin(const double p[3], const double l[3], const double d[3]);

/* Unsigned distance of p from the line through a and b.
 *   p, a, b  double[3]
 * If |b - a| < 1e-10 the distance from p to a is returned. */
KORVEX_API double mathDistPntLinEx(const double p[3], const double a[3], const double b[3]);

/* Whether p lies on the line through a and b.
 *   p, a, b  double[3]
 *   tol      distance tolerance
 * Returns 1 if tol > mathDistPntLinEx(p, a, b) (strict), else 0. */
KORVEX_API int mathChkPntLin(const double p[3], const double a[3], const double b[3], double tol);

/* Direction and length of a -> b in space.
 *   a, b  double[3]
 *   tol   minimum length
 *   d     out double[3]: b - a, made unit on success
 *   len   out: |b - a|, always written
 * Returns 1, or -4 if tol > |b - a|; d then holds the unnormalised b - a.
 * (The planar form mathGetLinDirLen2D returns 0 in that case.) */
KORVEX_API int mathGetLinDirLen(const double a[3], const double b[3], double tol, double d[3], double *len);

/* Foot of the perpendicular from p onto the line (l, d), d of unit length.
 *   p, l, d  double[3]
 *   q        out double[3]: l + ((p - l) . d) d; may alias any input */
KORVEX_API void mathPrjPntLin(const double p[3], const double l[3], const double d[3], double q[3]);

/* Foot of the perpendicular from p onto the line through a and b.
 *   p, a, b  double[3]
 *   q        out double[3]
 * Returns 1 with the foot in q, or 0 if |b - a| < 1e-10 (degenerate line),
 * in which case q = a. */
KORVEX_API int mathPrjPntLinEx(const double p[3], const double a[3], const double b[3], double q[3]);

/* Foot of the perpendicular from p onto the line through a and b, with its
 * parameter (0 at a, 1 at b).
 *   p, a, b  double[3]
 *   q        out double[3]
 *   t        out parameter of q
 * If |b - a| < 1e-10 the line is degenerate: q = a and t = 0. */
KORVEX_API void mathPrjPntLineEx(const double p[3], const double a[3], const double b[3], double q[3], double *t);

/* Parameter of p on the line (l, d), d of unit length; p is assumed to lie
 * on the line.
 *   p, l, d  double[3]
 * Uses the first of x, y, z whose direction component exceeds 0.5 in
 * absolute value: t = (pk - lk) / dk. Returns 0 if none does (only possible
 * when d is not a unit vector). */
KORVEX_API double mathCalPntLinPara(const double p[3], const double l[3], const double d[3]);

/* Parameter of p on the line through a and b (0 at a, 1 at b); p is assumed
 * to lie on the line.
 *   p, a, b  double[3]
 * The axis is picked by scanning x, y, z and keeping the signed difference
 * m = bk - ak: a later axis replaces the kept one when |bk - ak| > m. Returns
 * (pk - ak) / m, or 0 if |m| <= 1e-8. Since m is compared with its sign, a
 * negative difference on an earlier axis always gives way to the next axis:
 * for a = (0, 0, 0), b = (-4, 0, 0) the y axis is kept and the result is 0. */
KORVEX_API double mathCalPntLinSegPara(const double p[3], const double a[3], const double b[3]);

/* Intersection (closest points) of the lines (l1, d1) and (l2, d2),
 * directions of unit length.
 *   l1, d1, l2, d2  double[3]
 *   distTol         distance tolerance
 *   paraTol         parallelism tolerance on |d1 x d2|
 *   c1, c2          out double[3]: points on line 1 and line 2
 * Returns
 *   1    the lines meet: c1 and c2 are the closest points, within distTol;
 *   5    skew lines: c1 and c2 are the feet of the common perpendicular;
 *   4    parallel and coincident within distTol; c1 and c2 are the feet of
 *        the midpoint of l1 and l2 on the two lines;
 *   2    parallel and apart; c1 and c2 as for 4;
 *   800  the closest-point denominators vanish (below 1e-100: the
 *        directions are parallel although paraTol did not say so); c1 and
 *        c2 untouched, or c1 alone written if only the second one does. */
KORVEX_API int mathIntLin(const double l1[3], const double d1[3], const double l2[3], const double d2[3],
                          double distTol, double paraTol, double c1[3], double c2[3]);

/* Intersection of the lines a1 -> b1 and a2 -> b2 in space.
 *   a1, b1, a2, b2       double[3]
 *   distTol, paraTol, c1, c2  as for mathIntLin
 * Returns 800 (c1, c2 untouched) if either |bi - ai| is below distTol, else
 * the result of mathIntLin on the unit directions. */
KORVEX_API int mathIntLinEx(const double a1[3], const double b1[3], const double a2[3], const double b2[3],
                            double distTol, double paraTol, double c1[3], double c2[3]);

/* Intersection (closest points) of the lines a1 -> b1 and a2 -> b2, with the
 * parameters of the closest points (0 at ai, 1 at bi).
 *   a1, b1, a2, b2  double[3]
 *   distTol         distance tolerance
 *   paraTol         compared with |(b1 - a1) x (b2 - a2)|, the cross product
 *                   of the raw, unnormalised directions
 *   c1, c2          out double[3]: points on line 1 and line 2
 *   t1, t2          out parameters of c1 and c2 (written for 1 and 5 only)
 *   dist            out |c2 - c1| (written for 1, 2, 4 and 5)
 * Returns 800 (nothing written) if either |bi - ai| is below distTol;
 * 1 if the closest points lie within distTol, 5 if not (skew);
 * for parallel lines 4 if coincident within distTol, else 2. In the parallel
 * case c1 and c2 are the midpoint of a1 and a2 projected with the raw
 * directions as if they were unit vectors, so they are the true feet only
 * when both directions have unit length. */
KORVEX_API int mathIntLine(const double a1[3], const double b1[3], const double a2[3], const double b2[3],
                           double distTol, double paraTol, double c1[3], double c2[3],
                           double *t1, double *t2, double *dist);

/* Common plane of the lines (l1, d1) and (l2, d2), directions of unit length.
 *   l1, d1, l2, d2    double[3]
 *   distTol, paraTol  as for mathIntLin
 *   p                 out double[3]: point of the plane
 *   n                 out double[3]: unit normal of the plane
 * Returns
 *   1  the lines are coplanar and the plane is determined. Crossing lines:
 *      p is the intersection point on line 1 and n = unit(d1 x d2); if
 *      |d1 x d2| < 1e-10 (only when paraTol <= 1e-10) n is left untouched
 *      and only p is written. Distinct parallel lines: p = l1 and
 *      n = unit(d1 x unit(l2 - l1));
 *   2  coplanar but the plane is not determined: coincident lines, or
 *      parallel lines whose step l2 - l1 or its cross product with d1 is
 *      shorter than 1e-10; p and n untouched;
 *   0  skew lines or a degenerate configuration; p and n untouched. */
KORVEX_API int mathIsLinCoplanar(const double l1[3], const double d1[3], const double l2[3], const double d2[3],
                                 double distTol, double paraTol, double p[3], double n[3]);

/* ---- Planes ---------------------------------------------------------- */

/* Unsigned distance of p from the plane (p0, n), n of unit length.
 *   p, p0, n  double[3]
 * Returns |(p - p0) . n|. */
KORVEX_API double mathDistPntPln(const double p[3], const double p0[3], const double n[3]);

/* Signed distance of p from the plane (p0, n), n of unit length.
 *   p, p0, n  double[3]
 * Returns (p - p0) . n, positive on the side into which n points. */
KORVEX_API double mathDistPntPlnSide(const double p[3], const double p0[3], const double n[3]);

/* Projection of p onto the plane (p0, n), n of unit length.
 *   p, p0, n  double[3]
 *   q         out double[3]: p + ((p0 - p) . n) n */
KORVEX_API void mathPrjPntPln(const double p[3], const double p0[3], const double n[3], double q[3]);

/* Component of v parallel to the plane with unit normal n.
 *   v, n  double[3]
 *   w     out double[3]: v - (v . n) n */
KORVEX_API void mathPrjVecPln(const double v[3], const double n[3], double w[3]);

/* Whether the line (l, d) lies in the plane (p0, n).
 *   l, d, p0, n  double[3]
 *   tol          distance tolerance
 * Returns 1 if both l and l + 100 d lie closer to the plane than tol
 * (strict), else 0. The second point is always taken at parameter 100, so
 * the answer depends on the length of d. */
KORVEX_API int mathIsLinOnPln(const double l[3], const double d[3], const double p0[3], const double n[3],
                              double tol);

/* Intersection of the line (l, d) with the plane (p0, n).
 *   l, d, p0, n  double[3]
 *   distTol      distance tolerance
 *   paraTol      parallelism tolerance on |d . n|
 *   x            out double[3]
 * Returns 1 with the intersection point in x; for a line parallel to the
 * plane x = l and the result is 4 if the line lies in the plane (within
 * distTol), else 2. */
KORVEX_API int mathIntLinPln(const double l[3], const double d[3], const double p0[3], const double n[3],
                             double distTol, double paraTol, double x[3]);

/* Intersection of the segment a -> b with the plane (p0, n).
 *   a, b, p0, n  double[3]
 *   tol          distance tolerance
 *   x1, x2       out double[3]
 *   t1, t2       out segment parameters of x1, x2 (0 at a, 1 at b)
 * Returns 4 if both ends lie within tol of the plane: x1 = a, x2 = b,
 * t1 = 0, t2 = 1. Returns 1 with one point in x1 and t1 if exactly one end
 * lies within tol (that end) or the segment crosses the plane. Returns 0 if
 * the segment does not reach the plane. x2 and t2 are written only for 4;
 * nothing is written for 0. */
KORVEX_API int mathIntSegmPln(const double a[3], const double b[3], const double p0[3], const double n[3],
                              double tol, double x1[3], double x2[3], double *t1, double *t2);

/* Whether the planes (p1, n1) and (p2, n2) coincide.
 *   p1, n1, p2, n2  double[3], normals of unit length
 *   distTol, paraTol  tolerances
 * Returns 1 if |n1 x n2| < paraTol and |(p1 - p2) . n1| < distTol, else 0. */
KORVEX_API int mathIsPlnOverlap(const double p1[3], const double n1[3], const double p2[3], const double n2[3],
                                double distTol, double paraTol);

/* Intersection line of the planes (p1, n1) and (p2, n2).
 *   p1, n1, p2, n2  double[3], normals of unit length
 *   distTol         distance tolerance for coincident planes
 *   paraTol         parallelism tolerance on |n1 x n2|
 *   x               out double[3]: point of the line with one coordinate 0
 *   d               out double[3]: n1 x n2, made unit for result 1
 * Returns 1 with the line (x, d). For parallel planes d holds the short,
 * unnormalised n1 x n2, x is untouched and the result is 4 if the planes
 * coincide within distTol, else 2. */
KORVEX_API int mathIntPln(const double p1[3], const double n1[3], const double p2[3], const double n2[3],
                          double distTol, double paraTol, double x[3], double d[3]);

/* Common point of the planes (p1, n1), (p2, n2) and (p3, n3).
 *   p1, n1, p2, n2, p3, n3  double[3]
 *   tol   the system is singular when its determinant is below tol * tol
 *   x     out double[3]: the common point, written only when the system is
 *         not singular
 * Always returns 801, for a singular system as well: the caller cannot tell
 * from the result whether x was written, so preset x if that matters. */
KORVEX_API int mathInt3Pln(const double p1[3], const double n1[3], const double p2[3], const double n2[3],
                           const double p3[3], const double n3[3], double tol, double x[3]);
/* ======================================================================
 * Triangles
 *
 * Tests and measures on triangles given by their vertices A, B, C
 * (double[2] in the plane, double[3] in space): the origin or a point in a
 * planar triangle, barycentric weights, orientation, shape quality, area,
 * volume, normal, incentre, circumcentre, centroid, distance to a plane,
 * and the zero line of a linear function over a triangle whose vertices
 * carry vectors of any dimension n.
 *
 * Barycentric weights are double[3] (w0, w1, w2) for the vertices in
 * argument order; they sum to 1.
 * ====================================================================== */

/* ---- Origin and point in a planar triangle ------------------------- */

/* Whether the origin lies in the triangle ABC, by crossings of the edges
 * with the x axis. The boundary within tol counts as inside.
 *   a, b, c  double[2]
 *   tol      distance tolerance
 * Returns 1 inside, 0 outside, 800 when all three vertices lie on the x axis
 * (|y| < tol). The box test comes first: 0 when all x > tol, all x < -tol,
 * all y > tol or all y < -tol, even for three vertices on the axis. A
 * triangle that touches the x axis only at a vertex through the origin while
 * its other vertices lie on one side counts as outside. */
KORVEX_API int mathChkOriInTri2D(const double a[2], const double b[2], const double c[2], double tol);

/* The same test for the quadrilateral ABCD (edges AB, BC, CD, DA).
 *   a, b, c, d  double[2]
 *   tol         distance tolerance
 * Returns 1 inside, 0 outside, 800 when all four vertices lie on the x axis
 * (after the same box test, which gives 0 first). */
KORVEX_API int mathChkOriInQuad2D(const double a[2], const double b[2], const double c[2], const double d[2],
                                  double tol);

/* Whether the origin lies in the triangle ABC, with its barycentric weights.
 * After the box test of mathChkOriInTri2D: a vertex closer than tol to the
 * origin (A, B, C in this order) gets weight 1; then an edge PQ that the
 * origin lies on, |P| + |Q| < |PQ| + tol (AB, AC, CB in this order), gets
 * weight |Q| / (|P| + |Q|) at P and the rest at Q; otherwise the weights
 * are those of mathCalTri2DGCO.
 *   a, b, c  double[2]
 *   tol      distance tolerance
 *   w        out double[3] weights
 * Returns 1 if the origin is inside (w written), 0 if not. w is untouched
 * when the triangle's box misses the origin or the triangle is degenerate
 * (determinant below 1e-20); otherwise the weights outside [0, 1] that made
 * the result 0 are written. */
KORVEX_API int mathChkOriInTri2DEx(const double a[2], const double b[2], const double c[2], double tol,
                                   double w[3]);

/* Barycentric weights of p in the triangle ABC.
 *   a, b, c, p  double[2]
 *   w           out double[3]
 * Returns 1, or 0 (w untouched) when the determinant
 * (By - Cy)(Ax - Cx) - (Ay - Cy)(Bx - Cx) is below 1e-20 in absolute value. */
KORVEX_API int mathCalTri2DGCP(const double a[2], const double b[2], const double c[2], const double p[2],
                               double w[3]);

/* Barycentric weights of the origin in the triangle ABC; as mathCalTri2DGCP.
 *   a, b, c  double[2];  w  out double[3]
 * Returns 1, or 0 (w untouched) for a degenerate triangle. */
KORVEX_API int mathCalTri2DGCO(const double a[2], const double b[2], const double c[2], double w[3]);

/* Position of p relative to the triangle ABC, by the sides of p against the
 * directed edges (mathChkPntLin2D).
 *   p, a, b, c  double[2]
 *   tol         distance tolerance
 * Returns 1 inside, 2 on the boundary, 0 outside, 800 when an edge met by
 * the test is shorter than 1e-10 (a point outside the triangle's box, grown
 * by tol, gives 0 before any edge is looked at). The boundary is not treated alike on every edge: a
 * point within tol of the line of CA, or of both AB and BC, gives 2, while a
 * point on AB or BC alone (and inside the other two edges) gives 1. */
KORVEX_API int mathChkPntTri2D(const double p[2], const double a[2], const double b[2], const double c[2],
                               double tol);

/* Orientation of the triangle ABC.
 *   a, b, c  double[2]
 *   tol      distance tolerance
 * Returns 1 when C lies left of the directed line A -> B (counter-clockwise
 * triangle), 0 when it lies right, 800 when C is within tol of that line or
 * A and B coincide (closer than 1e-10). */
KORVEX_API int mathChkTriDir2D(const double a[2], const double b[2], const double c[2], double tol);

/* Shape quality q = (longest - shortest) / middle edge; 0 for an equilateral
 * triangle, growing as the triangle gets slender.
 *   a, b, c  double[2]
 *   q        out quality
 * Returns 1, or 0 (q untouched) when an edge is shorter than 1e-20. */
KORVEX_API int mathChkTriQuality2D(const double a[2], const double b[2], const double c[2], double* q);

/* Shape quality of a triangle in space, as mathChkTriQuality2D.
 *   a, b, c  double[3]
 *   q        out quality
 * Returns 1, or -4 (q untouched) when an edge is shorter than 1e-20. */
KORVEX_API int mathChkTriQuality(const double a[3], const double b[3], const double c[3], double* q);

/* Shape quality from three edge lengths, as mathChkTriQuality2D.
 *   e0, e1, e2  edge lengths
 *   minLen      shortest acceptable edge
 *   q           out quality
 * Returns 1, or 0 (q untouched) when an edge is shorter than minLen. */
KORVEX_API int mathChkXRatio3Edge(double e0, double e1, double e2, double minLen, double* q);

/* Incentre of the triangle ABC: (a A + b B + c C) / (a + b + c) with
 * a = |B - C|, b = |A - C|, c = |A - B|.
 *   a, b, c  double[2] vertices
 *   in       out double[2]
 * Returns 1, or -4 (in untouched) when the perimeter is below 1e-8. */
KORVEX_API int mathCalTriIncenter2D(const double a[2], const double b[2], const double c[2], double in[2]);

/* Incentre of a triangle in space, as mathCalTriIncenter2D.
 *   a, b, c  double[3];  in  out double[3]
 * Returns 1, or -4 (in untouched) when the perimeter is below 1e-8. */
KORVEX_API int mathCalTriIncenter(const double a[3], const double b[3], const double c[3], double in[3]);

/* Centroid G = (A + B + C) / 3.
 *   a, b, c  double[3];  g  out double[3] (may be any input) */
KORVEX_API void mathCalTriBarycenter(const double a[3], const double b[3], const double c[3], double g[3]);

/* Circumcentre of a triangle in space: the crossing of the perpendicular
 * bisectors of AB and AC in the triangle's plane.
 *   a, b, c  double[3]
 *   o        out double[3]
 * Returns 1, -4 (o untouched) for collinear or coincident vertices, 0 (o
 * untouched) when the bisectors do not meet within 1e-8. */
KORVEX_API int mathCalTriCircumcenter(const double a[3], const double b[3], const double c[3], double o[3]);

/* Area of a triangle in space: 0.5 |(B - A) x (C - B)|.
 *   a, b, c  double[3] */
KORVEX_API double mathCalTriArea(const double a[3], const double b[3], const double c[3]);

/* Area from the three edge lengths by Heron's formula; 0 when an edge is
 * longer than half the perimeter (no such triangle).
 *   a, b, c  edge lengths */
KORVEX_API double mathCalTriAreaBy3Edge(double a, double b, double c);

/* Signed volume of the tetrahedron ABCD: ((B - A) x (C - A)) . (D - A) / 6,
 * positive when D lies on the side of the normal of the counter-clockwise
 * triangle ABC.
 *   a, b, c, d  double[3] */
KORVEX_API double mathCalPyramidVolume(const double a[3], const double b[3], const double c[3],
                                       const double d[3]);

/* Unit normal of the triangle ABC: unit((B - A) x (C - B)).
 *   a, b, c  double[3]
 *   tol      distance tolerance
 *   n        out double[3]
 * Returns 0 (n untouched) when a vertex lies within tol of the line through
 * the other two; else the result of normalising with tolerance 1e-20
 * (1, or 0 with n zeroed). */
KORVEX_API int mathGetTriNormal(const double a[3], const double b[3], const double c[3], double tol,
                                double n[3]);

/* Sum (not the mean) of the signed distances (Vi - P0) . N of the three
 * vertices from the plane (P0, N).
 *   a, b, c  double[3] vertices
 *   p0       double[3] point of the plane
 *   n        double[3] unit normal */
KORVEX_API double mathDistTriPln(const double a[3], const double b[3], const double c[3], const double p0[3],
                                 const double n[3]);

/* ---- Zero lines of linear functions --------------------------------- */

/* Zero of the linear function with value f1 at v1 and f2 at v2 on the edge
 * v1 v2 of vectors with n components.
 *   n       number of components
 *   v1, v2  double[n]
 *   f1, f2  function values at v1 and v2
 *   tol     value tolerance
 *   v       out double[n]; may be v1 or v2
 * Returns 1 with v = the interpolated zero when the values have opposite
 * signs (f1 f2 < -1e-50); otherwise 1 with v = v1 (or v2) when |f1| (or |f2|) < tol, else 0
 * with v untouched. */
KORVEX_API int mathEvalLinContPnt(int n, const double* v1, const double* v2, double f1, double f2, double tol,
                                  double* v);

/* Zero line of the linear function with values f1, f2, f3 at the vertices
 * v1, v2, v3 of a triangle of vectors with n components.
 *   n           number of components
 *   v1, v2, v3  double[n]
 *   f1, f2, f3  function values
 *   tol         value tolerance
 *   minLen      shortest acceptable line
 *   va, vb      out double[n] ends of the zero line (distinct from the inputs)
 * Returns 1 with the line va vb, or 0. Two vertices with values below tol
 * give their edge at once; otherwise the zero points of the edges are found
 * and the two farthest apart are kept, and the result is 1 only if they are
 * more than minLen apart. va and vb may be partly written when the result
 * is 0. */
KORVEX_API int mathEvalTriContLin(int n, const double* v1, const double* v2, const double* v3, double f1,
                                  double f2, double f3, double tol, double minLen, double* va, double* vb);

/* ---- Segment and triangle ------------------------------------------- */

/* Intersection of the segment a -> b with the triangle t0 t1 t2 in space.
 *   a, b        double[3] segment ends
 *   t0, t1, t2  double[3] triangle vertices
 *   tol         distance tolerance
 *   p1, p2      out double[3]
 * Returns 1 with the common point in p1 when the segment crosses the
 * triangle (or touches it within tol); 4 with the common stretch p1 -> p2
 * (in the direction of the segment) when the segment lies in the triangle's
 * plane and overlaps the triangle by at least tol; 0 when they do not meet;
 * 800 for a segment shorter than 1e-8, a triangle whose vertices lie within
 * tol of a line, or a crossing point tested against a triangle with an edge
 * shorter than 1e-10. Only the outputs named for the result are written. */
KORVEX_API int mathIntSegmTri(const double a[3], const double b[3], const double t0[3], const double t1[3],
                              const double t2[3], double tol, double p1[3], double p2[3]);

#ifdef __cplusplus
} /* extern "C" */
#endif

#endif /* KORVEX_CAPI_H */
