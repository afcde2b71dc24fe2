// Korvex umbrella header: the C-style interface and the class interface.
#ifndef KORVEX_KORVEX_HPP
#define KORVEX_KORVEX_HPP

#include "korvex/capi.h"
#include "korvex/classes.hpp"

#endif // KORVEX_KORVEX_HPP
