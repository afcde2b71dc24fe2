# benchmarks: poly
korvex_add_bench(korvex_bench_poly poly_bench.cpp)
