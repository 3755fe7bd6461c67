#include "files/StandardFileSystem.hpp"

#include "surface/Windows1252.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <fstream>
#include <sstream>
#include <system_error>
#include <utility>

namespace Tessoro {

namespace {

namespace fs = std::filesystem;

std::string Utf8Of(const fs::path &path) {
  const std::u8string utf8 = path.u8string();
  return {utf8.begin(), utf8.end()};
}

fs::path FromUtf8(const std::string &utf8) { return std::u8string(utf8.begin(), utf8.end()); }

// Fails where the system refuses to tell, for instance in a folder that may not be looked into.
fs::file_type TypeOf(const fs::path &path) {
  std::error_code error;
  const fs::file_type type = fs::status(path, error).type();
  if (type == fs::file_type::none)
    throw Failure(FailureCode::PathFileAccessError);
  return type;
}

// A zero byte ends a name for the system, which would take it for that of another file.
bool HasZeroByte(const std::string &name) { return name.find('\0') != std::string::npos; }

// What a file name must be, and the path that it names.
fs::path FilePath(const std::string &name) {
  if (name.empty() || HasZeroByte(name))
    throw Failure(FailureCode::BadFileNameOrNumber);
  fs::path path = PathFromText(name);
  const fs::path folder = path.parent_path();
  if (!folder.empty() && TypeOf(folder) != fs::file_type::directory)
    throw Failure(FailureCode::PathNotFound);
  // Opening a pipe waits for a program at its other end, which may never come.
  if (const fs::file_type type = TypeOf(path);
      type == fs::file_type::directory || type == fs::file_type::fifo)
    throw Failure(FailureCode::PathFileAccessError);
  return path;
}

class StandardInputFile : public InputFile {
public:
  explicit StandardInputFile(const fs::path &path)
      : hasEnd(TypeOf(path) == fs::file_type::regular), stream(path, std::ios::binary) {
    if (!stream)
      throw Failure(FailureCode::PathFileAccessError);
  }

  std::optional<std::uint8_t> NextByte() override {
    if (next == filled)
      Fill();
    if (next == filled)
      return std::nullopt;
    return static_cast<std::uint8_t>(buffer[next++]);
  }

private:
  void Fill() {
    if (!hasEnd)
      throw Failure(FailureCode::PathFileAccessError);
    stream.read(buffer.data(), static_cast<std::streamsize>(buffer.size()));
    if (stream.bad())
      throw Failure(FailureCode::PathFileAccessError);
    filled = static_cast<std::size_t>(stream.gcount());
    next = 0;
  }

  // Only of files; a device may go on for ever.
  const bool hasEnd;
  std::ifstream stream;
  std::array<char, 4096> buffer{};
  std::size_t filled = 0;
  std::size_t next = 0;
};

class StandardOutputFile : public OutputFile {
public:
  explicit StandardOutputFile(const fs::path &path)
      : stream(path, std::ios::binary | std::ios::trunc) {
    if (!stream)
      throw Failure(FailureCode::PathFileAccessError);
  }

  void Write(std::string_view bytes) override {
    if (!stream.is_open())
      throw Failure(FailureCode::BadFileNameOrNumber);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    Check();
  }

  void Close() override {
    if (!stream.is_open())
      return;
    stream.close();
    Check();
  }

private:
  void Check() const {
    if (!stream)
      throw Failure(FailureCode::PathFileAccessError);
  }

  std::ofstream stream;
};

char SmallLetter(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::string InSmallLetters(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), SmallLetter);
  return text;
}

bool Fits(std::string_view name, std::string_view pattern) {
  std::size_t inName = 0;
  std::size_t inPattern = 0;
  std::size_t star = std::string_view::npos;
  std::size_t behindStar = 0;
  while (inName < name.size()) {
    const char wanted = inPattern < pattern.size() ? pattern[inPattern] : '\0';
    if (wanted == '*') {
      star = inPattern++;
      behindStar = inName;
    } else if (wanted == '?' || (wanted != '\0' && wanted == name[inName])) {
      ++inPattern;
      ++inName;
    } else if (star != std::string_view::npos) {
      // The last star takes one character more.
      inPattern = star + 1;
      inName = ++behindStar;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', inPattern) == std::string_view::npos;
}

void SortByName(std::vector<std::string> &names) {
  std::sort(names.begin(), names.end(), [](const std::string &one, const std::string &other) {
    const std::string small = InSmallLetters(one);
    const std::string otherSmall = InSmallLetters(other);
    return small != otherSmall ? small < otherSmall : one < other;
  });
}

// The names in a folder for which the test of the entry and the name is true.
template <typename Test> std::vector<std::string> Names(const std::string &folder, Test test) {
  const fs::path path = PathFromText(folder);
  if (HasZeroByte(folder) || TypeOf(path) != fs::file_type::directory)
    throw Failure(FailureCode::PathNotFound);

  std::error_code error;
  std::vector<std::string> names;
  fs::directory_iterator entry(path, error);
  while (!error && entry != fs::directory_iterator()) {
    std::string name = TextFromPath(entry->path().filename());
    if (test(*entry, name))
      names.push_back(std::move(name));
    entry.increment(error);
  }
  if (error)
    throw Failure(FailureCode::PathFileAccessError);
  SortByName(names);
  return names;
}

// The entry of a folder that has the name in UTF-8 or, where only that one exists, in bytes.
#ifdef _WIN32
fs::path NamedIn(const fs::path &folder, const fs::path &name) { return folder / name; }
#else
fs::path NamedIn(const fs::path &folder, const fs::path &name) {
  const fs::path proper = folder / name;
  const fs::path bytes = folder / ExactWindows1252FromUtf8(Utf8Of(name)).value_or(std::string());
  std::error_code error;
  return bytes != proper && !fs::exists(proper, error) && fs::exists(bytes, error) ? bytes : proper;
}

// The table writes blanks and the like as a backslash and three octal digits.
std::string WithoutEscapes(const std::string &field) {
  std::string text;
  for (std::size_t place = 0; place < field.size(); ++place) {
    const std::string digits = field[place] == '\\' ? field.substr(place + 1, 3) : std::string();
    if (digits.size() == 3 && digits.find_first_not_of("01234567") == std::string::npos) {
      text += static_cast<char>(std::stoi(digits, nullptr, 8));
      place += 3;
    } else {
      text += field[place];
    }
  }
  return text;
}
#endif

} // namespace

std::string TextFromPath(const fs::path &path) {
  const std::string utf8 = Utf8Of(path);
  const std::array<char, 2> separators = {'/', static_cast<char>(fs::path::preferred_separator)};
  std::string text;
  std::size_t begin = 0;
  while (begin < utf8.size()) {
    const std::size_t end =
        std::min(utf8.find_first_of(separators.data(), begin, separators.size()), utf8.size());
    // Name by name, so that one that can't be told leaves the others readable.
    const std::string name = utf8.substr(begin, end - begin);
    text += ExactWindows1252FromUtf8(name).value_or(name);
    text += utf8.substr(end, 1);
    begin = end + 1;
  }
  return text;
}

fs::path PathFromText(std::string_view text) {
  fs::path path;
  for (const fs::path &name : FromUtf8(Utf8FromWindows1252(text)))
    path = NamedIn(path, name);
  return path;
}

StandardFileSystem::StandardFileSystem(fs::path table) : mountTable(std::move(table)) {}

std::unique_ptr<InputFile> StandardFileSystem::OpenForReading(const std::string &name) {
  const fs::path path = FilePath(name);
  if (TypeOf(path) == fs::file_type::not_found)
    throw Failure(FailureCode::FileNotFound);
  return std::make_unique<StandardInputFile>(path);
}

std::unique_ptr<OutputFile> StandardFileSystem::OpenForWriting(const std::string &name) {
  return std::make_unique<StandardOutputFile>(FilePath(name));
}

std::vector<std::string> StandardFileSystem::Subfolders(const std::string &folder) const {
  return Names(folder, [](const fs::directory_entry &entry, const std::string &name) {
    std::error_code error;
    return name.front() != '.' && entry.is_directory(error);
  });
}

std::vector<std::string> StandardFileSystem::Files(const std::string &folder,
                                                   const std::string &pattern) const {
  const std::string smallPattern = InSmallLetters(pattern);
  return Names(folder, [&](const fs::directory_entry &entry, const std::string &name) {
    std::error_code error;
    return Fits(InSmallLetters(name), smallPattern) && entry.is_regular_file(error);
  });
}

bool StandardFileSystem::FolderExists(const std::string &folder) const {
  std::error_code error;
  return !HasZeroByte(folder) && fs::is_directory(PathFromText(folder), error);
}

#ifdef _WIN32
std::vector<std::string> StandardFileSystem::Drives() const {
  std::vector<std::string> drives;
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    const std::string drive = {letter, ':'};
    if (FolderExists(drive + '\\'))
      drives.push_back(drive);
  }
  return drives;
}
#else
std::vector<std::string> StandardFileSystem::Drives() const {
  std::vector<std::string> drives = {"/"};
  std::ifstream table(mountTable);
  std::string line;
  while (std::getline(table, line)) {
    std::istringstream fields(line);
    std::string device;
    std::string folder;
    fields >> device >> folder;
    folder = WithoutEscapes(folder);
    if (folder.starts_with("/media/") || folder.starts_with("/run/media/"))
      drives.push_back(TextFromPath(folder));
  }
  SortByName(drives);
  drives.erase(std::unique(drives.begin(), drives.end()), drives.end());
  return drives;
}
#endif

std::string StandardFileSystem::WorkingDirectory() const {
  std::error_code error;
  const fs::path path = fs::current_path(error);
  if (error)
    throw Failure(FailureCode::PathNotFound);
  return TextFromPath(path);
}

char StandardFileSystem::Separator() const {
  return static_cast<char>(fs::path::preferred_separator);
}

} // namespace Tessoro
