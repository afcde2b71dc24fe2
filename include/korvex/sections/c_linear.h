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
 * denominator vanishes (below 1e-100). */
KORVEX_API int mathSolLeastSquareLin(const double P1[3], const double d1[3], const double P2[3],
                                     const double d2[3], double t[2]);
