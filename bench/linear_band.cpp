// Band solver timing for growing systems: the cost should grow linearly
// with the number of equations.
#include <korvex/capi.h>

#include <benchmark/benchmark.h>

#include <chrono>
#include <vector>

namespace {

const int kEndBlock = 4;

// Diagonally dominant system in the band layout with 3D right sides.
void fillSystem(int n, std::vector<double> &A, std::vector<double> &B)
{
    A.assign(static_cast<size_t>(n) * 4, 0.0);
    B.resize(static_cast<size_t>(n) * 3);
    A[0] = 4.0;
    A[1] = 1.0;
    A[2] = 0.5;
    A[3] = 0.25;
    for (int i = 1; i < n; ++i) {
        double *row = &A[static_cast<size_t>(i) * 4];
        if (i <= n - kEndBlock) {
            row[0] = 1.0;
            row[1] = 4.0;
            row[2] = 1.0;
            row[3] = 0.5;
        } else {
            for (int j = 0; j < kEndBlock; ++j)
                row[j] = (j == i - (n - kEndBlock)) ? 4.0 : 0.5;
        }
    }
    for (size_t i = 0; i < B.size(); ++i)
        B[i] = 1.0 + 0.001 * static_cast<double>(i % 1000);
}

void BM_CurveBandSolver(benchmark::State &state)
{
    const int n = static_cast<int>(state.range(0));
    std::vector<double> A0, B0;
    fillSystem(n, A0, B0);
    std::vector<double> A(A0.size()), B(B0.size()), X(B0.size());
    for (auto _ : state) {
        A = A0; // the solver overwrites its inputs; refill outside the timing
        B = B0;
        const auto start = std::chrono::steady_clock::now();
        const int ok = mathSolCurvBandMatx(n, kEndBlock, A.data(), B.data(), X.data());
        const auto stop = std::chrono::steady_clock::now();
        benchmark::DoNotOptimize(ok);
        benchmark::ClobberMemory();
        state.SetIterationTime(std::chrono::duration<double>(stop - start).count());
        if (ok != 1)
            state.SkipWithError("solver reported a singular system");
    }
    state.SetComplexityN(n);
    state.SetItemsProcessed(state.iterations() * n);
}

} // namespace

BENCHMARK(BM_CurveBandSolver)
    ->RangeMultiplier(10)
    ->Range(1000, 1000000)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond)
    ->Complexity(benchmark::oN);
