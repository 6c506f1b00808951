#pragma once

#include <benchmark/benchmark.h>

/// Time that the median of a measure must stay under, in milliseconds; the table compares them. 0 for none.
inline void limite(benchmark::State &etat, double ms)
{
    if (ms > 0)
        etat.counters["limite"] = ms;
}
