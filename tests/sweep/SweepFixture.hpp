// What the tests of the sweep share: a run with all its forms on the screen.
#pragma once

#include "tests/support/TestRun.hpp"
#include "tests/sweep/ControlTable.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Tessoro::Sweep {

using Messages = std::vector<std::string>;

class EditorRun {
public:
  EditorRun() {
    run.StartWithOpenPorts();
    // The secondary forms fill themselves from the shadows.
    run.app.Module1.InitHiddenParams();
    for (Form *form : {run.app.FindForm("F_LFO"), run.app.FindForm("F_General"),
                       run.app.FindForm("F_Preferences")})
      form->Show();
    run.Forget();
  }

  template <typename Type> Type &Find(const std::string &form, const std::string &name) {
    return dynamic_cast<Type &>(*run.app.FindForm(form)->FindControl(name));
  }
  template <typename Type> Type *TryFind(const std::string &form, const std::string &name) {
    return name.empty() ? nullptr : dynamic_cast<Type *>(run.app.FindForm(form)->FindControl(name));
  }

  // What went out since it was last asked for.
  Messages TakeMessages() { return std::exchange(run.midi.messages, {}); }
  std::vector<TestScreen::Box> TakeBoxes() { return std::exchange(run.screen.boxes, {}); }

  TestRun run;
};

// A test of one row of the table.
template <typename RowType>
class SweepTest : public EditorRun, public testing::TestWithParam<RowType> {
protected:
  const RowType &row = testing::TestWithParam<RowType>::GetParam();

  // What the design keeps from the user is tried in vain, and then given to him.
  template <typename Type, typename Act> void ExpectReach(Type &control, const Act &act) {
    if (row.reach == "user")
      return;
    EXPECT_EQ(act(control), row.reach == "hidden" ? Reach::Hidden : Reach::Disabled);
    EXPECT_EQ(TakeMessages(), Messages());
    control.SetEnabled(true);
  }
};

struct NameOfRow {
  template <typename Info> std::string operator()(const Info &info) const {
    return info.param.form + "_" + info.param.name;
  }
};

} // namespace Tessoro::Sweep
