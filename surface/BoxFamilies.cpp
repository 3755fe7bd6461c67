#include "surface/BoxFamilies.hpp"

#include "shell/Application.hpp"
#include "surface/Conversions.hpp"

namespace Tessoro {

namespace {

constexpr int BipolarCenter = 64;

void SendBox(const BoxRow &row) {
  Application &app = row.box.App();
  const std::string &text = row.box.Text();
  if (row.family.road == Road::Controller)
    // Not rounded: a fraction spills into the neighbouring byte of the message.
    app.Module1.SendController(row.number, app.StrictNumber(text) + BipolarCenter);
  else if (row.family.bipolar)
    app.Module1.SendSoundParam(row.number, RoundInteger(app.StrictNumber(text) + BipolarCenter));
  else
    app.Module1.SendSoundParam(row.number, app.StrictInteger(text));
}

void MirrorBox(const BoxRow &row) {
  if (row.bar != nullptr)
    row.bar->SetValue(row.box.App().StrictInteger(row.box.Text()));
}

// Reads the text afresh at each step: a write that changes it runs this handler again, to its end,
// before the step is over. So a rewritten entry goes out twice.
void Box_Change(const BoxRow &row) {
  TextBox &box = row.box;
  if (box.Text().empty() || (row.family.bipolar && box.Text() == "-"))
    return;
  const double number = NumericPrefix(box.Text());
  if (number == 0 || (!row.family.bipolar && number < 0))
    box.SetText("0");
  if (row.family.bipolar && NumericPrefix(box.Text()) < row.lower)
    box.SetText(IntegerText(row.lower));
  if (NumericPrefix(box.Text()) > row.upper)
    box.SetText(IntegerText(row.upper));
  if (row.family.mirrorOrder == MirrorOrder::BeforeSend)
    MirrorBox(row);
  SendBox(row);
  if (row.family.mirrorOrder == MirrorOrder::AfterSend)
    MirrorBox(row);
  if (row.store)
    row.store(row.box);
}

void Box_DblClick(const BoxRow &row) {
  row.box.SetText(IntegerText(row.doubleClick->text));
  if (row.doubleClick->sendsItself)
    SendBox(row);
}

} // namespace

std::function<void(const TextBox &box)> StoreWire(const BoxFamily &family, std::int16_t &shadow) {
  if (family.bipolar)
    return [&shadow](const TextBox &box) {
      shadow = RoundInteger(box.App().StrictNumber(box.Text()) + BipolarCenter);
    };
  return [&shadow](const TextBox &box) { shadow = box.App().StrictInteger(box.Text()); };
}

void AttachBoxes(std::span<const BoxRow> rows) {
  for (const BoxRow &row : rows) {
    row.box.onChange = [row] { Box_Change(row); };
    if (row.doubleClick)
      row.box.onDblClick = [row] { Box_DblClick(row); };
    if (row.bar != nullptr)
      row.bar->onChange = [row] { row.box.SetText(IntegerText(row.bar->Value())); };
  }
}

} // namespace Tessoro
