#include <korvex/korvex.hpp>

#include <gtest/gtest.h>

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
class SavedTolerances {
public:
    SavedTolerances() : dist(gmGetDistTol()), para(gmGetParaTol()), zero(gmGetAbsZero()) {}
    ~SavedTolerances()
    {
        gmSetDistTol(dist);
        gmSetParaTol(para);
        gmSetAbsZero(zero);
    }

private:
    double dist, para, zero;
};

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
    const double side[3] = {-10, 0, 0};
    const double alongX[3] = {1, 0, 0};
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
    double depth = untouched, param = untouched;

    // Null, empty and single-vertex polylines are never picked, even under
    // the cursor.
    const double eye[3] = {0, 0, 10};
    const std::vector<point_2d> one = Polyline2D<point_2d>({{0, 0}});
    EXPECT_EQ(PntPickPT2D(nullptr, 2, eye, down, 1.0, depth, param), 0);
    EXPECT_EQ(PntPickPT2D(one.data(), 0, eye, down, 1.0, depth, param), 0);
    EXPECT_EQ(PntPickPT2D(one.data(), 1, eye, down, 1.0, depth, param), 0);
    EXPECT_EQ(depth, untouched);
    EXPECT_EQ(param, untouched);

    // The interior of a segment.
    const double above[3] = {0, 1, 10};
    const std::vector<point_2d> line = Polyline2D<point_2d>({{-5, 0}, {5, 0}});
    EXPECT_EQ(PntPickPT2D(line.data(), 2, above, down, 2.0, depth, param), 1);
    EXPECT_DOUBLE_EQ(param, 0.5);
    EXPECT_DOUBLE_EQ(depth, 10.0);

    // Exactly at the radius from the line: a miss, just beyond it a hit.
    const double twoAbove[3] = {0, 2, 10};
    depth = param = untouched;
    EXPECT_EQ(PntPickPT2D(line.data(), 2, twoAbove, down, 2.0, depth, param), 0);
    EXPECT_EQ(param, untouched);
    EXPECT_EQ(PntPickPT2D(line.data(), 2, twoAbove, down, 2.0001, depth, param), 1);
    EXPECT_DOUBLE_EQ(param, 0.5);

    // The nearest point of the line lies beyond the segment's ends.
    const std::vector<point_2d> apart = Polyline2D<point_2d>({{1, 0}, {5, 0}});
    EXPECT_EQ(PntPickPT2D(apart.data(), 2, eye, down, 0.5, depth, param), 0);

    // The end vertex of a segment comes before the next segment's start.
    const std::vector<point_2d> bent = Polyline2D<point_2d>({{3, 0}, {0, 0}, {0, -3}});
    EXPECT_EQ(PntPickPT2D(bent.data(), 3, eye, down, 0.5, depth, param), 1);
    EXPECT_EQ(param, 1.0);
    // The first segment in order wins over a closer later one.
    const std::vector<point_2d> twice = Polyline2D<point_2d>({{-1, 0.4f}, {1, 0.4f}, {1, 0}, {-1, 0}});
    EXPECT_EQ(PntPickPT2D(twice.data(), 4, eye, down, 0.5, depth, param), 1);
    EXPECT_DOUBLE_EQ(param, 0.5);
}

TEST(RayPick, DepthRunsFromTheFirstVertexAndOutputsAreFloats)
{
    const double eye[3] = {0, 0, 10};
    double depth = untouched, param = untouched;

    // Segment 2 runs from depth 6 to depth 2 but the depth is interpolated
    // from vertex 0 (depth 10): 0.5 * 10 + 0.5 * 2 = 6, not 4.
    const point_3d pts[] = {point_3d(-20, 20, 0), point_3d(-10, 0, 4), point_3d(10, 0, 8)};
    EXPECT_EQ(PntPickPT3D(pts, 3, eye, down, 1.0, depth, param), 1);
    EXPECT_DOUBLE_EQ(param, 1.5);
    EXPECT_DOUBLE_EQ(depth, 6.0);

    // Both outputs are rounded to float.
    const double highEye[3] = {0, 0, 10.1};
    const std::vector<point_2d> third = Polyline2D<point_2d>({{-1, 0}, {2, 0}});
    EXPECT_EQ(PntPickPT2D(third.data(), 2, highEye, down, 0.01, depth, param), 1);
    EXPECT_EQ(depth, static_cast<double>(10.1f));
    EXPECT_EQ(param, static_cast<double>(static_cast<float>(param)));
    EXPECT_NEAR(param, 1.0 / 3.0, 1e-7);
    EXPECT_NE(param, 1.0 / 3.0);

    // nd_point_2d arrays are walked with their own stride; the tag is
    // ignored. A later segment gives its start index plus the fraction.
    std::vector<nd_point_2d> tagged = Polyline2D<nd_point_2d>({{-9, 9}, {-9, 5}, {-4, 0}, {4, 0}});
    for (nd_point_2d& p : tagged)
        p.tag = 0xFFFF;
    EXPECT_EQ(PntPickNDPT2D(tagged.data(), 4, eye, down, 0.5, depth, param), 1);
    EXPECT_DOUBLE_EQ(param, 2.5);
}

namespace {

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
