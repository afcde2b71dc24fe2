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
