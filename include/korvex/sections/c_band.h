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
