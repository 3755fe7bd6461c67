// The lists for choosing a file: drives, folders, files.
#pragma once

#include "face/qt/ControlView.hpp"
#include "surface/FileLists.hpp"

#include <QComboBox>
#include <QListWidget>

namespace Tessoro {

class DriveListView : public QComboBox, public ControlView {
public:
  DriveListView(DriveListBox &shown, const Surroundings &around, QWidget *parent);

  QWidget &Widget() override { return *this; }

protected:
  void ShowContent() override;

  void wheelEvent(QWheelEvent *event) override;

private:
  DriveListBox &drives;
};

// A double click or Enter opens a folder.
class DirListView : public QListWidget, public ControlView {
public:
  DirListView(DirListBox &shown, const Surroundings &around, QWidget *parent);

  QWidget &Widget() override { return *this; }

protected:
  void ShowContent() override;

  void keyPressEvent(QKeyEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
  void OpenCurrent();

  DirListBox &folders;
};

class FileListView : public QListWidget, public ControlView {
public:
  FileListView(FileListBox &shown, const Surroundings &around, QWidget *parent);

  QWidget &Widget() override { return *this; }
  void Show(Property property) override;

protected:
  void ShowContent() override;

  void keyPressEvent(QKeyEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
  void ShowChosen();
  void ChooseCurrent();

  FileListBox &files;
};

} // namespace Tessoro
