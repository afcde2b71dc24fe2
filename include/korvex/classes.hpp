// Korvex class interface.
//
// Single-precision value classes for points and boxes, flat float matrices
// and the transformation classes TRANSF_2D and TRANSF_3D, point picking
// against a view window, and the expression Calculator.
//
// The value classes are laid out exactly as their fields (no virtual
// functions, no hidden members) so that hosts can keep them in large arrays
// and hand those arrays to the library. Coordinates are float; tolerance
// tests are computed in double against the global tolerances of capi.h
// (gmGetDistTol and friends).
#ifndef KORVEX_CLASSES_HPP
#define KORVEX_CLASSES_HPP

#include "korvex/export.h"

#include "korvex/sections/cls_point.hpp"
#include "korvex/sections/cls_box.hpp"
#include "korvex/sections/cls_matrix.hpp"
#include "korvex/sections/cls_transf.hpp"
#include "korvex/sections/cls_pick.hpp"
#include "korvex/sections/cls_calc.hpp"
#include "korvex/sections/cls_frame.hpp"

#endif // KORVEX_CLASSES_HPP
