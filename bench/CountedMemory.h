#pragma once

#include <benchmark/benchmark.h>

namespace bench
{

/// Counts what `new` hands out while one of the benchmarks runs and reports the peak beside its time. Linking
/// CountedMemory.cpp replaces `new` and `delete` of the whole program; memory that the toolkit takes in other
/// ways is not counted.
class CountedMemory final : public benchmark::MemoryManager
{
public:
    void Start() override;
    void Stop(Result& rResult) override;
    void Stop(Result* rResult) override { Stop(*rResult); }
};

} // namespace bench
