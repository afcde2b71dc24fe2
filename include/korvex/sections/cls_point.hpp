// ---------------------------------------------------------------------------
// Point classes: point_2d, nd_point_2d, point_3d, nd_point_3d, point_4d
// ---------------------------------------------------------------------------
//
// Single-precision points and vectors. They are plain values: no virtual
// functions, no hidden members, fields in declaration order, so a host may
// keep millions of them in an array and hand the array to the library.
// The static_asserts at the end of this section pin that layout.
//
// Arithmetic is done in float. Every geometric decision converts the float
// quantity to double and compares it with one of the global tolerances of
// the C interface (gmGetDistTol, gmGetParaTol, gmGetAbsDistTol,
// gmGetAbsParaTol, gmGetAbsZero), read at the time of the call. A test is
// strict unless its comment says otherwise: "below tol" means tol > value.
//
// Matrices applied by the multiplication operators are flat float arrays,
// row-major, with the point taken as a row vector and the translation in the
// last row (3x3 for the plane, 4x4 for space). The last column is ignored:
// there is no division by a projective weight.
//
// Only pure data moves (constructors, setters, element access) are inline.
// Anything that computes is compiled into the library, so results do not
// depend on the floating-point options the host compiles with.

#include <cstddef>

class point_2d;
class nd_point_2d;
class point_3d;
class nd_point_3d;
class point_4d;

// ---------------------------------------------------------------------------
// point_2d: planar point or vector (x, y).
// ---------------------------------------------------------------------------
class KORVEX_API point_2d {
public:
    float x;
    float y;

    // --- construction, assignment, access --------------------------------

    // (0, 0).
    point_2d() : x(0.0f), y(0.0f) {}
    point_2d(float px, float py) : x(px), y(py) {}
    // x and y from v[0] and v[1].
    point_2d(float const*& v) : x(v[0]), y(v[1]) {}
    point_2d(point_2d const& p) = default;
    point_2d& operator=(point_2d const& p) = default;
    // Copies x and y only; the tag of the source is not kept.
    point_2d& operator=(nd_point_2d const& p);
    // Copies x and y; z is dropped.
    point_2d& operator=(point_3d const& p);

    // Sets (0, 0).
    void Init() { x = 0.0f; y = 0.0f; }
    void Set(float px, float py) { x = px; y = py; }
    // x and y from v[0] and v[1].
    void Set(float const*& v) { x = v[0]; y = v[1]; }
    // Same as Set(px, py).
    void operator()(float px, float py) { Set(px, py); }
    // x and y from v[0] and v[1].
    void operator()(float* v) { float const* c = v; Set(c); }

    // Index 1 gives y; every other index, negative ones included, gives x.
    // Out-of-range indices are not an error.
    float& operator[](int const& i) { return i == 1 ? y : x; }
    float const& operator[](int const& i) const { return i == 1 ? y : x; }

    // Pointer to x; x and y are contiguous.
    operator float*() { return &x; }
    operator float const*() const { return &x; }

    // --- arithmetic -------------------------------------------------------

    // Componentwise this + b and this - b; the compound forms change this
    // and return it.
    point_2d operator+(point_2d const& b) const;
    point_2d operator-(point_2d const& b) const;
    point_2d& operator+=(point_2d const& b);
    point_2d& operator-=(point_2d const& b);
    // this scaled by s; the compound form scales this and returns it.
    point_2d operator*(float s) const;
    point_2d& operator*=(float s);
    // This point transformed by a 3x3 matrix m[9]:
    // x' = x*m[0] + y*m[3] + m[6], y' = x*m[1] + y*m[4] + m[7].
    point_2d operator*(float const* m) const;
    point_2d operator*(float const (*m)[3]) const;
    point_2d& operator*=(float const* m);
    // this / s; an unchanged copy when |s| is not above gmGetAbsZero().
    point_2d operator/(float s) const;
    // Divides in place; leaves this unchanged when |s| is not above
    // gmGetAbsZero().
    point_2d& operator/=(float s);
    // Negated copy.
    point_2d operator-() const;
    point_2d Inverse() const;
    // Negates in place.
    point_2d& Reverse();

    // --- products and lengths ---------------------------------------------

    // x*b.x + y*b.y.
    float Iproduct(point_2d const& b) const;
    // Scalar cross product x*b.y - y*b.x.
    float Xproduct(point_2d const& b) const;
    // (this x b) x c, with this x b along z: (-z*c.y, z*c.x).
    point_2d Xproduct(point_2d const& b, point_2d const& c) const;
    // Length of the vector, distance to b and squared distance to b.
    float Length() const;
    float DistFrom(point_2d const& b) const;
    float DistFrom2(point_2d const& b) const;

    // --- tolerance-based members ------------------------------------------

    // 1 when the distance to b is below 10 * gmGetAbsDistTol(), else 0.
    int operator==(point_2d const& b) const;
    // Exact complement of operator==.
    int operator!=(point_2d const& b) const;
    // Normalises in place and returns the former length. A vector shorter
    // than 1e-9 becomes (0, 0) and the result is 0.
    float Unit();
    // 1 when the unit vectors of this and b have a dot product above 0.9999;
    // 0 when either vector is shorter than gmGetAbsDistTol().
    int IsSameDirection(point_2d const& b) const;
    // As IsSameDirection, but opposite directions (dot below -0.9999) count.
    int IsParallel(point_2d const& b) const;
    // 1 when |this . b| is below gmGetDistTol(). The dot product is not
    // normalised, so long vectors need a correspondingly small angle.
    int IsPerpendicular(point_2d const& b) const;
    // Anticlockwise angle from the x axis in [0, 2*pi] (2*pi in single
    // precision). Angles within gmGetParaTol() of 0 give 0, within it of
    // 2*pi give 2*pi, bounds included: a vector just below the axis yields
    // 2*pi.
    double AngleToXAxis() const;
    // The same, measured from the y axis.
    double AngleToYAxis() const;
    // Anticlockwise angle from this to b in [0, 2*pi): 0 for equal unit
    // vectors, pi for opposite ones.
    float AngleToVector(point_2d const& b) const;

    // Distance from this point p to the segment a-b. t receives the segment
    // parameter of the foot point (0 at a, 1 at b), foot the foot point and
    // dist the distance. A segment shorter than gmGetDistTol() counts as the
    // point a. The perpendicular foot is kept while the parameter lies in
    // (-gmGetParaTol(), 1 + gmGetParaTol()]; beyond that the nearer end point
    // is taken (b on a tie). Always returns 1.
    int GetDistLineSeg(point_2d const& a, point_2d const& b, float& t,
                       point_2d& foot, float& dist) const;
    // As GetDistLineSeg, but on the infinite line through a and b: the
    // parameter is not limited.  Always returns 1.
    int GetProjectPoint(point_2d const& a, point_2d const& b, float& t,
                        point_2d& foot, float& dist) const;
    // Distance to the infinite line through a and b; when the squared length
    // of b - a is below gmGetAbsDistTol(), the distance to a.
    float GetDistLine(point_2d const& a, point_2d const& b) const;
    // Distance from (x, y, 0) to the spatial line through a with unit
    // direction d; t receives (this - a) . d, the parameter of the foot
    // a + t*d.
    float GetDistLine(point_3d const& a, point_3d const& d, float& t) const;
    // The distance of the five-argument GetDistLineSeg alone.
    float GetDistLineSeg(point_2d const& a, point_2d const& b) const;
    // 1 when the distance to the line through a and b is below
    // gmGetAbsDistTol().
    int IsOn(point_2d const& a, point_2d const& b) const;
    // 1 when the distance to the segment a-b is below gmGetAbsDistTol().
    int IsOnSeg(point_2d const& a, point_2d const& b) const;
    // 1 when a, this and b lie on one line: the unit vectors from this to a
    // and to b have a cross product below gmGetAbsDistTol(). 0 when a or b
    // coincides with this.
    int IsConLine(point_2d const& a, point_2d const& b) const;
};

// s * p.
KORVEX_API point_2d operator*(float const& s, point_2d const& p);
// p transformed by the 3x3 matrix m[9]; same result as p * m.
KORVEX_API point_2d operator*(float const* m, point_2d const& p);
KORVEX_API point_2d operator*(float const (*m)[3], point_2d const& p);

// pts[n]: 1 when every inner point pts[1] .. pts[n-2] lies within tol of the
// segment pts[0]-pts[n-1] (a distance equal to tol passes), else 0. For
// n <= 2 the result is 1 and pts is not read.
KORVEX_API int IsPtsColine(point_2d* pts, int n, float tol);

// ---------------------------------------------------------------------------
// nd_point_2d: a point_2d with a 16-bit tag that belongs to the host.
// ---------------------------------------------------------------------------
class KORVEX_API nd_point_2d : public point_2d {
public:
    // Opaque to the library: stored and copied, never read.
    unsigned short tag;

    // (0, 0), tag 0.
    nd_point_2d() : point_2d(), tag(0) {}
    // Copy x, y and the tag.
    nd_point_2d(nd_point_2d const& p) = default;
    nd_point_2d& operator=(nd_point_2d const& p) = default;
    // Copy x and y; the tag is left as it is.
    nd_point_2d& operator=(point_2d const& p);
    nd_point_2d& operator=(point_3d const& p);
};

// ---------------------------------------------------------------------------
// point_3d: spatial point or vector (x, y, z).
// ---------------------------------------------------------------------------
// Some predicates differ from their planar namesakes in the tolerance they
// use (equality, perpendicularity, axis-angle snapping, collinearity); the
// comments say how.
class KORVEX_API point_3d {
public:
    float x;
    float y;
    float z;

    // --- construction, assignment, access --------------------------------

    // (0, 0, 0).
    point_3d() { Init(); }
    point_3d(float px, float py, float pz) { Set(px, py, pz); }
    // x, y and z from v[0], v[1] and v[2].
    point_3d(float const*& v) { Set(v); }
    point_3d(point_3d const& p) = default;
    point_3d& operator=(point_3d const& p) = default;
    // Copies x, y and z only; the tag of the source is not kept.
    point_3d& operator=(nd_point_3d const& p);
    // x and y of p, z = 0.
    point_3d& operator=(point_2d const& p);

    // Sets (0, 0, 0).
    void Init() { x = 0.0f; y = 0.0f; z = 0.0f; }
    void Set(float px, float py, float pz) { x = px; y = py; z = pz; }
    // x, y and z from v[0], v[1] and v[2].
    void Set(float const*& v) { x = v[0]; y = v[1]; z = v[2]; }
    // Same as Set(px, py, pz).
    void operator()(float px, float py, float pz) { Set(px, py, pz); }
    // x, y and z from v[0], v[1] and v[2].
    void operator()(float* v) { float const* c = v; Set(c); }

    // Index 1 gives y, 2 gives z; every other index gives x, without error.
    float& operator[](int const& i) { return i == 1 ? y : (i == 2 ? z : x); }
    float const& operator[](int const& i) const { return i == 1 ? y : (i == 2 ? z : x); }

    // Pointer to x; x, y and z are contiguous.
    operator float*() { return &x; }
    operator float const*() const { return &x; }

    // --- arithmetic -------------------------------------------------------

    // Componentwise this + b and this - b; the compound forms change this
    // and return it.
    point_3d operator+(point_3d const& b) const;
    point_3d operator-(point_3d const& b) const;
    point_3d& operator+=(point_3d const& b);
    point_3d& operator-=(point_3d const& b);
    // this scaled by s; the compound form scales this and returns it.
    point_3d operator*(float s) const;
    point_3d& operator*=(float s);
    // This point transformed by a 4x4 matrix m[16] (row-major):
    // x' = x*m[0] + y*m[4] + z*m[8] + m[12], likewise y' (column 1) and
    // z' (column 2).
    point_3d operator*(float* const m) const;
    point_3d operator*(float (*m)[4]) const;
    point_3d& operator*=(float* const m);
    // this / s; an unchanged copy when |s| is not above gmGetAbsZero().
    point_3d operator/(float s) const;
    // Divides in place; leaves this unchanged when |s| is not above
    // gmGetAbsZero().
    point_3d& operator/=(float s);
    // Negated copy.
    point_3d operator-() const;
    point_3d Inverse() const;
    // Negates in place.
    point_3d& Reverse();

    // --- products and lengths ---------------------------------------------

    // Dot product this . b.
    float Iproduct(point_3d const& b) const;
    // this x b.
    point_3d Xproduct(point_3d const& b) const;
    // Scalar triple product (this x b) . c.
    float HybridProduct(point_3d const& b, point_3d const& c) const;
    // Length of the vector, distance to b and squared distance to b.
    float Length() const;
    float DistFrom(point_3d const& b) const;
    float DistFrom2(point_3d const& b) const;

    // --- tolerance-based members ------------------------------------------

    // 1 when DistFrom(b) is below gmGetAbsDistTol() (the planar class allows
    // ten times that).
    int operator==(point_3d const& b) const;
    // 1 when DistFrom(b) is above gmGetAbsDistTol(). Not the complement of
    // operator==: at a distance equal to the tolerance both give 0.
    int operator!=(point_3d const& b) const;
    // Normalises in place and returns the former length. A vector shorter
    // than 1e-9 becomes (0, 0, 0) and the result is 0.
    float Unit();
    // 1 when the unit vectors of this and b have a dot product above 0.9999;
    // 0 when either vector is shorter than gmGetAbsDistTol().
    int IsSameDirection(point_3d const& b) const;
    // As IsSameDirection, but opposite directions (dot below -0.9999) count.
    int IsParallel(point_3d const& b) const;
    // 1 when |this . b| (not normalised) is below gmGetAbsDistTol().
    int IsPerpendicular(point_3d const& b) const;
    // Anticlockwise angle of (x, y) from the x axis in [0, 2*pi]; z is
    // ignored. Snaps to 0 and 2*pi as point_2d::AngleToXAxis, but within
    // gmGetAbsParaTol() instead of gmGetParaTol().
    double AngleToXAxis() const;
    // The same, measured from the y axis.
    double AngleToYAxis() const;
    // Angle from the z axis in [0, pi], without snapping.
    double AngleToZAxis() const;
    // Unsigned angle between this and b in [0, pi]: 0 or pi for parallel
    // vectors (cross product shorter than gmGetAbsDistTol()).
    float AngleToVector(point_3d const& b) const;

    // Projection of this point p on the infinite line through a and b: t the
    // line parameter (0 at a, 1 at b), foot the foot point, dist the
    // distance. When the squared length of b - a is below gmGetAbsDistTol()
    // the line counts as the point a (t = 0). Always returns 1.
    int GetMinDistance(point_3d const& a, point_3d const& b, float& t,
                       point_3d& foot, float& dist) const;
    // Distance to the line through a with unit direction d; t receives
    // (this - a) . d, the parameter of the foot a + t*d.
    float GetDistLine(point_3d const& a, point_3d const& d, float& t) const;
    // 1 when this point lies on the segment a-b: strictly inside the box of
    // a and b widened by gmGetAbsDistTol(), and |pa| + |pb| - |ab| below
    // that tolerance.
    int IsOnSeg(point_3d const& a, point_3d const& b) const;
    // 1 when the unit vectors from this to a and to b have a cross product
    // shorter than gmGetAbsDistTol(). A point a or b that coincides with this
    // gives 1 (the planar class gives 0).
    int IsConLine(point_3d const& a, point_3d const& b) const;
};

// s * p.
KORVEX_API point_3d operator*(float const& s, point_3d const& p);
// p transformed by the 4x4 matrix m; same result as p * m.
KORVEX_API point_3d operator*(float const (*m)[4], point_3d const& p);

// ---------------------------------------------------------------------------
// nd_point_3d: a point_3d with a 16-bit tag that belongs to the host.
// ---------------------------------------------------------------------------
class KORVEX_API nd_point_3d : public point_3d {
public:
    // Opaque to the library: stored and copied, never read.
    unsigned short tag;

    // (0, 0, 0), tag 0.
    nd_point_3d() : point_3d(), tag(0) {}
    // Copy x, y, z and the tag.
    nd_point_3d(nd_point_3d const& p) = default;
    nd_point_3d& operator=(nd_point_3d const& p) = default;
    // Copies x, y and z; the tag is left as it is.
    nd_point_3d& operator=(point_3d const& p);
};

// ---------------------------------------------------------------------------
// point_4d: homogeneous point (x, y, z, w).
// ---------------------------------------------------------------------------
// Every operation works on all four fields, w included.
class KORVEX_API point_4d {
public:
    float x;
    float y;
    float z;
    float w;

    // (0, 0, 0, 1).
    point_4d() { Init(); }
    point_4d(float px, float py, float pz, float pw) { Set(px, py, pz, pw); }
    // The four fields from v[0] .. v[3].
    point_4d(float const*& v) { Set(v); }
    point_4d(point_4d const& p) = default;
    point_4d& operator=(point_4d const& p) = default;
    // (p.x, p.y, 0, 1).
    point_4d& operator=(point_2d const& p);
    // (p.x, p.y, p.z, 1).
    point_4d& operator=(point_3d const& p);
    point_4d& operator=(nd_point_3d const& p);

    // Sets (0, 0, 0, 1).
    void Init() { x = 0.0f; y = 0.0f; z = 0.0f; w = 1.0f; }
    // Stores the four values in argument order (the same store as
    // Box2D::DefineBox from four floats).
    void Set(float px, float py, float pz, float pw);
    // The four fields from v[0] .. v[3].
    void Set(float const*& v) { x = v[0]; y = v[1]; z = v[2]; w = v[3]; }

    // Index 0 gives x, 1 y, 2 z; every other index, negative ones included,
    // gives w (the other point classes fall back to x).
    float& operator[](int const& i) { return i == 0 ? x : (i == 1 ? y : (i == 2 ? z : w)); }
    float const& operator[](int const& i) const { return i == 0 ? x : (i == 1 ? y : (i == 2 ? z : w)); }

    // Componentwise over all four fields; the compound forms change this and
    // return it.
    point_4d operator+(point_4d const& b) const;
    point_4d operator-(point_4d const& b) const;
    point_4d& operator+=(point_4d const& b);
    point_4d& operator-=(point_4d const& b);
    // All four fields scaled, so the Cartesian point stays the same.
    point_4d operator*(float s) const;
    point_4d& operator*=(float s);
    // All four fields divided; an unchanged copy when |s| is not above 1e-7
    // (a fixed bound, not gmGetAbsZero()).
    point_4d operator/(float s) const;
    point_4d& operator/=(float s);
};

// Layout pins: hosts index arrays of these classes directly.
static_assert(sizeof(point_2d) == 8, "point_2d must be two floats");
static_assert(offsetof(point_2d, x) == 0 && offsetof(point_2d, y) == 4,
              "point_2d fields must be x, y");
static_assert(sizeof(nd_point_2d) == 12, "nd_point_2d must be x, y and a 16-bit tag");
static_assert(sizeof(point_3d) == 12, "point_3d must be three floats");
static_assert(offsetof(point_3d, x) == 0 && offsetof(point_3d, y) == 4 &&
              offsetof(point_3d, z) == 8, "point_3d fields must be x, y, z");
static_assert(sizeof(nd_point_3d) == 16, "nd_point_3d must be x, y, z and a 16-bit tag");
static_assert(sizeof(point_4d) == 16, "point_4d must be four floats");
static_assert(offsetof(point_4d, x) == 0 && offsetof(point_4d, y) == 4 &&
              offsetof(point_4d, z) == 8 && offsetof(point_4d, w) == 12,
              "point_4d fields must be x, y, z, w");
