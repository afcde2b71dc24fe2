// Cost per call of the calculator's parse and evaluation, and of polyline
// picking per vertex.
#include <korvex/korvex.hpp>

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstring>
#include <vector>

namespace {

const char* const expressions[] = {
    "2*3+4",
    "a*x^2+b*x+c",
    "sin(x)^2+cos(x)^2-sqrt(abs(a*b))/(1+exp(-c))",
};

void BM_CalculatorInput(benchmark::State& state)
{
    const char* const text = expressions[state.range(0)];
    char buffer[512];
    Calculator calc;
    for (auto _ : state) {
        std::strcpy(buffer, text);
        benchmark::DoNotOptimize(calc.Input(buffer));
    }
    state.SetLabel(text);
}
BENCHMARK(BM_CalculatorInput)->DenseRange(0, 2);

void BM_CalculatorCompute(benchmark::State& state)
{
    const char* const text = expressions[state.range(0)];
    char buffer[512];
    std::strcpy(buffer, text);
    Calculator calc;
    calc.Input(buffer);
    double values[Calculator::maxVariables] = {1.5, 2.5, 3.5, 4.5};
    double x = 0.0;
    for (auto _ : state) {
        values[0] = x;
        x += 0.25;
        calc.Assign(values);
        benchmark::DoNotOptimize(calc.Compute());
        benchmark::DoNotOptimize(calc.GetResult());
    }
    state.SetLabel(text);
}
BENCHMARK(BM_CalculatorCompute)->DenseRange(0, 2);

// A zigzag that the ray never meets, so every vertex is visited.
template <class Point>
std::vector<Point> Zigzag(int n)
{
    std::vector<Point> pts(n);
    for (int i = 0; i < n; ++i) {
        pts[i].x = static_cast<float>(i);
        pts[i].y = static_cast<float>(10 + (i % 2));
    }
    return pts;
}

template <class Point, int (*Pick)(const Point*, int, const double*, const double*, double,
                                   double&, double&)>
void BM_RayPickPerVertex(benchmark::State& state)
{
    const int n = static_cast<int>(state.range(0));
    const std::vector<Point> pts = Zigzag<Point>(n);
    const double eye[3] = {-5, -5, 10};
    const double dir[3] = {0.1, 0.1, -0.99};
    double depth = 0, param = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(Pick(pts.data(), n, eye, dir, 0.5, depth, param));
    state.SetItemsProcessed(state.iterations() * n);
}
BENCHMARK_TEMPLATE(BM_RayPickPerVertex, point_2d, PntPickPT2D)->Arg(1000);
BENCHMARK_TEMPLATE(BM_RayPickPerVertex, point_3d, PntPickPT3D)->Arg(1000);

// Window pick: the zigzag runs beside the window (every segment is rejected
// by coordinates) or diagonally past its corner (every segment reaches the
// edge tests).
void BM_WindowPickPerVertex(benchmark::State& state)
{
    const int n = 1000;
    std::vector<point_2d> pts = Zigzag<point_2d>(n);  // y 10 and 11
    const bool nearCorner = state.range(0) != 0;
    if (nearCorner)  // alternately left of and above the upper left corner
        for (int i = 0; i < n; ++i)
            pts[i].Set(i % 2 ? 0.5f : -1.0f, i % 2 ? 31.0f : 29.5f);
    const double m[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, nearCorner ? 0.0 : -20.0, 0, 1};
    const double wmin[2] = {0, 0};
    const double wmax[2] = {10, 30};
    for (auto _ : state)
        benchmark::DoNotOptimize(WinInterPt2D(pts.data(), n, m, wmin, wmax));
    state.SetItemsProcessed(state.iterations() * n);
    state.SetLabel(nearCorner ? "edge tests" : "quick rejection");
}
BENCHMARK(BM_WindowPickPerVertex)->Arg(0)->Arg(1);

} // namespace
