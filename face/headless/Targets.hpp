// What the names in a script stand for. Everything is looked up in the running editor, so that new
// forms, controls and globals need no line here.
#pragma once

#include "face/headless/ScriptWords.hpp"
#include "face/headless/Session.hpp"
#include "surface/Controls.hpp"
#include "surface/Form.hpp"

#include <string>
#include <string_view>

namespace Tessoro {

// All of these fail with ScriptError for a name that stands for nothing.

Form &FormNamed(const Session &session, const Word &word);
// "F_Tessoro.TextF1_cutoff".
Control &ControlNamed(const Session &session, const Word &word);
// Menu entries go by their names alone, whatever form they hang on.
Menu &MenuNamed(const Session &session, const Word &word);

// A property of a control, a menu entry or a form, or a global.
struct NamedProperty {
  // Null for a global.
  const Form *form = nullptr;
  PropertyEntry entry;
};

NamedProperty PropertyNamed(Session &session, const Word &word);

[[noreturn]] void RefuseType(const Control &control);

// Has the control acted on by a user as the first of the types that it is of, if a user can. Fails
// with ScriptError if it is of none.
template <typename... Types, typename Act>
void ActOn(Session &session, Control &control, const Act &act) {
  const auto tryAs = [&]<typename Type>(Type *typed) {
    if (typed != nullptr && session.IsReached(control.ReachOfUser()))
      act(*typed);
    return typed != nullptr;
  };
  if (!(tryAs(dynamic_cast<Types *>(&control)) || ...))
    RefuseType(control);
}

} // namespace Tessoro
