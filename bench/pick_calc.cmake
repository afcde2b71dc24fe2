# benchmarks: pick_calc
