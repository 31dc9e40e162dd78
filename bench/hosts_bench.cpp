// The component as its hosts meet it: the library as it is shipped, loaded by the public headers.
#include "include/orrelix.hpp"

#include <benchmark/benchmark.h>
#include <malloc.h>

namespace {

// What is shipped is without debugging symbols.
const std::filesystem::path kLibrary = ORRELIX_STRIPPED_LIBRARY;

// The library, its first object, and both gone again, of which loading and creating are measured.
void LoadAndCreate(benchmark::State& state) {
    state.counters["library_KiB"] = static_cast<double>(std::filesystem::file_size(kLibrary)) / 1024;
    for ([[maybe_unused]] auto _ : state) {
        const vignel::Library library(kLibrary);
        vignel::Object object = library.Create(VignelClsidOrrelix);
        state.PauseTiming();
        object = vignel::Object();
        VignelUnload(library.Handle());
        state.ResumeTiming();
    }
}
BENCHMARK(LoadAndCreate)->Unit(benchmark::kMillisecond);

// An object, and the memory that it takes.
void CreateObject(benchmark::State& state) {
    const vignel::Library library(kLibrary);
    const vignel::Object first = library.Create(VignelClsidOrrelix);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(library.Create(VignelClsidOrrelix).Address());
    const size_t nBefore = mallinfo2().uordblks;
    const vignel::Object object = library.Create(VignelClsidOrrelix);
    state.counters["object_KiB"] = static_cast<double>(mallinfo2().uordblks - nBefore) / 1024;
}
BENCHMARK(CreateObject);

// By its number, as hosts that look names up once call it. The title is one of a page's.
void GetTitle(benchmark::State& state) {
    const vignel::Library library(kLibrary);
    const vignel::Orrelix orrelix(library);
    orrelix.SetTitle("welcome_text");
    constexpr int32_t kTitle = 2;
    VignelArguments none{};
    for ([[maybe_unused]] auto _ : state) {
        VignelVariant title{};
        orrelix.Address()->Invoke(kTitle, VignelIidNull, 0, VIGNEL_GET, &none, &title, nullptr, nullptr);
        VignelClearVariant(&title);
    }
}
BENCHMARK(GetTitle);

} // namespace
