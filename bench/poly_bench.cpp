// Per-call cost of the closed-form quartic solvers and of the Hessenberg QR
// eigenvalue iteration on companion matrices of degree 4 to 20.
#include <korvex/capi.h>
#include <benchmark/benchmark.h>

#include <cstdint>
#include <vector>

namespace {

uint32_t lcgState = 2024u;

double uniform(double lo, double hi)
{
    lcgState = lcgState * 1664525u + 1013904223u;
    return lo + (hi - lo) * ((lcgState >> 8) / double(1u << 24));
}

// Coefficients (highest first) of a polynomial with the given real roots and
// complex pairs re +- i im.
std::vector<double> fromRoots(const std::vector<double>& real,
                              const std::vector<std::pair<double, double>>& pairs)
{
    std::vector<double> c{1.0};
    auto multiply = [&c](const std::vector<double>& f) {
        std::vector<double> next(c.size() + f.size() - 1, 0.0);
        for (size_t i = 0; i < c.size(); ++i)
            for (size_t j = 0; j < f.size(); ++j)
                next[i + j] += c[i] * f[j];
        c = next;
    };
    for (double r : real)
        multiply({1.0, -r});
    for (const auto& p : pairs)
        multiply({1.0, -2.0 * p.first, p.first * p.first + p.second * p.second});
    return c;
}

// A mix of quartics: four real roots, two real roots and a pair, two pairs.
std::vector<std::vector<double>> quarticSet()
{
    std::vector<std::vector<double>> set;
    for (int i = 0; i < 64; ++i) {
        std::vector<double> real;
        std::vector<std::pair<double, double>> pairs;
        const int realCount = (i % 3) * 2; // 0, 2, 4
        for (int k = 0; k < realCount; ++k)
            real.push_back(uniform(-10, 10));
        for (int k = realCount; k < 4; k += 2)
            pairs.emplace_back(uniform(-5, 5), uniform(0.1, 5));
        set.push_back(fromRoots(real, pairs));
    }
    return set;
}

void BM_SolQuarEqua(benchmark::State& state)
{
    const auto set = quarticSet();
    double x[4];
    size_t i = 0;
    for (auto _ : state) {
        const int k = mathSolQuarEqua(set[i].data(), 1e-12, x);
        benchmark::DoNotOptimize(k);
        benchmark::DoNotOptimize(x);
        i = (i + 1) % set.size();
    }
}
BENCHMARK(BM_SolQuarEqua);

void BM_Slvequ4(benchmark::State& state)
{
    const auto set = quarticSet();
    double wr[4], wi[4];
    int n = 0;
    size_t i = 0;
    for (auto _ : state) {
        const std::vector<double>& c = set[i];
        mathSlvequ4(c[0], c[1], c[2], c[3], c[4], wr, wi, &n);
        benchmark::DoNotOptimize(wr);
        benchmark::DoNotOptimize(wi);
        i = (i + 1) % set.size();
    }
}
BENCHMARK(BM_Slvequ4);

void BM_SlvequR4(benchmark::State& state)
{
    const auto set = quarticSet();
    double roots[4];
    int n = 0;
    size_t i = 0;
    for (auto _ : state) {
        const std::vector<double>& c = set[i];
        mathSlvequR4(c[0], c[1], c[2], c[3], c[4], roots, &n);
        benchmark::DoNotOptimize(roots);
        benchmark::DoNotOptimize(n);
        i = (i + 1) % set.size();
    }
}
BENCHMARK(BM_SlvequR4);

// Companion matrix of a polynomial with roots of modulus 0.5 to 2, half of
// them in complex pairs. The copy of the matrix (HQR destroys it) is part of
// the measured time; it is small against the iteration.
void BM_HQR(benchmark::State& state)
{
    const int n = static_cast<int>(state.range(0));
    std::vector<double> real;
    std::vector<std::pair<double, double>> pairs;
    for (int k = 0; k < n / 4; ++k)
        pairs.emplace_back(uniform(-1.2, 1.2), uniform(0.3, 1.2));
    while (static_cast<int>(real.size() + 2 * pairs.size()) < n)
        real.push_back(uniform(0.5, 2.0) * (real.size() % 2 ? -1.0 : 1.0));
    const std::vector<double> c = fromRoots(real, pairs);

    std::vector<double> companion(static_cast<size_t>(n) * n, 0.0);
    for (int j = 0; j < n; ++j)
        companion[j] = -c[j + 1] / c[0];
    for (int i = 1; i < n; ++i)
        companion[static_cast<size_t>(i) * n + i - 1] = 1.0;

    std::vector<double> work(companion.size()), wr(n), wi(n);
    for (auto _ : state) {
        work = companion;
        const int ok = mathHQR(work.data(), n, wr.data(), wi.data(), 1e-15, 60);
        if (!ok)
            state.SkipWithError("no convergence");
        benchmark::DoNotOptimize(wr.data());
        benchmark::DoNotOptimize(wi.data());
    }
}
BENCHMARK(BM_HQR)->DenseRange(4, 20, 2);

} // namespace
