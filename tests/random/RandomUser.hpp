// A user who does this and that.
#pragma once

#include "face/headless/Session.hpp"
#include "tests/random/Machine.hpp"

#include <deque>
#include <string>
#include <vector>

namespace Tessoro::Random {

// As the driver's commands name it.
std::string NameOf(const Control &control);

// Speaks the driver's language: each line is one that the session takes, as it stands at that
// moment.
class RandomUser {
public:
  RandomUser(Session &editor, Generator &generator, const Files &machine);

  std::string NextLine();

private:
  void Begin();
  void OpenDoors();
  std::string NextOfMouse();
  std::string Act();
  std::string ActOnBox();
  std::string ActOnList();
  std::string ActOnBar();
  std::string PressSomething();
  std::string ClickSomething();
  std::string ActOnForm();
  std::string ActOnMenu();
  std::string ActOnFile();
  std::string ActOfTheWorld();

  const Form &DrawForm();
  template <typename... Types> Control *DrawControl();
  std::string MouseLine(const std::string &act, const Control &control);

  Session &session;
  Generator &random;
  std::vector<std::string> fileNames;
  std::vector<const Menu *> menus;
  std::vector<std::string> shortcuts;
  // What the user is about to do whatever comes of it.
  std::deque<std::string> planned;
};

} // namespace Tessoro::Random
