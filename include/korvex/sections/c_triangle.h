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
