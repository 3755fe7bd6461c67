#include "surface/NoteSection.hpp"

#include "shell/Application.hpp"

namespace Tessoro {

NoteSection::NoteSection(Form &owner) : form(owner) {
  constexpr int pressVelocity = 100;
  constexpr int releaseVelocity = 0;
  struct KeyRow {
    NoteKey &key;
    int note;
  };
  const KeyRow keys[] = {
      {NoteC1, 36}, {NoteC2, 48}, {NoteC3, 60}, {NoteC4, 72}, {NoteC5, 84},
  };
  for (const KeyRow &row : keys) {
    row.key.onMouseDown = [row](const MouseEvent &) {
      row.key.App().Module1.SendNoteOn(row.note, pressVelocity);
    };
    row.key.onMouseUp = [row](const MouseEvent &) {
      row.key.App().Module1.SendNoteOn(row.note, releaseVelocity);
    };
  }
  Panic.onClick = [this] { form.App().Module1.SendNoteOffSweep(); };
}

} // namespace Tessoro
