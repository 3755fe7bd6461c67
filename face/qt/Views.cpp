#include "face/qt/Views.hpp"

#include "face/qt/ButtonViews.hpp"
#include "face/qt/ComboBoxView.hpp"
#include "face/qt/FileListViews.hpp"
#include "face/qt/NoteKeyView.hpp"
#include "face/qt/PointerViews.hpp"
#include "face/qt/ScrollBarView.hpp"
#include "face/qt/TextBoxView.hpp"

#include <algorithm>
#include <array>

namespace Tessoro {

namespace {

using Maker = ControlView *(*)(Control &, const Surroundings &, QWidget *);

template <typename View, typename Shown>
ControlView *Make(Control &control, const Surroundings &around, QWidget *parent) {
  return new View(static_cast<Shown &>(control), around, parent);
}

struct ViewRow {
  ControlType type;
  Maker make;
};

constexpr std::array<ViewRow, 11> Rows{{
    {ControlType::TextBox, Make<TextBoxView, TextBox>},
    {ControlType::ComboBox, Make<ComboBoxView, ComboBox>},
    {ControlType::CheckBox, Make<CheckBoxView, CheckBox>},
    {ControlType::CommandButton, Make<CommandButtonView, CommandButton>},
    {ControlType::HScrollBar, Make<ScrollBarView, ScrollBar>},
    {ControlType::VScrollBar, Make<ScrollBarView, ScrollBar>},
    {ControlType::Image, Make<ImageView, Image>},
    {ControlType::NoteKey, Make<NoteKeyView, NoteKey>},
    {ControlType::DriveListBox, Make<DriveListView, DriveListBox>},
    {ControlType::DirListBox, Make<DirListView, DirListBox>},
    {ControlType::FileListBox, Make<FileListView, FileListBox>},
}};

} // namespace

ControlView *MakeView(Control &control, const Surroundings &around, QWidget *parent) {
  const auto row = std::find_if(Rows.begin(), Rows.end(),
                                [&](const ViewRow &each) { return each.type == control.Type(); });
  if (row == Rows.end() || control.DesignPlace().width == 0)
    return nullptr;
  return row->make(control, around, parent);
}

} // namespace Tessoro
