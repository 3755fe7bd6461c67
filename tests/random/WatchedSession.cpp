#include "tests/random/WatchedSession.hpp"

#include "face/headless/Script.hpp"
#include "face/headless/ScriptWords.hpp"
#include "surface/Conversions.hpp"

#include <cmath>

namespace Tessoro::Random {

namespace {

// All folders from the root to the given one, which is empty.
std::map<std::string, std::vector<std::string>> FoldersDownTo(const std::string &folder) {
  std::map<std::string, std::vector<std::string>> folders{{folder, {}}};
  for (std::size_t end = folder.rfind('/'); end != std::string::npos;
       end = end == 0 ? std::string::npos : folder.rfind('/', end - 1)) {
    const std::size_t begin = end + 1;
    const std::string name = folder.substr(begin, folder.find('/', begin) - begin);
    folders[end == 0 ? "/" : folder.substr(0, end)] = {name};
  }
  return folders;
}

bool HasFraction(const TextBox &box) {
  try {
    const double number = box.App().StrictNumber(box.Text());
    return number != std::trunc(number);
  } catch (const Failure &) {
    return false;
  }
}

// Boxes whose text goes out as a controller, unrounded.
bool IsOnController(const TextBox &box) {
  static const auto names = [] {
    std::vector<std::string> found;
    for (const Sweep::BoxRow &row : Sweep::Controls().boxes)
      if (row.road.kind == 'c')
        found.push_back(row.name);
    return found;
  }();
  return std::ranges::find(names, box.Name()) != names.end();
}

} // namespace

WatchedSession::WatchedSession(const Files &machine, const std::string &folder, ExtraRule extraRule)
    : session(folder, printed, files), watch(session.App), rules(session),
      extra(std::move(extraRule)) {
  files.folders = FoldersDownTo(folder);
  files.workingDirectory = folder;
  for (const auto &[name, content] : machine)
    files.contents[std::string(folder).append("/").append(name)] = content;
  watch.onTextChange = [this](const TextBox &box) {
    if (HasFraction(box) && IsOnController(box))
      act.fractionOnController = true;
  };
}

void WatchedSession::TakeTrace() {
  act.trace.clear();
  const std::string all = std::move(printed).str();
  printed.str({});
  for (std::size_t begin = 0; begin < all.size();) {
    const std::size_t end = all.find('\n', begin);
    act.trace.push_back(all.substr(begin, end - begin));
    begin = end + 1;
  }
}

std::optional<Breach> WatchedSession::Play(const std::string &line) {
  const std::size_t handlersBefore = watch.Begun();
  act.fractionOnController = false;
  try {
    PlayLine(session, line);
  } catch (const ScriptError &) {
    throw;
  } catch (const std::exception &other) {
    return Breach{"exception", other.what()};
  }
  TakeTrace();
  act.deepestNesting = watch.Deepest();
  act.handlersRan = watch.Begun() != handlersBefore;
  act.filesOpen = files.open;
  if (auto breach = rules.BrokenBy(act))
    return breach;
  return extra ? extra(session) : std::nullopt;
}

std::optional<Breach> Replayed(const Files &machine, const std::string &folder,
                               const Script &script, const ExtraRule &extraRule) {
  WatchedSession session(machine, folder, extraRule);
  for (const std::string &line : script) {
    if (session.Editor().App.HasEnded())
      return std::nullopt;
    try {
      if (auto breach = session.Play(line))
        return breach;
    } catch (const ScriptError &) {
      return std::nullopt;
    }
  }
  return std::nullopt;
}

} // namespace Tessoro::Random
