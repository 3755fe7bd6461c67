// The control layer under test: a shown form, and how to ask for the failure of a write.
#pragma once

#include "tests/support/TestRun.hpp"
#include "tests/unit/TestForm.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Tessoro {

class ControlFixture : public testing::Test {
protected:
  ControlFixture() {
    form.Show();
    run.Forget();
  }

  template <typename Act> static int FailureOf(Act &&act) {
    try {
      act();
    } catch (const Failure &failure) {
      return failure.Number();
    }
    return 0;
  }

  int ChangesOf(const Control &control, Property property) {
    return run.screen.changes[&control][property];
  }

  TestRun run;
  TestForm form{run.app};
};

} // namespace Tessoro
