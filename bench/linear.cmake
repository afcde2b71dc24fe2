# benchmarks: linear
korvex_add_bench(korvex_bench_linear linear_band.cpp)
