// A field with one line of text, as boxes and lists have it.
#pragma once

#include <QLineEdit>

namespace Tessoro {

// Tells of a text that is composed, as of every other, when it is typed. Where it begins in the
// place of a selected one, the toolkit takes that away at once; here that is told together with
// what comes instead, and undone where nothing comes.
class EditField : public QLineEdit {
public:
  explicit EditField(QWidget *parent);

protected:
  virtual void Edited(const QString &edited) = 0;

  // In the place of all that stands here, half composed or not.
  void Write(const QString &written);

  void inputMethodEvent(QInputMethodEvent *event) override;

private:
  // Of a text.
  struct Selection {
    QString whole;
    int start = -1; // nothing is selected
    int length = 0;
  };

  void Restore();

  bool isHalfComposed = false;
  bool isKeptBack = false; // what the toolkit edits now
  Selection replaced;
};

} // namespace Tessoro
