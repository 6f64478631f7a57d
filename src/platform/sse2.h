#pragma once

/// Registers of 16 bytes and what works on them, where every processor of the kind has them.
#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define TAVIMOR_HAS_SSE2
#endif
