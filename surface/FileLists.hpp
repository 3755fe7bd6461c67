// The lists for choosing a file: drives, folders, files.
#pragma once

#include "surface/Control.hpp"

namespace Tessoro {

struct FileListDesign {
  std::string_view toolTip = {};
  std::string_view says = {};
};

class DriveListBox : public Control {
public:
  DriveListBox(Form &form, std::string_view name, Place place, const FileListDesign &design = {});

  ControlType Type() const override { return ControlType::DriveListBox; }
  PropertyEntries Properties() override;
  void ResetToDesign() override;

  const std::string &Drive() const { return drive; }
  // A text that is no drive of the list selects the drive that is the longest beginning of it, and
  // fails with 68 if there is none. The empty text changes nothing. Raises Change for another
  // drive.
  void SetDrive(std::string_view text);
  const std::vector<std::string> &List() const { return list; }

  bool HasDrive(std::string_view text) const;
  Reach UserChoose(std::string_view chosen);

  std::function<void()> onChange;

private:
  void Select(const std::string &newDrive);

  std::vector<std::string> list;
  std::string drive;
};

// Shows the path's ancestors and its subfolders.
class DirListBox : public Control {
public:
  DirListBox(Form &form, std::string_view name, Place place, const FileListDesign &design = {});

  ControlType Type() const override { return ControlType::DirListBox; }
  PropertyEntries Properties() override;
  void ResetToDesign() override;

  const std::string &Path() const { return path; }
  // Fails with 76 for what is no folder, the empty text too. Raises Change for another folder.
  void SetPath(std::string_view text);
  void Refresh();

  // Full paths: the ancestors from the root down, the path itself, then its subfolders.
  const std::vector<std::string> &List() const { return list; }
  // How many of them are ancestors, with the path itself.
  std::size_t AncestorCount() const { return ancestorCount; }

  bool IsFolder(std::string_view text) const;
  // The user opens a folder, by its full path.
  Reach UserChoose(std::string_view chosen);

  std::function<void()> onChange;

private:
  void GoTo(const std::string &newPath);
  void ShowFolder(const std::string &folder);

  std::vector<std::string> list;
  std::size_t ancestorCount = 0;
  std::string path;
};

struct FileListBoxDesign {
  // Which files are shown, as "*.tss".
  std::string_view pattern = "*";
  std::string_view toolTip = {};
  std::string_view says = {};
};

class FileListBox : public Control {
public:
  FileListBox(Form &form, std::string_view name, Place place, const FileListBoxDesign &design);

  ControlType Type() const override { return ControlType::FileListBox; }
  PropertyEntries Properties() override;
  void ResetToDesign() override;

  const std::string &Path() const { return path; }
  // Fails with 76 for what is no folder. No file is selected afterwards.
  void SetPath(std::string_view text);
  // The selected file, or the empty text.
  const std::string &FileName() const { return fileName; }
  // The names of the files that match the pattern, sorted.
  const std::vector<std::string> &List() const { return list; }
  void Refresh();

  bool HasFile(std::string_view name) const;
  // The user picks a file of the list: Click, also when it was selected already.
  Reach UserChoose(std::string_view chosen);
  Reach UserDblClick();

  std::function<void()> onClick;
  std::function<void()> onDblClick;

private:
  const FileListBoxDesign design;
  std::vector<std::string> list;
  std::string path;
  std::string fileName;
};

} // namespace Tessoro
