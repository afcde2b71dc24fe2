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
