# benchmarks: pick_calc
korvex_add_bench(korvex_bench_pick_calc pick_calc.cpp)
