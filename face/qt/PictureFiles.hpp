// The sounds of somebody else, for pictures that tell nothing of whoever draws them.
#pragma once

#include "files/StandardFileSystem.hpp"

#include <string>
#include <vector>

namespace Tessoro {

class PictureFiles : public StandardFileSystem {
public:
  static constexpr const char *SoundFolder = "/home/player/Sounds";

  std::vector<std::string> Subfolders(const std::string &folder) const override {
    if (folder == SoundFolder)
      return {"Basses", "Leads", "Pads"};
    return {};
  }
  std::vector<std::string> Files(const std::string & /*folder*/,
                                 const std::string & /*pattern*/) const override {
    return {"Amber Strings.tss", "Deep Tide.tss", "Glass Bells.tss", "Night Drive.tss",
            "Slow Dawn.tss"};
  }
  bool FolderExists(const std::string & /*folder*/) const override { return true; }
  std::vector<std::string> Drives() const override { return {"/"}; }
  std::string WorkingDirectory() const override { return SoundFolder; }
  char Separator() const override { return '/'; }
};

} // namespace Tessoro
