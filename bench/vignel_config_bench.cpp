// Reading and writing large configuration files, beside reading and writing the same bytes plainly.
//
// "peak" is how much memory reading took beside the size of the file, "fresh_ms" how long in a process of its
// own, where no memory has been used before.
#include "bench/measure.h"
#include "core/vignel_config.h"
#include "platform/files.h"
#include "platform/paths.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <unistd.h>

namespace orrelix {

namespace fs = std::filesystem;

namespace {

constexpr size_t kFileSize = 64 << 20;

enum class EShape { BigSegment, Parameters, Resources };

const char* NameOf(EShape shape) {
    const char* names[] = {"one big segment", "parameter keys", "resources"};
    return names[static_cast<int>(shape)];
}

// A store whose file has about nSize bytes in nRecords records.
std::unique_ptr<CVignelConfig> MakeStore(EShape shape, size_t nSize, long nRecords) {
    auto pStore = std::make_unique<CVignelConfig>();
    const size_t nEach = nSize / static_cast<size_t>(nRecords);
    for (long nRecord = 0; nRecord < nRecords; ++nRecord) {
        switch (shape) {
        case EShape::BigSegment: {
            std::string body;
            body.reserve(nSize);
            while (body.size() < nEach)
                body += "<p>A line of the page, about as long as lines of generated text are.</p>\r\n";
            pStore->AddSegment({"cursor", CString(std::move(body))});
            break;
        }
        case EShape::Parameters:
            pStore->SetParameter(std::string("Key") + Number(nRecord), CString(std::string(nEach - 15, 'v')));
            break;
        case EShape::Resources:
            pStore->AddResource({CString(std::string("image") + Number(nRecord) + ".gif"),
                                 CString(std::string(nEach / 2 - 16, 'l')),
                                 CString(std::string(nEach / 2 - 4, 'w'))});
        }
    }
    return pStore;
}

class CScratch {
public:
    CScratch() {
        std::string name = (fs::temp_directory_path() / "orrelix-bench-XXXXXX").string();
        m_Path = mkdtemp(name.data());
    }
    ~CScratch() { fs::remove_all(m_Path); }
    fs::path m_Path;
};

// A file of a shape, made once and kept while the program runs.
fs::path FileOf(EShape shape, size_t nSize, long nRecords) {
    static CScratch s_Scratch;
    fs::path path =
        s_Scratch.m_Path / (std::string(NameOf(shape)) + Number(nRecords) + Number(long(nSize)) + ".cfg");
    if (!fs::exists(path))
        MakeStore(shape, nSize, nRecords)->WriteFile(FromSystemPath(path.string()));
    return path;
}

// Reads the file in one call and copies its bytes once, into memory of their own.
void ReadPlainly(const fs::path& path) {
    const size_t nSize = fs::file_size(path);
    std::unique_ptr<char[]> pBytes(new char[nSize]), pCopy(new char[nSize]);
    FILE* pFile = fopen(path.c_str(), "rb");
    benchmark::DoNotOptimize(fread(pBytes.get(), 1, nSize, pFile));
    fclose(pFile);
    memcpy(pCopy.get(), pBytes.get(), nSize);
    benchmark::DoNotOptimize(pCopy.get());
}

// Writes the bytes in one call and has them brought to the disk, as the store's writer does.
void WritePlainly(const fs::path& path, const std::string& bytes) {
    FILE* pFile = fopen(path.c_str(), "wb");
    benchmark::DoNotOptimize(fwrite(bytes.data(), 1, bytes.size(), pFile));
    fflush(pFile);
    fsync(fileno(pFile));
    fclose(pFile);
}

// The most memory that this process has had, in bytes.
double PeakOfThisProcess() {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (word == "VmHWM:" && status >> word)
            return std::stod(word) * 1024;
    }
    return 0;
}

struct CFreshProcess {
    double m_Peak = 0;
    double m_Seconds = 0;
};

// What this program takes in a process of its own, where no memory has been used before.
CFreshProcess RunFresh(const char* pArgument, const fs::path& path) {
    CFreshProcess fresh;
    const std::string command = "exec '" + fs::read_symlink("/proc/self/exe").string() + "' " + pArgument +
                                " '" + path.string() + "'";
    if (FILE* pOutput = popen(command.c_str(), "r")) {
        if (fscanf(pOutput, "%lf %lf", &fresh.m_Peak, &fresh.m_Seconds) != 2)
            fresh = {};
        pclose(pOutput);
    }
    return fresh;
}

void ReadConfigFile(benchmark::State& state, EShape shape, size_t nSize, long nRecords) {
    const fs::path path = FileOf(shape, nSize, nRecords);
    const auto read = [&] {
        CVignelConfig config;
        config.ReadFile(FromSystemPath(path.string()));
        benchmark::DoNotOptimize(config.m_Segments.GetSize());
    };
    MeasureBeside(
        state, fs::file_size(path), [&] { ReadPlainly(path); }, read);
    const CFreshProcess fresh = RunFresh("--read", path);
    state.counters["peak"] =
        (fresh.m_Peak - RunFresh("--nothing", path).m_Peak) / double(fs::file_size(path));
    state.counters["fresh_ms"] = 1000 * fresh.m_Seconds;
}

void WriteConfigFile(benchmark::State& state, EShape shape, size_t nSize, long nRecords) {
    const fs::path path = FileOf(shape, nSize, nRecords);
    CVignelConfig config;
    config.ReadFile(FromSystemPath(path.string()));
    std::string bytes;
    ReadWholeFile(FromSystemPath(path.string()), bytes);
    const fs::path target = path.parent_path() / "written";
    MeasureBeside(
        state, bytes.size(), [&] { WritePlainly(target, bytes); },
        [&] { config.WriteFile(FromSystemPath(target.string())); });
}

const int s_nRegistered = [] {
    const struct {
        EShape m_Shape;
        long m_nRecords;
    } shapes[] = {{EShape::BigSegment, 1}, {EShape::Parameters, 1'000'000}, {EShape::Resources, 60'000}};
    for (const auto& [shape, nRecords] : shapes) {
        const std::string what = std::string("64 MiB of ") + NameOf(shape);
        benchmark::RegisterBenchmark(("read " + what).c_str(), ReadConfigFile, shape, kFileSize, nRecords)
            ->MinTime(1.0)
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(("write " + what).c_str(), WriteConfigFile, shape, kFileSize, nRecords)
            ->MinTime(1.0)
            ->Unit(benchmark::kMillisecond);
        if (nRecords > 1) {
            benchmark::RegisterBenchmark(
                ("read a tenth of it, 1/10 of the " + std::string(NameOf(shape))).c_str(), ReadConfigFile,
                shape, kFileSize / 10, nRecords / 10)
                ->MinTime(1.0)
                ->Unit(benchmark::kMillisecond);
        }
    }
    return 0;
}();

} // namespace

} // namespace orrelix

int main(int nArguments, char** pArguments) {
    using namespace orrelix;
    if (nArguments == 3) {
        CVignelConfig config;
        const double seconds = Seconds([&] {
            if (pArguments[1] == std::string_view("--read"))
                config.ReadFile(FromSystemPath(pArguments[2]));
        });
        printf("%.0f %f\n", PeakOfThisProcess(), seconds);
        return 0;
    }
    benchmark::Initialize(&nArguments, pArguments);
    benchmark::RunSpecifiedBenchmarks();
}
