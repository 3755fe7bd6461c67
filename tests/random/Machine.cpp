#include "tests/random/Machine.hpp"

#include <fstream>
#include <iterator>

namespace Tessoro::Random {

namespace {

std::string Content(const std::string &name) {
  std::ifstream file(std::string(TESSORO_FILES_DIRECTORY) + "/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// Read once.
const std::string &Sound(std::size_t kind) {
  static const std::string sounds[] = {Content("complete.tss"), Content("before.tss"),
                                       Content("old.tss"), Content("dump.syx")};
  return sounds[kind];
}

constexpr std::size_t SoundKinds = 4;
constexpr std::size_t DumpKind = 3;

char DrawByte(Generator &random) { return static_cast<char>(Draw(random, 256)); }

// Another content for the line that stands around a place.
void ReplaceLine(Generator &random, std::string &content) {
  const std::size_t place = Draw(random, content.size());
  const std::size_t before = content.rfind('\n', place);
  const std::size_t begin = before == std::string::npos ? 0 : before + 1;
  const std::size_t end = std::min(content.find("\r\n", begin), content.size());
  const bool isQuoted = content[begin] == '"';
  const std::string text = DrawText(random);
  content.replace(begin, end - begin, isQuoted ? '"' + text + '"' : text);
}

std::string Damaged(Generator &random, std::string content) {
  for (std::size_t damages = Draw(random, 4); damages > 0 && !content.empty(); --damages) {
    switch (Draw(random, 8)) {
    case 0:
      content.resize(Draw(random, content.size()));
      break;
    case 1:
      content[Draw(random, content.size())] = DrawByte(random);
      break;
    case 2:
      content.insert(Draw(random, content.size()), 1, DrawByte(random));
      break;
    case 3:
      content.erase(Draw(random, content.size()), 1);
      break;
    default:
      ReplaceLine(random, content);
    }
  }
  return content;
}

std::string DrawSettings(Generator &random) {
  const std::string good =
      "\"Tessoro v1.3.1\"\r\n\"Tessoro freeware version\",\"1.3\"\r\n3,2\r\n0,0"
      "\r\n0,4\r\n\"?\"\r\n\"Yes\"\r\n";
  return OnceIn(random, 3) ? Damaged(random, good) : good;
}

std::string DrawNumber(Generator &random) {
  return std::to_string(static_cast<int>(Draw(random, 220)) - 75);
}

} // namespace

std::size_t Draw(Generator &random, std::size_t count) { return random() % count; }

bool OnceIn(Generator &random, std::size_t times) { return Draw(random, times) == 0; }

Files DrawFiles(Generator &random) {
  Files files;
  if (!OnceIn(random, 10))
    files["Tessoro.ini"] = DrawSettings(random);
  files["good.tss"] = Sound(0);
  files["before.tss"] = Sound(1);
  files["old.tss"] = Sound(2);
  files["good.syx"] = Sound(DumpKind);
  for (const char digit : {'1', '2', '3', '4'}) {
    const std::size_t kind = Draw(random, SoundKinds);
    const std::string name = std::string("bad") + digit + (kind == DumpKind ? ".syx" : ".tss");
    files[name] = Damaged(random, Sound(kind));
  }
  return files;
}

std::string DrawText(Generator &random) {
  static const std::string odd[] = {"-",    "",     "?",   "007", "-0",    "12.5", "-3.25", "&H7F",
                                    "&O17", "1e2",  "5D1", " 5",  "63.99", "abc",  "Saw",   "8\"",
                                    "Off",  "1e-9", "+4",  "0.0", "99999", "Sine", "2"};
  switch (Draw(random, 40)) {
  case 0:
  case 1:
  case 2:
  case 3:
  case 4:
    return DrawOf(random, odd);
  case 5: {
    std::string text;
    for (std::size_t count = Draw(random, 12); count > 0; --count)
      text += DrawByte(random);
    return text;
  }
  case 6:
    return OnceIn(random, 10) ? std::string(1000, '7') : DrawNumber(random) + ".5";
  case 7:
    // Letters behind digits end the program, so they come seldom.
    return OnceIn(random, 10) ? "12a" : DrawNumber(random);
  default:
    return DrawNumber(random);
  }
}

} // namespace Tessoro::Random
