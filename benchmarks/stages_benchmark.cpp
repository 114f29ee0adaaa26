// Times the stages of a check on generated files in memory, in bytes per second. Before anything is
// timed the file is checked once: no number stands for a check that gives the wrong answer.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>

#include <benchmark/benchmark.h>

#include "dictionary/dictionary_store.h"
#include "generate_file.h"
#include "rules/keys.h"
#include "run/row_order.h"
#include "run/structure_rules.h"
#include "run/system_disk.h"
#include "run/version_detection.h"

namespace quorvane {
namespace {

constexpr std::uint64_t FileSize = 10'000'000;

struct FileCloser {
  void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};

std::string GenerateFile(int version) {
  const std::unique_ptr<std::FILE, FileCloser> file(std::tmpfile());
  if (!file) throw std::runtime_error("no temporary file");
  generate::FileOptions options;
  options.version = version;
  options.bytes = FileSize;
  generate::Output output(file.get());
  const generate::FileTotals totals = generate::WriteFile(options, output);
  if (!output.Flush()) throw std::runtime_error("cannot write the temporary file");
  std::string content(totals.bytes, '\0');
  std::rewind(file.get());
  if (std::fread(content.data(), 1, content.size(), file.get()) != content.size()) {
    throw std::runtime_error("cannot read the temporary file");
  }
  return content;
}

class NoBox : public ProgressBox {
 public:
  void Insert(std::string_view) override {}
  void Clear() override {}
  void ProcessPendingMessages() override {}
};

/// A file on its way through the stages.
struct Stages {
  explicit Stages(const std::string& bytes)
      : text(ByteBuffer(bytes)), runLog(box), log(runLog, false) {}

  void Convert() {
    const DetectedVersion version = *DetectVersion(text);
    log.SetFormat(version.format);
    if (version.format == AgsFormat::Ags4) ConvertAgs4Rows(text, log);
    const DictionaryChoice choice{version.format, version.isAgs404, {}};
    file = std::make_unique<CheckedFile>(
        text, version.format, BuildAgsDictionary(disk, choice, QUORVANE_SCHEMA_FOLDER), log);
  }

  SystemDisk disk;
  FileText text;
  NoBox box;
  RunLog runLog;
  MessageLog log;
  std::unique_ptr<CheckedFile> file;
};

/// The generated file of a version, checked to be without findings.
const std::string& TestFile(int version) {
  static const std::string files[2] = {GenerateFile(3), GenerateFile(4)};
  const std::string& bytes = files[version - 3];
  Stages stages(bytes);
  stages.Convert();
  ParseStructure(*stages.file);
  CheckParentKeys(*stages.file);
  CheckDuplicateKeys(*stages.file);
  if (stages.log.ClosedCount() != 0 || stages.file->table.GroupCount() < 10) {
    throw std::runtime_error("the generated file does not check clean");
  }
  return bytes;
}

void CountBytes(benchmark::State& state, const std::string& bytes) {
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                          static_cast<std::int64_t>(bytes.size()));
}

void SplitLines(benchmark::State& state) {
  const std::string& bytes = TestFile(static_cast<int>(state.range(0)));
  for ([[maybe_unused]] auto _ : state) {
    state.PauseTiming();
    ByteBuffer buffer(bytes);
    state.ResumeTiming();
    benchmark::DoNotOptimize(FileText(std::move(buffer)).LineCount());
  }
  CountBytes(state, bytes);
}

void DetectVersionAndRowLabels(benchmark::State& state) {
  const std::string& bytes = TestFile(static_cast<int>(state.range(0)));
  const Stages stages(bytes);
  NoBox box;
  RunLog runLog(box);
  MessageLog log(runLog, false);
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(DetectVersion(stages.text));
    if (state.range(0) == 4) benchmark::DoNotOptimize(CheckRowLabels(stages.text, log));
  }
  CountBytes(state, bytes);
}

/// Times one stage on a file that has come as far as the one before it.
template <typename Before, typename Stage>
void TimeStage(benchmark::State& state, Before before, Stage stage) {
  const std::string& bytes = TestFile(static_cast<int>(state.range(0)));
  for ([[maybe_unused]] auto _ : state) {
    state.PauseTiming();
    {
      Stages stages(bytes);
      before(stages);
      state.ResumeTiming();
      stage(stages);
      state.PauseTiming();
    }
    state.ResumeTiming();
  }
  CountBytes(state, bytes);
}

void ConvertRows(benchmark::State& state) {
  TimeStage(
      state, [](Stages&) {}, [](Stages& stages) { stages.Convert(); });
}

void ParseStructureAndData(benchmark::State& state) {
  TimeStage(
      state, [](Stages& stages) { stages.Convert(); },
      [](Stages& stages) { ParseStructure(*stages.file); });
}

void ParentKeys(benchmark::State& state) {
  TimeStage(
      state,
      [](Stages& stages) {
        stages.Convert();
        ParseStructure(*stages.file);
      },
      [](Stages& stages) { CheckParentKeys(*stages.file); });
}

void DuplicateKeys(benchmark::State& state) {
  TimeStage(
      state,
      [](Stages& stages) {
        stages.Convert();
        ParseStructure(*stages.file);
      },
      [](Stages& stages) { CheckDuplicateKeys(*stages.file); });
}

BENCHMARK(SplitLines)->ArgName("ags")->Arg(3)->Arg(4);
BENCHMARK(DetectVersionAndRowLabels)->ArgName("ags")->Arg(3)->Arg(4);
BENCHMARK(ConvertRows)->ArgName("ags")->Arg(4);
BENCHMARK(ParseStructureAndData)->ArgName("ags")->Arg(3)->Arg(4);
BENCHMARK(ParentKeys)->ArgName("ags")->Arg(3)->Arg(4);
BENCHMARK(DuplicateKeys)->ArgName("ags")->Arg(3)->Arg(4);

}  // namespace
}  // namespace quorvane

BENCHMARK_MAIN();
