// The edge at which an act of the user enters the control layer; for the layer's own files.
#pragma once

#include "shell/Application.hpp"
#include "surface/Control.hpp"

namespace Tessoro {

template <typename Act> Reach Control::Perform(Act &&act) {
  const Reach reach = ReachOfUser();
  if (reach == Reach::Done)
    App().Event(act);
  return reach;
}

} // namespace Tessoro
