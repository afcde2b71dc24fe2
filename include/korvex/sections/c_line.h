/* ======================================================================
 * Lines and planes
 *
 * A line is given either by a point L and a unit direction D (the caller
 * guarantees the unit length; these functions do not normalise it), or by
 * two points A and B (parameter 0 at A, 1 at B). A plane is a point P0 and a
 * unit normal N. In the plane, "left" of a direction D is the side of
 * (-Dy, Dx). Result codes: 1 one point / success, 2 parallel and apart,
 * 3 left, 4 coincident or right (see each function), 5 skew, 800 degenerate.
 * ====================================================================== */

/* Side of point p relative to the directed line a -> b (2D).
 *   p, a, b  double[2]
 *   tol      distance tolerance
 * Returns 800 if |b - a| < 1e-10 (degenerate line), 2 if the point lies on
 * the line (tol > |signed distance|, strict), 3 if it lies on the left,
 * 4 if it lies on the right. Writes nothing. */
KORVEX_API int mathChkPntLin2D(const double p[2], const double a[2], const double b[2], double tol);

/* Foot of the perpendicular from p onto the line (l, d), d of unit length.
 *   p, l, d  double[3]
 *   q        out double[3]: l + ((p - l) . d) d; may alias any input */
KORVEX_API void mathPrjPntLin(const double p[3], const double l[3], const double d[3], double q[3]);
