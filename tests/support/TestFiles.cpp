#include "tests/support/TestFiles.hpp"

namespace Tessoro {

namespace {

class OpenCount {
public:
  explicit OpenCount(int &openFiles) : count(openFiles) { ++count; }
  ~OpenCount() { --count; }
  OpenCount(const OpenCount &) = delete;
  OpenCount &operator=(const OpenCount &) = delete;

private:
  int &count;
};

class MemoryInput : public InputFile {
public:
  MemoryInput(std::string content, int &open) : bytes(std::move(content)), count(open) {}

  std::optional<std::uint8_t> NextByte() override {
    if (next == bytes.size())
      return std::nullopt;
    return static_cast<std::uint8_t>(bytes[next++]);
  }

private:
  const std::string bytes;
  std::size_t next = 0;
  OpenCount count;
};

class MemoryOutput : public OutputFile {
public:
  MemoryOutput(std::string &content, int &open) : bytes(content), count(open) { bytes.clear(); }

  void Write(std::string_view text) override { bytes.append(text); }
  void Close() override {}

private:
  std::string &bytes;
  OpenCount count;
};

std::string FolderOf(const std::string &name) {
  const std::size_t slash = name.rfind('/');
  return slash == 0 ? "/" : name.substr(0, slash);
}

} // namespace

std::unique_ptr<InputFile> TestFiles::OpenForReading(const std::string &name) {
  if (readingFailsWith != 0)
    throw Failure(readingFailsWith);
  const auto found = contents.find(name);
  if (found == contents.end())
    throw Failure(FailureCode::FileNotFound);
  return std::make_unique<MemoryInput>(found->second, open);
}

std::unique_ptr<OutputFile> TestFiles::OpenForWriting(const std::string &name) {
  if (writingFailsWith != 0)
    throw Failure(writingFailsWith);
  return std::make_unique<MemoryOutput>(contents[name], open);
}

std::vector<std::string> TestFiles::Subfolders(const std::string &folder) const {
  const auto found = folders.find(folder);
  if (found == folders.end())
    throw Failure(FailureCode::PathNotFound);
  return found->second;
}

// Only the patterns that begin with a star and hold no other sign.
std::vector<std::string> TestFiles::Files(const std::string &folder,
                                          const std::string &pattern) const {
  std::vector<std::string> names;
  for (const auto &[name, content] : contents)
    if (FolderOf(name) == folder && name.ends_with(pattern.substr(1)))
      names.push_back(name.substr(name.rfind('/') + 1));
  return names;
}

bool TestFiles::FolderExists(const std::string &folder) const { return folders.contains(folder); }

} // namespace Tessoro
