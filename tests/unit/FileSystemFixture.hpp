// The files of the machine under test, in a folder of their own for each test.
#pragma once

#include "files/StandardFileSystem.hpp"
#include "surface/Failure.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace Tessoro {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

// 0 if nothing failed.
template <typename Act> int FailureOf(Act act) {
  try {
    act();
  } catch (const Failure &failure) {
    return failure.Number();
  }
  return 0;
}

class StandardFileSystemTest : public testing::Test {
protected:
  void SetUp() override {
    std::string pattern = (fs::temp_directory_path() / "tessoro-files-XXXXXX").string();
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    folder = pattern;
  }

  void TearDown() override { fs::remove_all(folder); }

  std::string In(const std::string &name) const { return (folder / name).string(); }

  void Put(const std::string &name, const std::string &content) const {
    std::ofstream(folder / name, std::ios::binary) << content;
  }

  std::string Content(const std::string &name) const {
    std::ifstream file(folder / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

  int ReadFailure(const std::string &name) {
    return FailureOf([&] { files.OpenForReading(name); });
  }

  int WriteFailure(const std::string &name) {
    return FailureOf([&] { files.OpenForWriting(name); });
  }

  fs::path folder;
  StandardFileSystem files;
};

} // namespace Tessoro
