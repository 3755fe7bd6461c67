// The form for the sound's name and category.
#pragma once

#include "surface/Controls.hpp"
#include "surface/Form.hpp"

#include <string>

namespace Tessoro {

// Sends the texts character by character.
class F_Name : public Form {
public:
  explicit F_Name(Application &app);

  // clang-format off
  Label Label2                    {*this, "Label2",            { 240,  270, 1500, 255}, {.caption = "Soundname"}};
  TextBox TextSoundName           {*this, "TextSoundName",     {1800,  240, 2700, 315}, {.text = "????????????????", .toolTip = NameTip, .says = "Sound name", .maxLength = 16}};
  Label Label1                    {*this, "Label1",            { 240,  720, 1500, 255}, {.caption = "Soundcategory"}};
  TextBox TextSoundCategory       {*this, "TextSoundCategory", {1800,  690,  900, 315}, {.text = "????", .toolTip = NameTip, .says = "Sound category", .maxLength = 4}};
  CommandButton C_ChangeSoundName {*this, "C_ChangeSoundName", { 240, 1230, 1800, 420}, {.caption = "Send name to mQ", .toolTip = "Sends name and category to mQ"}};
  CommandButton C_ChangeCat       {*this, "C_ChangeCat",       {2130, 1230, 1560, 420}, {.caption = "Cat change only", .toolTip = "Sends only category to mQ"}};
  CommandButton Command1          {*this, "Command1",          {3780, 1230,  720, 420}, {.caption = "&Exit"}};
  // clang-format on

protected:
  void Form_Load() override;

private:
  static constexpr std::string_view NameTip = "Enter your soundname here (16 characters max)";

  void SendName();
  void SendCategory();
};

} // namespace Tessoro
