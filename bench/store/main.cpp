// ptk_bench --data DIR [--server SOCKET-FOLDER] [--large] [Google Benchmark's own options]
#include "server/ServerData.h"
#include "store/BenchData.h"

#include <benchmark/benchmark.h>
#include <string_view>
#include <vector>

namespace bench {
void RegisterStoreBenchmarks(bool large);
void RegisterReportBenchmarks();
void RegisterCheckBenchmarks();
void RegisterTrailBenchmarks();
void RegisterServerBenchmarks(bool large);
} // namespace bench

int main(int argc, char** argv)
{
    bool large = false;
    std::vector<char*> rest{argv[0]};
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--large") {
            large = true;
        } else if (argument == "--data" && i + 1 < argc) {
            bench::DataFolder(argv[++i]);
        } else if (argument == "--server" && i + 1 < argc) {
            bench::ServerFolder(argv[++i]);
        } else {
            rest.push_back(argv[i]);
        }
    }
    int count = static_cast<int>(rest.size());
    benchmark::Initialize(&count, rest.data());
    bench::RegisterStoreBenchmarks(large);
    bench::RegisterReportBenchmarks();
    bench::RegisterCheckBenchmarks();
    bench::RegisterTrailBenchmarks();
    if (!bench::ServerFolder().empty()) {
        bench::RegisterServerBenchmarks(large);
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
