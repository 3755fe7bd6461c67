#include "bench/WindowStart.hpp"

#include "bench/Medians.hpp"
#include "bench/ProgramDirectory.hpp"
#include "bench/VirtualDisplay.hpp"

#include <array>
#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <thread>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Tessoro {

namespace {

using Clock = std::chrono::steady_clock;

// Until the display has forgotten the window that went.
constexpr std::chrono::milliseconds RestBetweenStarts{30};

WindowStart StartOnce(const char *program, const std::string &argument) {
  std::array<int, 2> pipeEnds{};
  if (pipe(pipeEnds.data()) != 0)
    throw std::runtime_error("no pipe");
  const Clock::time_point begin = Clock::now();
  const pid_t process = fork();
  if (process == 0) {
    dup2(pipeEnds[1], STDOUT_FILENO);
    execl(program, program, argument.c_str(), nullptr);
    _exit(EXIT_FAILURE);
  }
  close(pipeEnds[1]);
  char done = 0;
  const bool painted = read(pipeEnds[0], &done, 1) == 1;
  const std::chrono::duration<double> time = Clock::now() - begin;
  close(pipeEnds[0]);
  int status = 0;
  rusage usage{};
  wait4(process, &status, 0, &usage);
  if (!painted || status != 0)
    throw std::runtime_error(std::string(program) + " did not paint");
  std::this_thread::sleep_for(RestBetweenStarts);
  constexpr double kibibytesInMebibyte = 1024;
  return {time.count(), static_cast<double>(usage.ru_maxrss) / kibibytesInMebibyte};
}

struct Samples {
  std::vector<double> seconds;
  std::vector<double> mebibytes;

  void Add(const WindowStart &start) {
    seconds.push_back(start.seconds);
    mebibytes.push_back(start.mebibytes);
  }
  WindowStart Medians() const { return {Median(seconds), Median(mebibytes)}; }
};

} // namespace

WindowStarts MeasureWindowStarts(int repetitions) {
  const ProgramDirectory directory;
  const VirtualDisplay display;
  setenv("QT_QPA_PLATFORM", "xcb", 1);
  setenv("XDG_RUNTIME_DIR", directory.Name().c_str(), 0); // so that Qt has nothing to complain of
  StartOnce(TESSORO_EDITOR_WINDOW, directory.Name());     // so that the disk has been read
  Samples editor;
  Samples emptyWindow;
  Samples windowWithWord;
  for (int i = 0; i < repetitions; ++i) {
    emptyWindow.Add(StartOnce(TESSORO_EMPTY_WINDOW, directory.Name()));
    windowWithWord.Add(StartOnce(TESSORO_WORD_WINDOW, directory.Name()));
    editor.Add(StartOnce(TESSORO_EDITOR_WINDOW, directory.Name()));
  }
  return {editor.Medians(), emptyWindow.Medians(), windowWithWord.Medians()};
}

} // namespace Tessoro
