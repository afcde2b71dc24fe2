#include <korvex/korvex.hpp>

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

namespace {

const double down[3] = {0.0, 0.0, -1.0};  // looking down the z axis

// Sentinels that a miss must leave in place.
const double untouched = -12345.0;

template <class Point>
std::vector<Point> Polyline2D(std::initializer_list<std::pair<float, float>> xy)
{
    std::vector<Point> pts;
    for (const auto& p : xy) {
        Point q;
        q.x = p.first;
        q.y = p.second;
        pts.push_back(q);
    }
    return pts;
}

// Restores the global tolerances changed by a test.
struct SavedTolerances {
    const double dist = gmGetDistTol(), para = gmGetParaTol(), zero = gmGetAbsZero();
    ~SavedTolerances() { gmSetDistTol(dist); gmSetParaTol(para); gmSetAbsZero(zero); }
};

// The result and both outputs of a polyline pick. The outputs start as
// sentinels, so a miss that leaves them in place compares equal to `miss`.
struct Pick {
    int hit;
    double depth, param;
    bool operator==(const Pick& o) const { return hit == o.hit && depth == o.depth && param == o.param; }
};

void PrintTo(const Pick& p, std::ostream* os)
{
    *os << "{" << p.hit << ", " << p.depth << ", " << p.param << "}";
}

const Pick miss = {0, untouched, untouched};

template <class Point>
Pick PickPolyline(int (*pick)(const Point*, int, const double*, const double*, double, double&, double&),
                  const std::vector<Point>& pts, const double eye[3], double radius)
{
    Pick r = miss;
    r.hit = pick(pts.data(), static_cast<int>(pts.size()), eye, down, radius, r.depth, r.param);
    return r;
}

Pick Pick2D(std::initializer_list<std::pair<float, float>> xy, const double eye[3], double radius)
{
    return PickPolyline(PntPickPT2D, Polyline2D<point_2d>(xy), eye, radius);
}

// Screen = model x, y; z moves the point along screen x through m[8].
const double identity[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
const double wmin[2] = {0, 0};
const double wmax[2] = {10, 10};

int Window2D(std::initializer_list<std::pair<float, float>> xy)
{
    const std::vector<point_2d> pts = Polyline2D<point_2d>(xy);
    return WinInterPt2D(pts.data(), static_cast<int>(pts.size()), identity, wmin, wmax);
}

} // namespace

TEST(RayPick, SinglePointHitsStrictlyInsideTheRadius)
{
    const double eye[3] = {0, 0, 10};
    double depth = untouched;
    EXPECT_EQ(PntPickPt(point_2d(0.3f, 0.3f), eye, down, 0.5, depth), 1);
    EXPECT_DOUBLE_EQ(depth, 10.0);

    depth = untouched;
    EXPECT_EQ(PntPickPt(point_2d(0.4f, 0.4f), eye, down, 0.5, depth), 0);  // 0.57 away
    EXPECT_EQ(PntPickPt(point_2d(0.5f, 0.0f), eye, down, 0.5, depth), 0);  // exactly on the radius
    EXPECT_EQ(depth, untouched);
    EXPECT_EQ(PntPickPt(point_2d(0.5f, 0.0f), eye, down, 0.5000001, depth), 1);

    // A ray along x: the view frame follows the direction.
    const double side[3] = {-10, 0, 0}, alongX[3] = {1, 0, 0};
    EXPECT_EQ(PntPickPt(point_2d(2.0f, 0.3f), side, alongX, 0.5, depth), 1);
    EXPECT_DOUBLE_EQ(depth, 12.0);
    EXPECT_EQ(PntPickPt(point_2d(2.0f, 0.6f), side, alongX, 0.5, depth), 0);

    // A very short direction still spans a proper view plane: the distance
    // from the ray is measured, and the depth shrinks with the direction.
    const double tiny[3] = {0, 0, -5e-11};
    EXPECT_EQ(PntPickPt(point_2d(0.0f, 0.6f), eye, tiny, 0.5, depth), 0);
    EXPECT_EQ(PntPickPt(point_2d(0.0f, 0.3f), eye, tiny, 0.5, depth), 1);
    EXPECT_DOUBLE_EQ(depth, 5e-10);
}

TEST(RayPick, PolylineFindsVerticesAndInteriors)
{
    // Null, empty and single-vertex polylines are never picked, even under
    // the cursor.
    const double eye[3] = {0, 0, 10};
    const point_2d origin(0, 0);
    double depth = untouched, param = untouched;
    EXPECT_EQ(PntPickPT2D(nullptr, 2, eye, down, 1.0, depth, param), 0);
    EXPECT_EQ(PntPickPT2D(&origin, 0, eye, down, 1.0, depth, param), 0);
    EXPECT_EQ(PntPickPT2D(&origin, 1, eye, down, 1.0, depth, param), 0);
    EXPECT_EQ((Pick{0, depth, param}), miss);

    // The interior of a segment; exactly at the radius from the line is a
    // miss, just beyond it a hit.
    const double above[3] = {0, 1, 10}, twoAbove[3] = {0, 2, 10};
    EXPECT_EQ(Pick2D({{-5, 0}, {5, 0}}, above, 2.0), (Pick{1, 10.0, 0.5}));
    EXPECT_EQ(Pick2D({{-5, 0}, {5, 0}}, twoAbove, 2.0), miss);
    EXPECT_EQ(Pick2D({{-5, 0}, {5, 0}}, twoAbove, 2.0001), (Pick{1, 10.0, 0.5}));

    // The nearest point of the line lies beyond the segment's ends.
    EXPECT_EQ(Pick2D({{1, 0}, {5, 0}}, eye, 0.5), miss);

    // The end vertex of a segment comes before the next segment's start, and
    // the first segment in order wins over a closer later one.
    EXPECT_EQ(Pick2D({{3, 0}, {0, 0}, {0, -3}}, eye, 0.5), (Pick{1, 10.0, 1.0}));
    EXPECT_EQ(Pick2D({{-1, 0.4f}, {1, 0.4f}, {1, 0}, {-1, 0}}, eye, 0.5), (Pick{1, 10.0, 0.5}));
}

TEST(RayPick, DepthRunsFromTheFirstVertexAndOutputsAreFloats)
{
    // Segment 2 runs from depth 6 to depth 2 but the depth is interpolated
    // from vertex 0 (depth 10): 0.5 * 10 + 0.5 * 2 = 6, not 4.
    const double eye[3] = {0, 0, 10};
    const std::vector<point_3d> pts = {point_3d(-20, 20, 0), point_3d(-10, 0, 4), point_3d(10, 0, 8)};
    EXPECT_EQ(PickPolyline(PntPickPT3D, pts, eye, 1.0), (Pick{1, 6.0, 1.5}));

    // Both outputs are rounded to float: a third is not the double one.
    const double highEye[3] = {0, 0, 10.1};
    const Pick third = Pick2D({{-1, 0}, {2, 0}}, highEye, 0.01);
    EXPECT_EQ(third, (Pick{1, static_cast<double>(10.1f), static_cast<double>(1.0f / 3.0f)}));
    EXPECT_NE(third.param, 1.0 / 3.0);

    // nd_point_2d arrays are walked with their own stride; the tag is
    // ignored. A later segment gives its start index plus the fraction.
    std::vector<nd_point_2d> tagged = Polyline2D<nd_point_2d>({{-9, 9}, {-9, 5}, {-4, 0}, {4, 0}});
    for (nd_point_2d& p : tagged)
        p.tag = 0xFFFF;
    EXPECT_EQ(PickPolyline(PntPickNDPT2D, tagged, eye, 0.5), (Pick{1, 10.0, 2.5}));
}

TEST(WindowPick, VerticesCountWithinTheMargin)
{
    EXPECT_EQ(Window2D({{5, 5}}), 1);
    EXPECT_EQ(Window2D({{0, 5}}), 1);            // on the border
    EXPECT_EQ(Window2D({{-0.000009f, 5}}), 1);   // within 1e-5 outside
    EXPECT_EQ(Window2D({{-0.00002f, 5}}), 0);
    EXPECT_EQ(Window2D({{20, 20}, {5, 5}}), 1);  // a later vertex

    const point_2d inside(5, 5);
    EXPECT_EQ(WinInterPt2D(&inside, 0, identity, wmin, wmax), 0);
    EXPECT_EQ(WinInterPt2D(nullptr, 3, identity, wmin, wmax), 0);
    EXPECT_EQ(WinInterNDPt2D(nullptr, 3, identity, wmin, wmax), 0);
    EXPECT_EQ(WinInterPt3D(nullptr, 3, identity, wmin, wmax), 0);
}

TEST(WindowPick, SegmentsCrossingTheWindow)
{
    EXPECT_EQ(Window2D({{-5, 5}, {15, 5}}), 1);     // straight through
    EXPECT_EQ(Window2D({{-5, 12}, {12, -5}}), 1);   // across a corner
    EXPECT_EQ(Window2D({{-5, 11}, {15, 11}}), 0);   // above it
    EXPECT_EQ(Window2D({{-1, 9.99f}, {1, 10.03f}}), 0);  // past the top left corner
    EXPECT_EQ(Window2D({{-5, 0}, {15, 0}}), 1);     // along the bottom edge, through the corners
    EXPECT_EQ(Window2D({{-5, -5}, {-5, 15}, {15, 15}}), 0);
    EXPECT_EQ(Window2D({{-5, -5}, {-5, 15}, {15, 15}, {15, 5}, {-5, 5}}), 1);

    // The matrix: translation, scale, and z for spatial points; the third
    // and fourth columns are ignored.
    const double m[16] = {2, 0, 99, 99, 0, 2, 99, 99, 1, 0, 99, 99, -20, -20, 99, 99};
    const point_3d deep[] = {point_3d(10, 12, 5), point_3d(0, 0, 0)};
    EXPECT_EQ(WinInterPt3D(deep, 1, m, wmin, wmax), 1);   // screen (5, 4)
    EXPECT_EQ(WinInterPt3D(deep + 1, 1, m, wmin, wmax), 0);
    const point_2d flat(10, 12);                           // screen (0, 4)
    EXPECT_EQ(WinInterPt2D(&flat, 1, m, wmin, wmax), 1);

    std::vector<nd_point_2d> tagged = Polyline2D<nd_point_2d>({{-5, 5}, {-5, 6}, {15, 5}});
    EXPECT_EQ(WinInterNDPt2D(tagged.data(), 2, identity, wmin, wmax), 0);
    EXPECT_EQ(WinInterNDPt2D(tagged.data(), 3, identity, wmin, wmax), 1);
}

TEST(WindowPick, CrossingTestReadsTheGlobalTolerances)
{
    SavedTolerances saved;
    const std::pair<float, float> a(-5, 5), b(15, 5);

    // A determinant below the absolute zero means parallel: no crossing.
    gmSetAbsZero(1e3);
    EXPECT_EQ(Window2D({a, b}), 0);
    EXPECT_EQ(Window2D({a, {5, 5}}), 1);  // vertices are still found
    gmSetAbsZero(1e-10);

    // The parallelism tolerance widens both segment parameters.
    gmSetParaTol(0.01);
    EXPECT_EQ(Window2D({{-1, 9.99f}, {1, 10.03f}}), 1);
    gmSetParaTol(0.0001);

    // The distance tolerance is the margin of the crossing's quick rejection.
    gmSetDistTol(-100);
    EXPECT_EQ(Window2D({a, b}), 0);
}
