// A form: a name, a caption and a fixed set of named controls.
#pragma once

#include "surface/Control.hpp"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace Tessoro {

class Timer;

struct FormDesign {
  std::string_view caption = {};
  // The client area, in twips.
  int width = 0;
  int height = 0;
  // The form sees key events before its controls.
  bool keyPreview = false;
  // The control that has the keyboard as the form comes up; not named, the first as one reads.
  std::string_view firstFocus = {};
};

// A form keeps its object for the whole run. Loading it takes its controls back to their design and
// runs Form_Load; a form that has gone can still be written by code, but nothing is shown.
class Form {
public:
  Form(Application &app, std::string_view name, const FormDesign &design);
  virtual ~Form() = default;
  Form(const Form &) = delete;
  Form &operator=(const Form &) = delete;

  Application &App() const { return application; }
  const std::string &Name() const { return ownName; }
  const FormDesign &Design() const { return ownDesign; }
  // In the order of their declaration; the later lies on top. Tab goes by their places on the form.
  const std::vector<Control *> &Controls() const { return controls; }
  Control *FindControl(std::string_view controlName) const;

  const std::string &Caption() const { return caption; }
  void SetCaption(std::string_view text);
  bool IsLoaded() const { return loaded; }
  bool IsShown() const { return shown; }

  // Does nothing for a form that is loaded already.
  void Load();
  // Loads the form first where needed.
  void Show();
  // Does nothing for a form that isn't loaded. Ends the program with the last form.
  void Unload();

  Reach ReachOfUser() const;
  Reach UserClose();
  Reach UserClick();
  // A key while no control of the form holds the focus, or while the form previews keys.
  Reach UserKeyDown(int keyCode, int shift = 0);
  Reach UserKeyUp(int keyCode, int shift = 0);
  Reach UserKeyPress(int keyAscii);

  // For what takes any form, but not a part of one.
  Form &AsForm() { return *this; }
  // Called by each control as it is made.
  void Add(Control &control);

protected:
  virtual void Form_Load() {}
  virtual void Form_Unload() {}
  virtual void Form_Click() {}
  virtual void Form_KeyDown(int /*keyCode*/, int /*shift*/) {}
  virtual void Form_KeyUp(int /*keyCode*/, int /*shift*/) {}
  virtual void Form_KeyPress(int /*keyAscii*/) {}

private:
  template <typename Act> Reach Perform(Act &&act);

  Application &application;
  const std::string ownName;
  const FormDesign ownDesign;
  std::string caption;
  std::vector<Control *> controls;
  bool loaded = false;
  bool shown = false;
  bool unloading = false;
};

} // namespace Tessoro
