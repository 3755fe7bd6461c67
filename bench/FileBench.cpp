// A sound file against its bare bytes.
#include "bench/Benches.hpp"
#include "bench/NullMidi.hpp"
#include "bench/QuietPlatform.hpp"
#include "files/SoundFiles.hpp"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace Tessoro {

namespace {

namespace fs = std::filesystem;

// An init sound, and a file of it in a folder of its own.
class FileRun {
public:
  FileRun() : run(midi) {
    std::string name = (fs::temp_directory_path() / "tessoro-bench-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr)
      throw fs::filesystem_error("no folder for the benchmark", name, {});
    folder = name;
    run.app.F_Tessoro.InitPanelParams();
    WriteSound(run.app, Path());
  }
  ~FileRun() { fs::remove_all(folder); }
  FileRun(const FileRun &) = delete;
  FileRun &operator=(const FileRun &) = delete;

  Application &App() { return run.app; }
  std::string Path() const { return (folder / "bench.tss").string(); }

  std::string Bytes() const {
    std::ifstream file(Path(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

private:
  NullMidi midi;
  QuietRun run;
  fs::path folder;
};

void LoadSound(benchmark::State &state) {
  FileRun file;
  for ([[maybe_unused]] auto iteration : state)
    ReadSoundV15(file.App(), file.Path());
}

void SaveSound(benchmark::State &state) {
  FileRun file;
  for ([[maybe_unused]] auto iteration : state)
    WriteSound(file.App(), file.Path());
}

void BareRead(benchmark::State &state) {
  const FileRun file;
  for ([[maybe_unused]] auto iteration : state)
    benchmark::DoNotOptimize(file.Bytes());
}

void BareWrite(benchmark::State &state) {
  const FileRun file;
  const std::string bytes = file.Bytes();
  for ([[maybe_unused]] auto iteration : state)
    std::ofstream(file.Path(), std::ios::binary) << bytes;
}

} // namespace

void Benches::RegisterFiles() {
  benchmark::RegisterBenchmark(LoadOfSound, LoadSound);
  benchmark::RegisterBenchmark(BareReadOfSound, BareRead);
  benchmark::RegisterBenchmark(SaveOfSound, SaveSound);
  benchmark::RegisterBenchmark(BareWriteOfSound, BareWrite);
}

} // namespace Tessoro
