// ---------------------------------------------------------------------------
// Transformation classes: TRANSF_2D and TRANSF_3D
// ---------------------------------------------------------------------------
//
// Value classes holding a plane (3x3) or spatial (4x4) float matrix in the
// row-vector layout of the matrix arrays above, kept as named pieces. The
// pieces are not stored in the order of the flat arrays: every exchange with
// an array goes through the Set.../Get... members.
//
// Members named Def... replace the whole transformation by a standard one.
// Members of the same name without the prefix compose that standard
// transformation after the current one (*this = *this * step), so a point
// undergoes the existing transformation first and the new step afterwards.
//
// The classes have no virtual functions and are copied by value.

class TRANSF_3D;

// ---------------------------------------------------------------------------
// TRANSF_2D: plane transformation.
// ---------------------------------------------------------------------------
class KORVEX_API TRANSF_2D {
public:
    // Matrix entries m[row][col]:
    point_2d xAxis;  // m[0][0], m[0][1]: image of the unit X vector
    point_2d yAxis;  // m[1][0], m[1][1]: image of the unit Y vector
    point_2d pAxis;  // m[0][2], m[1][2]: projective column, (0, 0) if affine
    point_2d origin; // m[2][0], m[2][1]: translation
    float scale;     // m[2][2]: homogeneous scale, 1 if affine
    // A point transforms as p' = p.x*xAxis + p.y*yAxis + origin; pAxis and
    // scale never take part.

    // --- construction and access ------------------------------------------

    // The identity.
    TRANSF_2D();
    // Loaded from the row-major 3x3 array m9[9], as Set9.
    TRANSF_2D(const float* m9);
    TRANSF_2D(const TRANSF_2D& t);
    TRANSF_2D& operator=(const TRANSF_2D& t);

    // The identity.
    void Init();
    // Normalises xAxis and then yAxis to unit length; if either was shorter
    // than gmGetAbsDistTol(), the whole object becomes the identity instead.
    // On success pAxis becomes (0, 0), scale 1 and origin is kept. The axes
    // are not made perpendicular to each other.
    void Unit();

    // Load from / store to a row-major 3x3 array m[9] (m[3*row + col]).
    void Set9(const float* m);
    void Set3X3(const float (*m)[3]);
    void Get9(float* m) const;
    void Get3X3(float (*m)[3]) const;
    // The 4x4 form m[16], as Matrix2DTo3D of Get9: z passes through.
    void Get16(float* m) const;
    // The same 4x4 form as doubles.
    void GetDbl16(double* m) const;

    point_2d GetXAxis() const;
    point_2d GetYAxis() const;
    point_2d GetOrigin() const;
    point_2d GetPAxis() const;
    float GetScale() const;
    // Entry m[row][col]; any index pair outside 0..2 returns m[0][0].
    const float& operator()(const int& row, const int& col) const;

    // --- replacing members --------------------------------------------------

    // Frame at o with the X axis along xdir (normalised) and the Y axis at
    // +90 degrees to it. A zero xdir gives zero axes; it is not tested.
    void Define(point_2d o, point_2d xdir);
    // Frame at o with the axes x and y as given, then Unit(): each axis is
    // normalised, a pair that is not perpendicular stays so, and an axis
    // shorter than gmGetAbsDistTol() gives the identity.
    void Define(point_2d o, point_2d x, point_2d y);
    // Move by t.
    void DefMove(point_2d t);
    // Scaling by (sx, sy) about the origin.
    void DefScale(float sx, float sy);
    // Scaling by (sx, sy) about c.
    void DefScale(const point_2d& c, float sx, float sy);
    // x' = x + a*y, y' = y + b*x; a and b are factors, not angles.
    void DefShear(float a, float b);
    // y negated.
    void DefMirrorXAxis();
    // x negated.
    void DefMirrorYAxis();
    // x and y negated.
    void DefMirrorOrigin();
    // Counter-clockwise rotation by a radians about the origin.
    void DefRotate(float a);
    // Counter-clockwise rotation by a radians about c.
    void DefRotate(const point_2d& c, float a);
    // Reflection in the line through p0 and p1.
    void DefMirror(const point_2d& p0, const point_2d& p1);

    // --- composing members: the step acts after the current transformation --

    void Rotate(float a);
    void Rotate(const point_2d& c, float a);
    void Scale(float sx, float sy);
    void Scale(const point_2d& c, float sx, float sy);
    void Shear(float a, float b);
    void MirrorXAxis();
    void MirrorYAxis();
    void MirrorOrigin();
    void Mirror(const point_2d& p0, const point_2d& p1);
    // Adds t to origin directly (a move after the current transformation
    // while the object is affine).
    void Move(const point_2d& t);

    // --- products and derived transformations --------------------------------

    // *this = *this * b (b acts after *this).
    TRANSF_2D& operator*=(const TRANSF_2D& b);
    // *this * b.
    TRANSF_2D operator*(const TRANSF_2D& b) const;
    // The inverse. For a singular transformation (determinant below 1e-6 in
    // absolute value) the identity is returned.
    TRANSF_2D Inverse() const;
    // The transposed 3x3: the projective column and the translation trade
    // places.
    TRANSF_2D Transpose() const;
};

// (p.x*t.xAxis.x + p.y*t.yAxis.x + t.origin.x,
//  p.x*t.xAxis.y + p.y*t.yAxis.y + t.origin.y).
KORVEX_API point_2d operator*(const point_2d& p, const TRANSF_2D& t);
// x and y as above, z copied.
KORVEX_API point_3d operator*(const point_3d& p, const TRANSF_2D& t);

// ---------------------------------------------------------------------------
// TRANSF_3D: spatial transformation.
// ---------------------------------------------------------------------------
class KORVEX_API TRANSF_3D {
public:
    // Matrix entries m[row][col]:
    point_3d xAxis;  // m[0][0..2]: image of the unit X vector
    point_3d yAxis;  // m[1][0..2]: image of the unit Y vector
    point_3d zAxis;  // m[2][0..2]: image of the unit Z vector
    point_3d pAxis;  // m[0][3], m[1][3], m[2][3]: projective column
    point_3d origin; // m[3][0..2]: translation
    float scale;     // m[3][3]: homogeneous scale

    // --- construction and arrays --------------------------------------------

    // The identity.
    TRANSF_3D();
    // Loaded from the row-major 4x4 array m16[16], as Set16.
    TRANSF_3D(const float* m16);
    TRANSF_3D(const TRANSF_3D& t);
    TRANSF_3D& operator=(const TRANSF_3D& t);
    // The plane transformation with z flattened: like Set2D, but with
    // m[2][2] = 0, so every transformed point lands on z = 0.
    TRANSF_3D& operator=(const TRANSF_2D& t);

    // The identity.
    void Init();
    // Normalises xAxis, yAxis and zAxis in turn. As soon as one is shorter
    // than gmGetAbsDistTol(), the object becomes the identity and the result
    // is 0. Otherwise pAxis becomes (0, 0, 0), scale 1, origin is kept and
    // the result is 1. The axes are not made perpendicular.
    int Unit();

    // Row-major 4x4 arrays, m[4*row + col]; the double forms convert each
    // entry.
    void Set16(const float* m);
    void Get16(float* m) const;
    void SetDbl16(const double* m);
    void GetDbl16(double* m) const;
    void Set4X4(const float (*m)[4]);
    void Get4X4(float (*m)[4]) const;
    void SetDbl4X4(const double (*m)[4]);
    void GetDbl4X4(double (*m)[4]) const;
    // From a 3x3 array m9[9] or a TRANSF_2D: rows (m00, m01, 0, m02),
    // (m10, m11, 0, m12), (0, 0, 1, 0), (m20, m21, 0, m22); z passes through.
    void Set2D(const float* m9);
    void Set2D(const TRANSF_2D& t);

    point_3d GetXAxis() const;
    point_3d GetYAxis() const;
    point_3d GetZAxis() const;
    point_3d GetOrigin() const;
    point_3d GetPAxis() const;
    float GetScale() const;
    // Entry m[row][col]; any index pair outside 0..3 returns m[0][0].
    const float& operator()(const int& row, const int& col) const;

    // --- replacing members --------------------------------------------------

    // Move by t (t as double[3] in the second form).
    void DefMove(point_3d t);
    void DefMove(const double* t);
    // Scaling by (sx, sy, sz) about the origin.
    void DefScale(float sx, float sy, float sz);
    // Scaling by (sx, sy, sz) about c.
    void DefScale(const point_3d& c, float sx, float sy, float sz);
    // Scaling by s[3] about c[3].
    void DefScale(const double* c, const double* s);
    // z negated.
    void DefMirrorXOYPlane();
    // x negated.
    void DefMirrorYOZPlane();
    // y negated.
    void DefMirrorZOXPlane();
    // code 0: DefMirrorXOYPlane, 1: DefMirrorYOZPlane, 2: DefMirrorZOXPlane;
    // any other code leaves the object unchanged.
    void DefMirror(unsigned int code);
    // Rotations by a about the coordinate axes, as MakeRotate3D_X/_Y/_Z.
    void DefRotateXAxis(float a);
    void DefRotateYAxis(float a);
    void DefRotateZAxis(float a);
    // Rx(a)*Ry(b)*Rz(c): the rotation about X acts first.
    void DefRotate(float a, float b, float c);
    // Rotation by a about the line through 2*p0 (not p0) with the direction
    // p1 - p0. The two coincide only when p0 is the origin; hosts rely on
    // this placement, so it is kept. RotateLine and the three-point
    // DefRotate inherit it.
    void DefRotateLine(const point_3d& p0, const point_3d& p1, float a);
    // Rotation by a about the line through o[3] along d[3].
    void DefRotate(const double* o, const double* d, double a);
    // Rotation by the angle from u to v about an axis along u x v placed
    // through 2*p (see DefRotateLine). The identity when u and v have the
    // same direction; for opposite directions the axis is taken
    // perpendicular to u (a half turn). A zero u leaves the object
    // unchanged.
    void DefRotate(point_3d p, point_3d u, point_3d v);
    // Reflection in the plane through p with the normal n.
    void DefMirrorPlane(const point_3d& p, const point_3d& n);
    // Reflection in the plane through p[3] with the normal n[3].
    void DefMirror(const double* p, const double* n);
    // Right-handed frame with origin o and the Z axis along z (o[3] and
    // z[3] in the second form). The Y axis is z x seed and the X axis
    // Y x z, where the seed is the coordinate axis along which z has its
    // smallest absolute component; ties go to Z, then Y, so z = (0, 0, 1)
    // gives the X axis (0, 1, 0) and the Y axis (-1, 0, 0). A z too short
    // for Unit() gives the identity.
    void Define(point_3d o, point_3d z);
    void Define(const double* o, const double* z);
    // Frame with origin o, Z axis z, X axis x and Y axis z x x, each
    // normalised by Unit(); x is not made perpendicular to z.
    void Define(point_3d o, point_3d z, point_3d x);

    // --- composing members: the step acts after the current transformation --

    void RotateXAxis(float a);
    void RotateYAxis(float a);
    void RotateZAxis(float a);
    // RotateXAxis(a), RotateYAxis(b), RotateZAxis(c) in that order.
    void Rotate(float a, float b, float c);
    void Scale(float sx, float sy, float sz);
    void Scale(const point_3d& c, float sx, float sy, float sz);
    void Mirror(unsigned int code);
    void MirrorXOYPlane();
    void MirrorYOZPlane();
    void MirrorZOXPlane();
    void MirrorPlane(const point_3d& p, const point_3d& n);
    void RotateLine(const point_3d& p0, const point_3d& p1, float a);
    // Adds t to origin directly, without a product.
    void Move(point_3d t);

    // --- products and derived transformations --------------------------------

    // *this = *this * b (b acts after *this).
    TRANSF_3D& operator*=(const TRANSF_3D& b);
    // *this * b.
    TRANSF_3D operator*(const TRANSF_3D& b) const;
    // The inverse by Gauss-Jordan elimination with partial pivoting. A
    // transformation with a pivot below gmGetAbsDistTol() is singular and is
    // returned unchanged.
    TRANSF_3D Inverse() const;
    // The transposed 4x4.
    TRANSF_3D Transpose() const;
};

// The full homogeneous product (x, y, z, w) * M, all four outputs, no
// division by w.
KORVEX_API point_4d operator*(const point_4d& p, const TRANSF_3D& t);
// x*xAxis + y*yAxis + z*zAxis + origin; pAxis and scale are ignored.
KORVEX_API point_3d operator*(const point_3d& p, const TRANSF_3D& t);
// (x, y, 0) transformed; x' and y' kept.
KORVEX_API point_2d operator*(const point_2d& p, const TRANSF_3D& t);
