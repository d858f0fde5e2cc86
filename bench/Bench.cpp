#include "Bench.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <limits>
#include <map>
#include <sstream>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <sys/wait.h>
#include <unistd.h>

#include "PeakMemory.h"

namespace {

struct Side {
  std::string name;
  bench::Preparation prepare;
  double nanoseconds = std::numeric_limits<double>::infinity();  // the best of all repetitions
  std::size_t peakBytes = 0;
};

struct Workload {
  std::string name;
  std::vector<Side> sides;
};

std::vector<Workload>& workloads() {
  static std::vector<Workload> all;
  return all;
}

Side* findSide(const std::string& fullName) {
  for (Workload& workload : workloads())
    for (Side& side : workload.sides)
      if (workload.name + "/" + side.name == fullName) return &side;
  return nullptr;
}

// The most memory held at once while the work is done the first time, in a process of its own, so that nothing that
// an earlier run has cached is found.
std::size_t peakOf(const bench::Preparation& prepare) {
  int channel[2];
  if (pipe(channel) != 0) throw std::runtime_error("pipe failed");
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("fork failed");
  if (child == 0) {
    const bench::Work work = prepare();
    peak_memory::start();
    work();
    const std::size_t peak = peak_memory::stop();
    const bool written = write(channel[1], &peak, sizeof peak) == static_cast<ssize_t>(sizeof peak);
    _exit(written ? 0 : 1);
  }
  close(channel[1]);
  std::size_t peak = 0;
  const bool complete = read(channel[0], &peak, sizeof peak) == static_cast<ssize_t>(sizeof peak);
  close(channel[0]);
  int status = 0;
  waitpid(child, &status, 0);
  if (!complete || status != 0) throw std::runtime_error("a benchmark failed while its memory was measured");
  return peak;
}

class BestTimes : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      Side* side = findSide(run.run_name.function_name);
      if (side == nullptr || run.run_type != Run::RT_Iteration || run.error_occurred) continue;
      side->nanoseconds =
          std::min(side->nanoseconds, run.GetAdjustedCPUTime() * 1e9 / benchmark::GetTimeUnitMultiplier(run.time_unit));
    }
  }
};

std::string number(double value) {
  char text[32];
  std::snprintf(text, sizeof text, value < 10 ? "%.2f" : "%.1f", value);
  return text;
}

std::string timeText(double nanoseconds) {
  if (nanoseconds < 1e3) return number(nanoseconds) + " ns";
  return nanoseconds < 1e6 ? number(nanoseconds / 1e3) + " µs" : number(nanoseconds / 1e6) + " ms";
}

std::string bytesText(std::size_t bytes) {
  const auto size = static_cast<double>(bytes);
  return size < 1e6 ? number(size / 1e3) + " kB" : number(size / 1e6) + " MB";
}

// The results as a Markdown table.
std::string table() {
  std::ostringstream out;
  out << "| work | by | time | ours / theirs | peak memory |\n|---|---|---:|---:|---:|\n";
  for (const Workload& workload : workloads()) {
    const Side& ours = workload.sides.front();
    for (const Side& side : workload.sides) {
      if (side.nanoseconds == std::numeric_limits<double>::infinity()) continue;
      out << "| " << workload.name << " | " << side.name << " | " << timeText(side.nanoseconds) << " | "
          << (&side == &ours ? "" : number(ours.nanoseconds / side.nanoseconds)) << " | "
          << (side.peakBytes == 0 ? "" : bytesText(side.peakBytes)) << " |\n";
    }
  }
  return out.str();
}

}  // namespace

namespace bench {

Case::Case(const char* workload, const char* side, Preparation prepare) {
  auto at = std::find_if(workloads().begin(), workloads().end(), [&](const Workload& w) { return w.name == workload; });
  if (at == workloads().end()) at = workloads().insert(at, Workload{workload, {}});
  at->sides.push_back(Side{side, std::move(prepare)});
}

void keep(const void* result) {
  benchmark::DoNotOptimize(result);
}

}  // namespace bench

// Runs the benchmarks; with --table=FILE memory is measured as well, and all is written there as a Markdown table.
int main(int argc, char** argv) {
  std::string tableFile;
  const std::string option = "--table=";
  for (int i = 1; i < argc; ++i) {
    if (std::string(argv[i]).rfind(option, 0) != 0) continue;
    tableFile = argv[i] + option.size();
    std::move(argv + i + 1, argv + argc, argv + i);
    --argc;
    --i;
  }
  // The C library would raise these thresholds once a large block is freed, and spare all later cases the page faults
  // that the earlier ones had.
  mallopt(M_MMAP_THRESHOLD, 128 * 1024);
  mallopt(M_TRIM_THRESHOLD, 128 * 1024);

  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;

  for (Workload& workload : workloads()) {
    for (Side& side : workload.sides) {
      if (!tableFile.empty()) side.peakBytes = peakOf(side.prepare);
      benchmark::RegisterBenchmark((workload.name + "/" + side.name).c_str(), [&side](benchmark::State& state) {
        const bench::Work work = side.prepare();
        for (auto iteration : state) {
          static_cast<void>(iteration);
          work();
        }
      })->Unit(benchmark::kMillisecond);
    }
  }
  BestTimes reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  std::cout << '\n' << table();
  if (!tableFile.empty()) {
    std::ofstream file(tableFile);
    if (!(file << table() << std::flush)) {
      std::cerr << "cannot write " << tableFile << '\n';
      return 3;
    }
  }
  return 0;
}
