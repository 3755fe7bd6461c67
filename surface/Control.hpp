// What all controls have in common: a form, a name, a place, and whether a user can reach them.
#pragma once

#include "surface/Property.hpp"

#include <string>
#include <string_view>

namespace Tessoro {

class Application;
class Form;

// Left, top, width and height in twips, relative to the form's client area.
struct Place {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

enum class ControlType : std::uint8_t {
  TextBox,
  ComboBox,
  CheckBox,
  CommandButton,
  HScrollBar,
  VScrollBar,
  Label,
  Image,
  NoteKey,
  Line,
  Shape,
  Frame,
  Timer,
  Menu,
  DriveListBox,
  DirListBox,
  FileListBox,
};

// Why an act of the user was not performed, or that it was.
enum class Reach : std::uint8_t { Done, Unloaded, Hidden, Disabled };

// A colour as one number: red + 256 * green + 65536 * blue.
using Color = std::uint32_t;

consteval Color Rgb(unsigned red, unsigned green, unsigned blue) {
  return red + 256 * green + 65536 * blue;
}

namespace Colors {
inline constexpr Color Amber = Rgb(255, 217, 54);
inline constexpr Color Navy = Rgb(0, 0, 128);
inline constexpr Color Black = 0;
inline constexpr Color Red = 255;
inline constexpr Color LitGreen = 49152;
inline constexpr Color DimGreen = 16384;
inline constexpr Color Grey = 12632256;
} // namespace Colors

// What the declaration of any control may say beside its name and place.
struct ControlDesign {
  std::string_view toolTip = {};
  // How a screen reader calls the control; empty where its caption says it.
  std::string_view says = {};
  bool enabled = true;
  bool visible = true;
};

// Code writes a control through its Set functions, with the events that such a write raises. What
// the user does arrives through the functions that begin with User: they refuse what a user could
// not do, and are the edge where a failure that nothing trapped ends the program.
class Control {
public:
  Control(Form &form, std::string_view name, Place place, const ControlDesign &design);
  virtual ~Control() = default;
  Control(const Control &) = delete;
  Control &operator=(const Control &) = delete;

  virtual ControlType Type() const = 0;
  // Every property of the control that can be read by name.
  virtual PropertyEntries Properties();
  // Back to what the declaration says, with no event: a form that is loaded again begins anew.
  virtual void ResetToDesign();

  const std::string &Name() const { return ownName; }
  Form &Owner() const { return ownerForm; }
  Application &App() const;
  const Place &DesignPlace() const { return designPlace; }
  std::string_view ToolTipText() const { return common.toolTip; }
  std::string_view Says() const { return common.says; }
  bool DesignEnabled() const { return common.enabled; }

  bool Enabled() const { return isEnabled; }
  virtual void SetEnabled(bool value);
  bool Visible() const { return isVisible; }
  void SetVisible(bool value);

  // Whether a user could act on the control now. A control without width can't be seen.
  virtual Reach ReachOfUser() const;

protected:
  void Tell(Property property);
  // Runs an act of the user if the control can be reached.
  template <typename Act> Reach Perform(Act &&act);

private:
  Form &ownerForm;
  const std::string ownName;
  const Place designPlace;
  const ControlDesign common;
  bool isEnabled;
  bool isVisible;
};

// The entries of a property that holds a truth value, a number or a text.
PropertyEntry TruthProperty(std::string_view name, std::function<bool()> get,
                            std::function<void(bool)> set, bool listed = true);
PropertyEntry NumberProperty(std::string_view name, std::function<double()> get,
                             std::function<void(double)> set, bool listed = true);
PropertyEntry TextProperty(std::string_view name, std::function<std::string()> get,
                           std::function<void(const std::string &)> set, bool listed = true);

} // namespace Tessoro
