# benchmarks: poly
