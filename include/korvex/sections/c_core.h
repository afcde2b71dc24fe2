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
 * not be normalised). 0 when |c| + |s| < 1e-20. */
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

/* Angle of v (double[2]) to the x axis, in [0, 2*pi). */
KORVEX_API double mathGetAngleX2D(const double v[2]);

/* Unsigned angle at vertex p1 between p0 - p1 and p2 - p1 (double[2] each),
 * in [0, pi]; -1.0 when either leg is shorter than 1e-10. */
KORVEX_API double mathGetAngle3P2D(const double p0[2], const double p1[2], const double p2[2]);

/* Anticlockwise angle at vertex p1, in [0, 2*pi): the turn that brings the
 * ray p1 -> p2 onto the ray p1 -> p0. For p0 = (1, 0), p1 = (0, 0),
 * p2 = (0, 1) it is 3*pi/2.
 *   p0, p1, p2  double[2]
 * Returns -1.0 when either leg is shorter than 1e-10. */
KORVEX_API double mathGetACWAngle3P2D(const double p0[2], const double p1[2], const double p2[2]);

/* Anticlockwise angle from b to a (double[2] each), in [0, 2*pi):
 * mathGetACWAngle3P2D(a, origin, b). -1.0 for a vector shorter than 1e-10. */
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
