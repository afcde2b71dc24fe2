// Korvex class interface.
//
// Single-precision value classes for points and boxes, flat float matrices
// and the transformation classes TRANSF_2D and TRANSF_3D, point picking
// against a view window, and the expression Calculator.
//
// The value classes are laid out exactly as their fields (no virtual
// functions, no hidden members) so that hosts can keep them in large arrays
// and hand those arrays to the library. Coordinates are float; tolerance
// tests are computed in double against the global tolerances of capi.h
// (gmGetDistTol and friends).
#ifndef KORVEX_CLASSES_HPP
#define KORVEX_CLASSES_HPP

#include "korvex/export.h"

#include <cstddef>

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
    // is taken (b on a tie). The outputs are written last, so foot may be
    // this point, a or b (projection in place). Always returns 1.
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
    // the line counts as the point a (t = 0). The outputs are written last,
    // so foot may be this point, a or b. Always returns 1.
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
// ---------------------------------------------------------------------------
// Box classes: Box2D, Box3D
// ---------------------------------------------------------------------------
//
// Single-precision axis-aligned boxes, held as their minimum corner followed
// by their maximum corner. They are plain values laid out exactly as those
// two points (pinned by the static_asserts at the end of this section).
//
// The empty box is the inverted unit box: minimum corner (1, 1[, 1]) and
// maximum corner (-1, -1[, -1]). A box is empty when min > max on any axis;
// a box with min == max on an axis (a single point, a flat box) is not.
// Constructors and DefineBox from four floats or two corners store what they
// are given, even inverted; Adjust() repairs an inverted box.
//
// The boxes never read the global tolerances: every test takes its
// tolerance as an argument, or has none.
//
// Unions: Box2D::operator+=, Box2D::Union, Box2D::operator+ and Box3D::Union
// take the per-axis minimum and maximum as they stand, so the union of the
// empty box with (5, 5)-(6, 6) is (1, 1)-(6, 6). Box3D::operator+= and
// Box3D::operator+ skip an empty operand instead. To collect the extent of
// a point set starting from an empty box, use AddPt (or Box3D::operator+=).

class Box2D;
class Box3D;

// ---------------------------------------------------------------------------
// Box2D: planar box (xmin, ymin)-(xmax, ymax).
// ---------------------------------------------------------------------------
class KORVEX_API Box2D {
public:
    point_2d min; // (xmin, ymin)
    point_2d max; // (xmax, ymax)

    // --- definition ---------------------------------------------------------

    // The empty box (1, 1)-(-1, -1).
    Box2D() { EmptyBox(); }
    // Stored in argument order, not sorted.
    Box2D(float xmin, float ymin, float xmax, float ymax)
        : min(xmin, ymin), max(xmax, ymax) {}
    // Minimum corner a, maximum corner b, not sorted.
    Box2D(point_2d const& a, point_2d const& b) : min(a), max(b) {}
    // Copy of b.
    Box2D(Box2D const& b) = default;
    Box2D& operator=(Box2D const& b) = default;
    // The x and y extents of a Box3D.
    Box2D(Box3D const& b);
    Box2D& operator=(Box3D const& b);

    // Makes this the empty box.
    void EmptyBox() { min.Set(1.0f, 1.0f); max.Set(-1.0f, -1.0f); }
    // Stores xmin, ymin, xmax, ymax in argument order, not sorted.
    void DefineBox(float xmin, float ymin, float xmax, float ymax);
    // Copy of b.
    void DefineBox(Box2D const& b);
    // The x and y extents of a Box3D.
    void DefineBox(Box3D const& b);
    // The box spanned by a and b: per axis the smaller coordinate becomes the
    // minimum, the larger the maximum. Of point_3d corners only x and y are
    // used.
    void DefineBox(point_2d const& a, point_2d const& b);
    void DefineBox(point_3d const& a, point_3d const& b);

    // --- changes ------------------------------------------------------------

    // Shifts both corners by (dx, dy).
    void Move(float dx, float dy);
    // Minimum corner - (dx, dy), maximum corner + (dx, dy); negative values
    // shrink the box.
    void Grow(float dx, float dy);
    // Exchanges min and max on every axis where min > max.
    void Adjust();
    // Per axis min = max(min, b.min), max = min(max, b.max). The result is
    // inverted (empty) when the boxes do not overlap.
    void Intersect(Box2D const& b);
    // Per-axis minimum and maximum of both boxes, with no special case for
    // empty boxes (see the section comment).
    Box2D& operator+=(Box2D const& b);
    void Union(Box2D const& b);
    Box2D operator+(Box2D const& b) const;
    // An empty box becomes the single point p; otherwise every bound is
    // extended to p.
    void AddPt(point_2d& p);
    void AddPt(nd_point_2d& p);

    // --- queries --------------------------------------------------------------

    // 1 when the four floats are exactly equal.
    int operator==(Box2D const& b) const;
    // 1 when min > max on some axis.
    int IsEmpty() const;
    // Half-open test: xmin <= p.x < xmax and ymin <= p.y < ymax.
    int Contains(point_2d const& p) const;
    int IsIn(point_2d const& p) const;
    // xmin - tol <= p.x <= xmax + tol and ymin - tol <= p.y < ymax + tol: the
    // upper x bound is inclusive, the upper y bound exclusive.
    int IsIn(point_2d const& p, float tol) const;
    // The same test on the double point p[2], computed in double.
    int IsIn2D(double* p, double tol) const;
    // Overlap of the open boxes: boxes that only touch do not intersect.
    int IsIntersect(Box2D const& b) const;
    // Overlap of the closed boxes: touching boxes intersect.
    int CanIntersect(Box2D const& b) const;
    // Overlap with a gap allowance: boxes apart by at most tol on every axis
    // count as intersecting. Of a Box3D only the x and y extents are used.
    int CanIntersect(Box2D const& b, float tol) const;
    int CanIntersect(Box3D const& b, float tol) const;
    // 1 when b lies inside this box, bounds included. Of a Box3D only the x
    // and y extents are used.
    int CanInclude(Box2D const& b) const;
    int CanInclude(Box3D const& b) const;

    // ((xmin + xmax) / 2, (ymin + ymax) / 2).
    point_2d GetCenter() const;
    // xmax - xmin and ymax - ymin; negative for an inverted box.
    float GetWidth() const;
    float GetHeight() const;
    // Writes the four corners anticlockwise from the minimum corner into
    // out[4]: (xmin, ymin), (xmax, ymin), (xmax, ymax), (xmin, ymax).
    // Returns 1, or 0 without writing anything for an empty box.
    int GetCorner(point_2d* out) const;
    // Placeholder for a segment test: always 1 (a possible intersection),
    // whatever the arguments.
    int CheckInter(point_3d const& a, point_3d const& b, float tol) const;
};

// ---------------------------------------------------------------------------
// Box3D: spatial box (xmin, ymin, zmin)-(xmax, ymax, zmax).
// ---------------------------------------------------------------------------
class KORVEX_API Box3D {
public:
    point_3d min; // (xmin, ymin, zmin)
    point_3d max; // (xmax, ymax, zmax)

    // --- definition ---------------------------------------------------------

    // The empty box (1, 1, 1)-(-1, -1, -1).
    Box3D() { EmptyBox(); }
    // The flat box spanned by a and b in the plane z = 0 (x and y sorted).
    Box3D(point_2d const& a, point_2d const& b);
    // Copy of b.
    Box3D(Box3D const& b) = default;
    Box3D& operator=(Box3D const& b) = default;
    // The x and y extents of a Box2D, zmin = zmax = 0.
    Box3D(Box2D const& b);

    // Makes this the empty box.
    void EmptyBox() { min.Set(1.0f, 1.0f, 1.0f); max.Set(-1.0f, -1.0f, -1.0f); }
    // Copy of b.
    void DefineBox(Box3D const& b);
    // The x and y extents of a Box2D, zmin = zmax = z.
    void DefineBox(Box2D const& b, float z);
    // The box spanned by a and b, sorted per axis.
    void DefineBox(point_3d const& a, point_3d const& b);

    // --- changes ------------------------------------------------------------

    // Shifts both corners by (dx, dy, dz).
    void Move(float dx, float dy, float dz);
    // Minimum corner - (dx, dy, dz), maximum corner + (dx, dy, dz).
    void Grow(float dx, float dy, float dz);
    // Exchanges min and max on every axis where min > max.
    void Adjust();
    // Per axis min = max(min, b.min), max = min(max, b.max); may leave an
    // inverted (empty) box.
    void Intersect(Box3D const& b);
    // Per-axis minimum and maximum, with no special case for empty boxes.
    void Union(Box3D const& b);
    // Union that skips empty boxes: an empty this becomes a copy of b, an
    // empty b changes nothing.
    Box3D& operator+=(Box3D const& b);
    // The union of operator+= as a new box.
    Box3D operator+(Box3D const& b) const;
    // An empty box becomes the single point p; otherwise every bound is
    // extended to p.
    void AddPt(point_3d& p);

    // --- queries --------------------------------------------------------------

    // 1 when the six floats are exactly equal.
    int operator==(Box3D const& b) const;
    // 1 when min > max on some axis.
    int IsEmpty() const;
    // Half-open test: min <= p < max on every axis.
    int Contains(point_3d const& p) const;
    int IsIn(point_3d const& p) const;
    // x in [xmin - tol, xmax + tol], y in [ymin - tol, ymax + tol),
    // z in [zmin - tol, zmax + tol): only the upper x bound is inclusive.
    int IsIn(point_3d const& p, float tol) const;
    // The Box2D test on the x and y extents.
    int IsIn(point_2d const& p, float tol) const;
    // The Box2D test on the x and y extents, for the double point p[2].
    int IsIn2D(double* p, double tol) const;
    // Overlap of the open boxes.
    int IsIntersect(Box3D const& b) const;
    // Overlap of the closed boxes.
    int CanIntersect(Box3D const& b) const;
    // Overlap with a gap allowance of tol; against a Box2D only x and y are
    // tested.
    int CanIntersect(Box3D const& b, float tol) const;
    int CanIntersect(Box2D const& b, float tol) const;
    // 1 when b lies inside this box, bounds included.
    int CanInclude(Box3D const& b) const;

    // Midpoint of the two corners.
    point_3d GetCenter() const;
    // max - min per axis; negative for an inverted box.
    float GetXWidth() const;
    float GetYWidth() const;
    float GetZWidth() const;
    // Writes the eight corners into out[8]: the face z = zmin anticlockwise
    // from (xmin, ymin), then the face z = zmax in the same order. Returns 1,
    // or 0 without writing anything for an empty box.
    int GetCorner(point_3d* out) const;
    // Placeholder for a segment test: always 1, whatever the arguments.
    int CheckInter(point_3d const& a, point_3d const& b, float tol) const;
};

// Layout pins: the boxes are their two corners, nothing else.
static_assert(sizeof(Box2D) == 16, "Box2D must be four floats");
static_assert(offsetof(Box2D, min) == 0 && offsetof(Box2D, max) == 8,
              "Box2D fields must be xmin, ymin, xmax, ymax");
static_assert(sizeof(Box3D) == 24, "Box3D must be six floats");
static_assert(offsetof(Box3D, min) == 0 && offsetof(Box3D, max) == 12,
              "Box3D fields must be the minimum corner, then the maximum corner");
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
// ---------------------------------------------------------------------------
// Picking: points and polylines under a pick ray or a pick window
// ---------------------------------------------------------------------------
//
// Ray picking. The cursor is a ray through eye[3] with direction dir[3]
// (model coordinates), and a pick radius measured perpendicular to it. dir
// should be a unit vector: it is not normalised, and depths are measured in
// units of its length; a zero dir gives a meaningless result. A view frame
// (X, Y, dir) is built from dir as mathGetXYFromZ does, except that X is
// normalised without a length check (a dir shorter than 1e-10 still gets a
// unit X): X is dir with its smallest component dropped and the other two
// swapped, one negated, and Y = dir x X. A model point q then has the local
// coordinates u = (q - eye).X, v = (q - eye).Y and the depth
// w = (q - eye).dir, and lies sqrt(u*u + v*v) from the ray.
//
// Window picking. The cursor is a screen rectangle from wmin[2] (lower left)
// to wmax[2] (upper right), together with the 4x4 view matrix m[16]
// (row-major, the point as the row vector (x, y, z, 1)):
//     screen x = x*m[0] + y*m[4] + z*m[8] + m[12]
//     screen y = x*m[1] + y*m[5] + z*m[9] + m[13]
// (the other columns are ignored). The window counts as open with a margin
// of 1e-5 on every side.
//
// A polyline is pts[0..n-1] with segments between consecutive vertices (not
// closed). Planar points are taken at z = 0; the tag of nd_point_2d is not
// read. Arithmetic is double. The functions allocate nothing, write their
// outputs only on a hit and return 1 (hit) or 0 (no hit, null pts, too few
// points). They are re-entrant; the window functions read the global
// tolerances gmGetDistTol, gmGetParaTol and gmGetAbsZero.
// ---------------------------------------------------------------------------

// Single point p under the ray: 1 when its distance from the ray is below
// radius, with depth = w; else 0 and depth untouched.
KORVEX_API int PntPickPt(point_2d p, const double eye[3], const double dir[3], double radius,
                         double& depth);

// Polyline under the ray. Segments are tried in order; within a segment its
// start vertex, then its end vertex, then its interior (the point of the
// segment's line nearest the ray, accepted for a segment fraction t within
// (-1e-10, 1.0000000001)). The first hit wins and gives
//     param = (index of the segment's start vertex) + t
//     depth = (1 - t)*w0 + t*w_end
// where w0 is the depth of vertex 0 OF THE POLYLINE (not of the segment)
// and w_end that of the segment's end vertex: exact when all vertices share
// one depth, as a planar polyline seen along its normal does. Both outputs
// are rounded to float precision. A polyline of fewer than two vertices is
// never hit (use PntPickPt for a single point); null pts gives 0.
KORVEX_API int PntPickPT2D(const point_2d* pts, int n, const double eye[3], const double dir[3],
                           double radius, double& depth, double& param);
KORVEX_API int PntPickNDPT2D(const nd_point_2d* pts, int n, const double eye[3],
                             const double dir[3], double radius, double& depth, double& param);
KORVEX_API int PntPickPT3D(const point_3d* pts, int n, const double eye[3], const double dir[3],
                           double radius, double& depth, double& param);

// Polyline in the window: 1 when a vertex lies inside the window, or a
// segment crosses one of its edges (a segment is first rejected when both
// its ends lie beyond the same side, margin 1e-5). The crossing test uses
// gmGetDistTol as the margin of its own quick rejection, gmGetAbsZero to
// declare a segment parallel to an edge (parallel segments never cross, even
// overlapping ones: such a segment is found only through its vertices) and
// gmGetParaTol as the slack on both segment parameters. Null pts or n < 1
// gives 0.
KORVEX_API int WinInterPt2D(const point_2d* pts, int n, const double m[16], const double wmin[2],
                            const double wmax[2]);
KORVEX_API int WinInterNDPt2D(const nd_point_2d* pts, int n, const double m[16],
                              const double wmin[2], const double wmax[2]);
KORVEX_API int WinInterPt3D(const point_3d* pts, int n, const double m[16], const double wmin[2],
                            const double wmax[2]);
// ---------------------------------------------------------------------------
// Expression calculator
//
// Calculator evaluates one-line arithmetic expressions with named variables.
// Input() filters the text, splits it into tokens and stores it in postfix
// order; the host then reads the variable names, supplies their values with
// Assign() and calls Compute() as often as it likes, without parsing again:
//
//     Calculator calc;
//     char text[] = "a*sin(x)+b";
//     if (calc.Input(text)) {                 // names are now A, X, B
//         double v[3] = {2.0, 30.0, 1.0};     // in the order of GetVariableName
//         calc.Assign(v);
//         if (calc.Compute() && calc.GetErrorID() == 0)
//             use(calc.GetResult());          // 2
//     }
//
// Expressions. Numbers are decimal literals without exponent ("1.5", ".5");
// a sign directly after one of "+-*/^(" or at the start, and followed by a
// digit or ".", belongs to the literal, so "-2^2" is 4 and "2--3" is 5.
// Operators: binary + - * / (left-associative), ^ (power, right-associative,
// binding tighter than * and /), unary + and -, parentheses. Functions, which
// bind tighter than everything on their right ("SIN(30)^2" is (sin 30)^2):
//     SIN COS TAN        argument in degrees
//     COT                1/tan(x) with x in RADIANS
//     ARCSIN ARCCOS ARCTAN   result in degrees; ARCSIN gives 90 / -90 for
//                        x >= 1 / x <= -1, ARCCOS gives 0 for x >= 1 and
//                        3.141592653589793 (not 180) for x <= -1
//     SQR SQRT           square root of |x| (SQR is not the square)
//     LOG10 LOG EXP      decimal logarithm, natural logarithm, exponential
//     SINH COSH TANH ABS
//     INT                floor(x): INT(-2.5) is -3
// Any other identifier (letters, then letters or digits, up to 29 characters)
// is a variable; at most 15 distinct variables. Letters are case-insensitive:
// Input() upper-cases the caller's buffer IN PLACE. Every character outside
// letters, digits and "+-*/()^." (blanks, tabs, line ends, commas,
// underscores, ...) is dropped before parsing, so "2 3" is 23 and "SIN 30" is
// the variable SIN30.
//
// Errors. Input() and Compute() return false on an error and never throw;
// GetErrorID() gives the error id, GetErrorMessage() its text and
// GetErrorLineNo() a fixed diagnostic site number that tells which check
// fired:
//     id  message                         sites
//      0  "no errors"
//      1  "expression too long"           394 (more than 500 characters)
//      2  "missing operand"               277, 326 (also: empty expression)
//      3  "missing operator"              195, 209, 257 (parsing), 532
//      4  "missing left parenthesis"      360
//      5  "missing right paraenthesis"    380
//      6  "devide by zero"                420
//      7  "unknown operator"              167, 177 (e.g. a leading "*")
//      8  "invalid operator"              425, 428, 480, 484
//      9  "unknown error"                 537 (nothing to evaluate)
//     10  "too many variables"            214
//     11  "variable's name too long"      148 (30 characters or more)
// A division by zero does not stop Compute(): the quotient is taken as 0,
// Compute() still returns true and only GetErrorID() (6) tells. Compute()
// never resets the error fields; an error stays reported until the next
// Input() or Clear().
//
// Storage. Everything lives inside the object (about 25 KB); nothing is
// allocated. The internal queue and stacks hold 1000 entries each, which the
// 500-character input limit keeps out of reach; should one of them overflow
// or be read while empty all the same, it writes a message to standard error
// and ends the process with exit status 1. An object is used by one thread
// at a time; separate objects are independent.
// ---------------------------------------------------------------------------

// One token of an expression. Codes: 0 number, 1..15 variable (index + 1),
// 20 "(", 21 "+", 22 "-", 23 "*", 24 "/", 25 "^", 40 ")", 41 unary "-",
// 42 unary "+", 51..67 function (51 + its index in SIN, COS, TAN, SQR, LOG10,
// LOG, COT, ABS, INT, ARCSIN, ARCCOS, ARCTAN, SINH, COSH, TANH, EXP, SQRT).
struct Token {
    int code;          // token kind, see above
    int inPriority;    // priority when arriving at the operator stack
    int stackPriority; // priority while lying on the operator stack
    double value;      // the number, for code 0
};

// Circular queue of 1000 tokens. Enqueue on a full queue and Dequeue on an
// empty one print "Queue overflow!" / "Deleting from an empty queue!" to
// standard error and end the process with status 1.
class KORVEX_API TokenQueue {
public:
    static constexpr int capacity = 1000;

    TokenQueue();
    void Clear();                      // head, tail and count to 0
    bool IsEmpty() const;
    bool IsFull() const;
    int Count() const;
    void Enqueue(const Token& token);  // store at the tail
    Token Dequeue();                   // take from the head
    // The k-th token from the head, 0 <= k < Count() (not checked).
    const Token& At(int k) const;

private:
    Token items[capacity];
    int head;
    int tail;
    int count;
};

// Stack of 1000 tokens. Push on a full stack prints "Stack overflow!", Pop
// and Peek on an empty one "Attempt to pop an empty stack!" / "Attempt to
// peek at an empty stack!", to standard error, and end the process with
// status 1.
class KORVEX_API TokenStack {
public:
    static constexpr int capacity = 1000;

    TokenStack();
    void Clear();                      // top index to -1
    bool IsEmpty() const;
    bool IsFull() const;
    void Push(const Token& token);
    Token Pop();
    const Token& Peek() const;         // the top token, left in place

private:
    Token items[capacity];
    int top;                           // -1 when empty
};

// Stack of 1000 doubles, with the same faults as TokenStack.
class KORVEX_API ValueStack {
public:
    static constexpr int capacity = 1000;

    ValueStack();
    void Clear();
    bool IsEmpty() const;
    bool IsFull() const;
    void Push(double value);
    double Pop();
    double Peek() const;

private:
    double items[capacity];
    int top;                           // -1 when empty
};

class KORVEX_API Calculator {
public:
    static constexpr int maxVariables = 15;
    static constexpr int maxNameLength = 29;   // characters, without the NUL
    static constexpr int maxTextLength = 500;  // characters accepted by Input

    // An empty calculator (see Clear).
    Calculator();

    // Empties the postfix form, sets the result and every value to 0, clears
    // the error, the expression and all variable names.
    void Clear();

    // Parses text (NUL-terminated) and stores its postfix form. Upper-cases
    // the caller's buffer in place, up to its NUL. Returns true when no error
    // was found; on false, GetErrorID and GetErrorLineNo tell why. Discards
    // the previous expression, its variables and values. A null text is taken
    // as an empty one (error 2).
    bool Input(char* text);

    // Evaluates the stored postfix form with the current values and stores
    // the result. Returns false when the form does not reduce to a single
    // value (errors 3 and 9; error 9 also when a sign or function is closed
    // off before its operand, as in "(-)1", which parses without error, or
    // when the form left by a failed Input lacks an operand); an error met
    // on the way (division by zero,
    // id 6) leaves the result computed with 0 in its place and is reported
    // only through GetErrorID. Repeatable; the stored form is kept.
    bool Compute();

    // Copies GetNumberOfVariables() doubles from values into the variable
    // values, in the order of GetVariableName. A null pointer changes
    // nothing.
    void Assign(double* values);

    double GetResult();                   // the result of the last Compute
    int GetErrorID() const;               // 0 when no error
    int GetErrorLineNo() const;           // site number of the error
    // The message for an error id; "UNKNOWN ERROR ID!!!" for ids outside
    // 0..11. The text is static: never freed, never changed.
    const char* GetErrorMessage(int id) const;
    int GetNumberOfVariables();           // distinct variables found, 0..15
    // Upper-case name of variable i, 0 <= i < GetNumberOfVariables(), else
    // a null pointer. Valid until the next Input or Clear.
    const char* GetVariableName(int i);

    // Console dialogue on the standard streams: prompts "Input a
    // expression: ", reads one line, asks for each variable ("No.1  A = ")
    // and prints "Answer: " and the result, or "ERROR : " with the message
    // and "Near Line " with the site number.
    void Test();

private:
    void SetError(int id, int site);
    bool Tokenise(TokenQueue& infix);
    void ToPostfix(TokenQueue& infix);
    double ApplyBinary(int code, double left, double right);
    double ApplyUnary(int code, double x);

    TokenQueue postfix;                      // the expression in postfix order
    double result;                           // last result of Compute
    double values[maxVariables];             // variable values, by index
    char names[maxVariables][maxNameLength + 1]; // NUL-terminated names
    char expression[maxTextLength + 2];      // the filtered expression text
    int errorId;                             // 0, or an id of the table above
    int errorLine;                           // site number of the error
    int variableCount;                       // distinct variables, 0..15
};

#endif // KORVEX_CLASSES_HPP
