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
