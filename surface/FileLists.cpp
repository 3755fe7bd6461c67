#include "surface/FileLists.hpp"

#include "files/FileSystem.hpp"
#include "surface/UserAct.hpp"

#include <algorithm>

namespace Tessoro {

namespace {

FileSystem &FilesOf(const Control &control) { return control.App().System().files; }

// The lists begin here also where the process's folder has been removed meanwhile.
std::string StartFolder(const FileSystem &files) {
  try {
    return files.WorkingDirectory();
  } catch (const Failure &) {
    return files.Drives().front();
  }
}

// A form comes up also where a list can't be read: it is empty then.
template <typename List> void RefreshQuietly(List &list) {
  try {
    list.Refresh();
  } catch (const Failure &) {
  }
}

bool Contains(const std::vector<std::string> &list, std::string_view text) {
  return std::find(list.begin(), list.end(), text) != list.end();
}

std::string JoinPath(const std::string &folder, const std::string &name, char separator) {
  return folder.ends_with(separator) ? folder + name : folder + separator + name;
}

// Without separators at the end, but for a root.
std::string PlainPath(std::string_view text, char separator) {
  while (text.size() > 1 && text.ends_with(separator) && text[text.size() - 2] != ':')
    text.remove_suffix(1);
  return std::string(text);
}

// The folders on the way from the root down to the path, and the path itself.
std::vector<std::string> AncestorsAndSelf(const std::string &path, char separator) {
  std::vector<std::string> way;
  for (std::size_t end = path.find(separator); end != std::string::npos;
       end = path.find(separator, end + 1)) {
    const bool isRoot = end == 0 || path[end - 1] == ':';
    way.push_back(path.substr(0, isRoot ? end + 1 : end));
  }
  if (way.empty() || way.back() != path)
    way.push_back(path);
  return way;
}

} // namespace

DriveListBox::DriveListBox(Form &form, std::string_view name, Place place,
                           const FileListDesign &design)
    : Control(form, name, place, {.toolTip = design.toolTip, .says = design.says}) {}

PropertyEntries DriveListBox::Properties() {
  PropertyEntries entries = Control::Properties();
  entries.push_back(TextProperty(
      "Drive", [this] { return drive; }, [this](const std::string &text) { SetDrive(text); }));
  return entries;
}

void DriveListBox::ResetToDesign() {
  Control::ResetToDesign();
  list = FilesOf(*this).Drives();
  drive.clear();
  const std::string current = StartFolder(FilesOf(*this));
  for (const std::string &item : list)
    if (current.starts_with(item) && item.size() >= drive.size())
      drive = item;
}

void DriveListBox::SetDrive(std::string_view text) {
  if (text.empty())
    return;
  const std::string *best = nullptr;
  for (const std::string &item : list)
    if (text.starts_with(item) && (best == nullptr || item.size() > best->size()))
      best = &item;
  if (best == nullptr)
    throw Failure(FailureCode::DeviceUnavailable);
  Select(*best);
}

void DriveListBox::Select(const std::string &newDrive) {
  if (newDrive == drive)
    return;
  drive = newDrive;
  Tell(Property::Drive);
  if (onChange)
    onChange();
}

bool DriveListBox::HasDrive(std::string_view text) const { return Contains(list, text); }

Reach DriveListBox::UserChoose(std::string_view chosen) {
  return Perform([this, chosen] { Select(std::string(chosen)); });
}

DirListBox::DirListBox(Form &form, std::string_view name, Place place, const FileListDesign &design)
    : Control(form, name, place, {.toolTip = design.toolTip, .says = design.says}) {}

PropertyEntries DirListBox::Properties() {
  PropertyEntries entries = Control::Properties();
  entries.push_back(TextProperty(
      "Path", [this] { return path; }, [this](const std::string &text) { SetPath(text); }));
  return entries;
}

void DirListBox::ResetToDesign() {
  Control::ResetToDesign();
  path = StartFolder(FilesOf(*this));
  list.clear();
  RefreshQuietly(*this);
}

void DirListBox::SetPath(std::string_view text) {
  const std::string newPath = PlainPath(text, FilesOf(*this).Separator());
  if (!IsFolder(newPath))
    throw Failure(FailureCode::PathNotFound);
  GoTo(newPath);
}

void DirListBox::GoTo(const std::string &newPath) {
  if (newPath == path)
    return;
  ShowFolder(newPath);
  Tell(Property::Path);
  if (onChange)
    onChange();
}

void DirListBox::Refresh() { ShowFolder(path); }

// A folder that can't be read shows nothing below it; who lists its files is told why.
void DirListBox::ShowFolder(const std::string &folder) {
  const char separator = FilesOf(*this).Separator();
  std::vector<std::string> subfolders;
  try {
    subfolders = FilesOf(*this).Subfolders(folder);
  } catch (const Failure &) {
    subfolders.clear();
  }
  list = AncestorsAndSelf(folder, separator);
  ancestorCount = list.size();
  for (const std::string &subfolder : subfolders)
    list.push_back(JoinPath(folder, subfolder, separator));
  path = folder;
  Tell(Property::Items);
}

bool DirListBox::IsFolder(std::string_view text) const {
  return FilesOf(*this).FolderExists(std::string(text));
}

Reach DirListBox::UserChoose(std::string_view chosen) {
  return Perform([this, chosen] {
    // Asked once only: a folder that goes at this very moment fails nobody.
    if (const std::string folder = PlainPath(chosen, FilesOf(*this).Separator()); IsFolder(folder))
      GoTo(folder);
    else
      Refresh(); // it has gone since the list was read
  });
}

FileListBox::FileListBox(Form &form, std::string_view name, Place place,
                         const FileListBoxDesign &listDesign)
    : Control(form, name, place, {.toolTip = listDesign.toolTip, .says = listDesign.says}),
      design(listDesign) {}

PropertyEntries FileListBox::Properties() {
  PropertyEntries entries = Control::Properties();
  entries.push_back(TextProperty(
      "Path", [this] { return path; }, [this](const std::string &text) { SetPath(text); }));
  entries.push_back(TextProperty(
      "FileName", [this] { return fileName; }, nullptr));
  return entries;
}

void FileListBox::ResetToDesign() {
  Control::ResetToDesign();
  path = StartFolder(FilesOf(*this));
  fileName.clear();
  list.clear();
  RefreshQuietly(*this);
}

void FileListBox::SetPath(std::string_view text) {
  const std::string newPath = PlainPath(text, FilesOf(*this).Separator());
  if (!FilesOf(*this).FolderExists(newPath))
    throw Failure(FailureCode::PathNotFound);
  list = FilesOf(*this).Files(newPath, std::string(design.pattern));
  path = newPath;
  fileName.clear();
  Tell(Property::Path);
  Tell(Property::Items);
}

void FileListBox::Refresh() {
  list = FilesOf(*this).Files(path, std::string(design.pattern));
  if (!HasFile(fileName))
    fileName.clear();
  Tell(Property::Items);
}

bool FileListBox::HasFile(std::string_view name) const { return Contains(list, name); }

Reach FileListBox::UserChoose(std::string_view chosen) {
  return Perform([this, chosen] {
    fileName.assign(chosen);
    Tell(Property::FileName);
    if (onClick)
      onClick();
  });
}

Reach FileListBox::UserDblClick() {
  return Perform([this] {
    if (onDblClick)
      onDblClick();
  });
}

} // namespace Tessoro
