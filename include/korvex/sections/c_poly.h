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
