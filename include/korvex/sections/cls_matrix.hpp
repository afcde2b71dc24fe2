// ---------------------------------------------------------------------------
// Matrix arrays: flat float matrices for the plane (3x3) and space (4x4)
// ---------------------------------------------------------------------------
//
// Layout, shared by every matrix of the class interface:
//
//  - A plane matrix is float[9], row-major, m[3*row + col]. A point is the
//    row vector (x, y, 1) multiplied on the left:
//        x' = x*m[0] + y*m[3] + m[6],   y' = x*m[1] + y*m[4] + m[7].
//    The translation is the third row (m[6], m[7]). The third column
//    (m[2], m[5], m[8]) is carried through products and inversion but never
//    read when a point is transformed: there is no homogeneous division.
//  - A spatial matrix is float[16], row-major, m[4*row + col]:
//        x' = x*m[0] + y*m[4] + z*m[8] + m[12]   (y' column 1, z' column 2).
//    The translation is the fourth row (m[12], m[13], m[14]); the fourth
//    column is not read by point transforms.
//  - A product A*B means "apply A, then B". A rotation about a centre c is
//    therefore T(-c)*R*T(c).
//  - The double matrices taken by the mathMatrix... functions are double[16]
//    in the same layout.
//
// Angles are radians, anticlockwise positive. Sines and cosines are taken in
// single precision unless a comment says otherwise. Unless stated, an output
// matrix may not overlap an input matrix.

class Box2D;
class Box3D;
class TRANSF_2D;

// ---- Plane (3x3) ------------------------------------------------------------

// Writes the identity into m[9].
KORVEX_API void InitMatrix2D(float* m);
// Sets all nine entries of m[9] to v.
KORVEX_API void ClearMatrix2D(float* m, float v);
// Copies in[9] to out[9].
KORVEX_API void CopyMatrix2D(const float* in, float* out);
// out[9] = a[9]*b[9] (a acts first). All inputs are read before the output
// is written, so out may be the same array as a or b.
KORVEX_API void MultiMatrix2D(const float* a, const float* b, float* out);
// Inverts in[9] into out[9] by the adjugate, all nine entries taking part.
// The cofactors are formed in single precision, the determinant and the
// division by it in double. Returns 1 on success; returns 0 and leaves out
// untouched when the determinant is below 1e-6 in absolute value.
// in and out must be different arrays.
KORVEX_API int GetInverseMatrix2D(const float* in, float* out);
// out[9] = move by (tx, ty).
KORVEX_API void MakeMoveMatrix(float tx, float ty, float* out);
// out[9] = scaling by (sx, sy) about the centre (cx, cy).
KORVEX_API void MakeScaleMatrix(float cx, float cy, float sx, float sy, float* out);
// out[9] = counter-clockwise rotation by a about the centre (cx, cy).
KORVEX_API void MakeRotateMatrix(float cx, float cy, float a, float* out);
// out[9] = reflection in the line through (cx, cy) at angle a to the X axis.
KORVEX_API void MakeMirrorMatrix(float cx, float cy, float a, float* out);
// out[9] = shear along X about (cx, cy): x' = x + y*tan(a'), relative to
// the centre. a' is a wrapped into [0, 2*pi] and, within 0.0097266 of a
// vertical direction (pi/2 or 3*pi/2), replaced by an angle just beside it
// whose tangent is about +-102.8; the switch between the two replacements
// lies 0.001 above the vertical, so an angle slightly past pi/2 still gets
// the positive tangent.
KORVEX_API void MakeShearMatX(float cx, float cy, float a, float* out);
// out[9] = shear along Y about (cx, cy): y' = y + x*tan(a'), with the same
// angle guard as MakeShearMatX.
KORVEX_API void MakeShearMatY(float cx, float cy, float a, float* out);
// out[9] = shear in the frame of the line p0 -> p1: in that frame the local
// y gains x*tan(a') (guarded as in MakeShearMatX). When p0 and p1 are less
// than 1e-5 apart, out is MakeShearMatX(p0.x, p0.y, a) instead, a shear
// along the world X axis.
KORVEX_API void MakeShearMatrix(const point_2d& p0, const point_2d& p1, float a, float* out);
// Writes the 4x4 form of the 3x3 in[9] into out[16]: rows (a, b, 0, c),
// (d, e, 0, f), (0, 0, 1, 0), (g, h, 0, i) for in = [a b c; d e f; g h i].
// The plane transform acts on x and y and z passes through.
KORVEX_API void Matrix2DTo3D(const float* in, float* out);

// *q = p transformed by the 3x3 matrix m[9]. q may point to p.
KORVEX_API void TransPoint2D(const point_2d& p, point_2d* q, const float* m);
// *q = (p.x, p.y) transformed by m[9].
KORVEX_API void TransPoint2D(const point_3d& p, point_2d* q, const float* m);
// x and y of p transformed by m[9], z copied. q may point to p.
KORVEX_API void TransPoint2D(const point_3d& p, point_3d* q, const float* m);
// out[i] = in[i] transformed by m[9] for i < n; n = 0 writes nothing.
// out may be the same array as in.
KORVEX_API void TransPointList2D(const point_2d* in, unsigned short n, point_2d* out,
                                 const float* m);
// As above from the x and y of spatial points.
KORVEX_API void TransPointList2D(const point_3d* in, unsigned short n, point_2d* out,
                                 const float* m);
// As above, x and y transformed and z copied.
KORVEX_API void TransPointList2D(const point_3d* in, unsigned short n, point_3d* out,
                                 const float* m);
// The three list forms with a TRANSF_2D: out[i] = in[i] * t.
KORVEX_API void TransPointList2D(const point_2d* in, unsigned short n, point_2d* out,
                                 const TRANSF_2D& t);
KORVEX_API void TransPointList2D(const point_3d* in, unsigned short n, point_2d* out,
                                 const TRANSF_2D& t);
KORVEX_API void TransPointList2D(const point_3d* in, unsigned short n, point_3d* out,
                                 const TRANSF_2D& t);

// ---- Space (4x4) ------------------------------------------------------------

// Writes the identity into m[16].
KORVEX_API void InitMatrix3D(float* m);
// Sets all sixteen entries of m[16] to v.
KORVEX_API void ClearMatrix3D(float* m, float v);
// Copies in[16] to out[16].
KORVEX_API void CopyMatrix3D(const float* in, float* out);
// out[16] = a[16]*b[16] (a acts first); each entry sums its four terms in
// order from 0. out may be the same array as a or b.
KORVEX_API void MultiMatrix3D(const float* a, const float* b, float* out);
// out[16] = move by (tx, ty, tz).
KORVEX_API void MakeMove3D(float tx, float ty, float tz, float* out);
// out[16] = right-handed rotation by a about the X axis:
// m[5] = cos a, m[6] = sin a, m[9] = -sin a, m[10] = cos a.
KORVEX_API void MakeRotate3D_X(float a, float* out);
// out[16] = rotation by a about the Y axis:
// m[0] = cos a, m[2] = -sin a, m[8] = sin a, m[10] = cos a.
KORVEX_API void MakeRotate3D_Y(float a, float* out);
// out[16] = rotation by a about the Z axis:
// m[0] = cos a, m[1] = sin a, m[4] = -sin a, m[5] = cos a.
KORVEX_API void MakeRotate3D_Z(float a, float* out);
// out[16] = right-handed rotation by a about the line p[0] -> p[1] (p is an
// array of two points). The half-angle sine and cosine are taken in double.
// The identity when the points are less than 0.01 apart.
KORVEX_API void MakeRotate3D_V(const point_3d* p, float a, float* out);
// out[16] maps p[0] to the origin and the direction p[0] -> p[1] onto +Z
// (p is an array of two points). The identity when the points are less than
// 0.001 apart.
KORVEX_API void MakeRotate_VToZ(const point_3d* p, float* out);
// out[16] = the inverse of MakeRotate_VToZ(p): +Z onto the direction
// p[0] -> p[1] and the origin onto p[0]. The identity when the points are
// less than 0.001 apart.
KORVEX_API void MakeRotate_ZToV(const point_3d* p, float* out);
// out[16] = rotation by -b about the horizontal line through c with the
// direction (cos a, sin a, 0): T(-c)*Rz(-a)*Rx(-b)*Rz(a)*T(c).
KORVEX_API void MakeRotateMat3D(point_3d c, float a, float b, float* out);

// *q = p transformed by the 4x4 matrix m[16]. q may point to p.
KORVEX_API void TransPoint3D(const point_3d& p, point_3d* q, const float* m);
// *q = x' and y' of p transformed by m[16] (z of p takes part).
KORVEX_API void TransPoint3D(const point_3d& p, point_2d* q, const float* m);
// *q = x' and y' of (p.x, p.y, 0) transformed by m[16]. q may point to p.
KORVEX_API void TransPoint3D(const point_2d& p, point_2d* q, const float* m);

// q = (p.x, p.y, 0) transformed by the double matrix m[16], computed in
// double and stored as float. m[8], m[9] and m[10] do not change the result.
KORVEX_API void mathMatrixPt_2D(const point_2d& p, point_3d& q, const double* m);
// The same for the x and y of a tagged point.
KORVEX_API void mathMatrixNDPt_2D(const nd_point_2d& p, point_3d& q, const double* m);
// q = p transformed by the double matrix m[16], computed in double and
// stored as float.
KORVEX_API void mathMatrixPt_3D(const point_3d& p, point_3d& q, const double* m);
// r = the axis-aligned box of the four corners of b transformed by
// mathMatrixPt_2D with m[16]: a flat box in space. An empty b gives an
// empty r.
KORVEX_API void mathMatrixBox2D(const Box2D& b, Box3D& r, const double* m);
// r = the axis-aligned box of the eight corners of b transformed by
// mathMatrixPt_3D with m[16] (not a transformed box). An empty b gives an
// empty r. r may be the same object as b.
KORVEX_API void mathMatrixBox3D(const Box3D& b, Box3D& r, const double* m);
