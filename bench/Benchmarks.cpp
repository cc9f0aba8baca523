#include "Cases.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <ctime>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

/// This process's processor time in seconds: without other programs' work on a busy machine.
double ProcessorSeconds()
{
    timespec time = {};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

double WallSeconds()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// Measures a case; its preparation does not count.
void Measure(benchmark::State& state, Bench& bench, const Case& measured, bool warm)
{
    const auto prepare = [&]
    {
        if (measured.Prepare != nullptr)
            measured.Prepare(bench);
    };
    double (*const now)() = measured.Counted == Clock::Wall ? WallSeconds : ProcessorSeconds;
    bench.Place.Enter();
    if (warm)
    {
        prepare();
        measured.Work(bench); // makes what is built when first needed
    }
    for ([[maybe_unused]] auto time : state)
    {
        prepare();
        const double start = now();
        measured.Work(bench);
        state.SetIterationTime(now() - start);
    }
}

/// The name, which `compare` parses: "case/by/size".
void Register(Bench& bench, const Case& measured)
{
    constexpr int fewTimes = 5;
    const std::string size(bench.Place.Size().Name);
    const std::string name = std::string(measured.Name) + "/" + std::string(measured.By) + "/" + size;
    const bool once = measured.Grows == Growth::Product && size == University.Name;
    auto* registered =
        benchmark::RegisterBenchmark(name.c_str(), [&bench, &measured, once](benchmark::State& state)
                                     { Measure(state, bench, measured, !once); });
    registered->UseManualTime()->Unit(benchmark::kMillisecond);
    if (once)
        registered->Iterations(1)->Repetitions(1);
    else if (measured.Counted == Clock::Wall)
        registered->Iterations(fewTimes);
}

void Run(const std::filesystem::path& folder, std::string_view sizes, bool quick)
{
    const auto isFeasible = [&](const CatalogueSize& size)
    { return size.Name == Faculty.Name || (size.Name == University.Name && !quick); };

    std::vector<std::unique_ptr<Bench>> benches;
    for (const CatalogueSize& size : CatalogueSizes)
        if (sizes.find(size.Name) != std::string_view::npos)
            benches.push_back(std::make_unique<Bench>(size, folder));

    for (const auto& bench : benches)
    {
        const CatalogueSize& size = bench->Place.Size();
        bench->Place.Enter();
        RequireSameAsSqlite(*bench);
        if (isFeasible(size))
            RequireSameAsReference(*bench);
        for (const Case& measured : Cases())
            if (measured.Grows == Growth::Linear || isFeasible(size))
                Register(*bench, measured);
    }
    benchmark::RunSpecifiedBenchmarks();
    for (const auto& bench : benches)
        std::filesystem::remove(bench->ExportPath());
}

} // namespace

/// benchmarks FOLDER SIZES [quick]: SIZES is a list such as "faculty,university"; "quick" leaves out what
/// takes seconds. The benchmark library's own options are also accepted.
int main(int count, char** arguments)
{
    benchmark::Initialize(&count, arguments);
    if (count < 3)
    {
        std::cerr << "benchmarks FOLDER SIZES [quick]\n";
        return 2;
    }
    SqliteCatalogue::Configure();
    try
    {
        Run(arguments[1], arguments[2], count > 3);
    }
    catch (const std::exception& error)
    {
        std::cerr << error.what() << '\n';
        return 1;
    }
    return 0;
}
