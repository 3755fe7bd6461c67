// A box with one line of text.
#pragma once

#include "face/qt/ControlView.hpp"
#include "face/qt/EditField.hpp"
#include "surface/TextBox.hpp"

class QKeyEvent;

namespace Tessoro {

// A click into a box with a number selects it, so that the next digit begins a new one: a double
// click has another meaning here.
class TextBoxView : public EditField, public ControlView {
public:
  TextBoxView(TextBox &shown, const Surroundings &around, QWidget *parent);

  QWidget &Widget() override { return *this; }

protected:
  void ShowContent() override;
  void Edited(const QString &edited) override;

  void focusInEvent(QFocusEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void mouseDoubleClickEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;

private:
  TextBox &box;
  const bool holdsNumber;
  bool isSecondClick = false;
  bool wasFocusedByClick = false;
};

// Whether the keys are meant for a menu or a button: the toolkit would take the letter for a text
// where none of them answers.
bool IsAccessKey(const QKeyEvent &event);

// Tells what a user's edit has made of the text of a field, and leaves in the field what can be
// told: one line, in characters that the model has. The cursor stays where it was.
std::string TakeEdit(QLineEdit &field, const QString &before, const QString &edited);

} // namespace Tessoro
