// A sound file against its bare bytes.
#include "bench/Benches.hpp"
#include "bench/NullMidi.hpp"
#include "bench/QuietPlatform.hpp"
#include "files/SoundFiles.hpp"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace Tessoro {

namespace {

namespace fs = std::filesystem;

// Two sounds without a control in common: a load of what is there already would send next to
// nothing.
constexpr std::array<const char *, 2> Sounds = {TESSORO_FILES_DIRECTORY "/complete.tss",
                                                TESSORO_FILES_DIRECTORY "/before.tss"};

std::string BytesOf(const std::string &path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// An editor with a sound, and a folder of its own for it.
class FileRun {
public:
  FileRun() : run(midi) {
    std::string name = (fs::temp_directory_path() / "tessoro-bench-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr)
      throw fs::filesystem_error("no folder for the benchmark", name, {});
    folder = name;
    run.app.F_Tessoro.InitPanelParams();
    ReadSoundV15(run.app, Sounds[0]);
  }
  ~FileRun() { fs::remove_all(folder); }
  FileRun(const FileRun &) = delete;
  FileRun &operator=(const FileRun &) = delete;

  Application &App() { return run.app; }
  std::string Path() const { return (folder / "bench.tss").string(); }

private:
  NullMidi midi;
  QuietRun run;
  fs::path folder;
};

void LoadSound(benchmark::State &state) {
  FileRun file;
  std::size_t turn = 0;
  for ([[maybe_unused]] auto iteration : state)
    ReadSoundV15(file.App(), Sounds[++turn % Sounds.size()]);
}

void SaveSound(benchmark::State &state) {
  FileRun file;
  for ([[maybe_unused]] auto iteration : state)
    WriteSound(file.App(), file.Path());
}

void BareRead(benchmark::State &state) {
  std::size_t turn = 0;
  for ([[maybe_unused]] auto iteration : state)
    benchmark::DoNotOptimize(BytesOf(Sounds[++turn % Sounds.size()]));
}

void BareWrite(benchmark::State &state) {
  const FileRun file;
  const std::string bytes = BytesOf(Sounds[0]);
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
