# benchmarks: linear
