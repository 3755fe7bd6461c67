// The three formats, row by row of their tables.
#include "tests/files/PaperSound.hpp"

#include <algorithm>
#include <sstream>

namespace Tessoro::Tests {

namespace {

constexpr int EndOfFile = 62;

class Fields {
public:
  explicit Fields(const std::string &content) : bytes(content) {}

  PaperValue Next() {
    at = std::min(bytes.find_first_not_of(' ', at), bytes.size());
    if (at == bytes.size())
      throw PaperFailure{EndOfFile};
    const bool quoted = bytes[at] == '"';
    const std::size_t begin = quoted ? at + 1 : at;
    std::size_t end = quoted ? bytes.find('"', begin) : bytes.find_first_of(",\r\n", begin);
    if (quoted && end == std::string::npos)
      throw PaperFailure{EndOfFile};
    end = std::min(end, bytes.size());
    at = quoted ? end + 1 : end;
    if (bytes.compare(at, 2, "\r\n") == 0)
      at += 2;
    else if (at < bytes.size() && bytes[at] == ',')
      ++at;
    return {quoted, bytes.substr(begin, end - begin)};
  }

private:
  const std::string &bytes;
  std::size_t at = 0;
};

// A line that goes into a shadow in its own form.
PaperValue OwnForm(const PaperValue &field) {
  if (field.isText)
    return field;
  if (field.content->empty())
    return {};
  try {
    return PaperValue::Number(RealNumber(*field.content));
  } catch (const PaperFailure &) {
    return PaperValue::Text(*field.content);
  }
}

PaperValue Stored(const std::string &rule, const PaperValue &field) {
  const std::string &text = *field.content;
  const double leading = LeadingNumber(text);
  if (rule == "text")
    return PaperValue::Text(text);
  if (rule == "flag")
    return PaperValue::Text(RealNumber(text) > 1 ? "0" : text);
  if (rule == "prefix")
    return PaperValue::Number(leading);
  if (rule == "rounded")
    return PaperValue::Number(Rounded(leading));
  if (rule == "glide")
    return PaperValue::Number(leading == -1 ? 0 : leading);
  if (rule == "shape")
    return PaperValue::Text(Printed(leading));
  if (rule == "strict")
    return PaperValue::Number(StrictNumber(text));
  return OwnForm(field);
}

int Number(const PaperRow &row, std::size_t word) {
  return row.size() > word ? std::stoi(row[word]) : 0;
}

void SendSteps(PaperSound &sound, const std::string &rule, int parameter, const std::string &step) {
  const auto shadow = [&](char letter) {
    return sound.shadows[std::string("ArpStep") + letter + "(" + step + ")"].AsNumber();
  };
  if (rule == "first")
    sound.Send(parameter, Rounded(shadow('A') * 16 + shadow('B') * 8 + shadow('C')));
  else
    sound.Send(parameter, Rounded(shadow('D') * 16 + 8 + shadow('E')));
}

// Nobody answers the question with yes.
void AskForPitchMod(PaperSound &sound) {
  if (sound.shadows["PitchModSource"].AsNumber() == 0 &&
      sound.shadows["PitchModAmount"].AsNumber() == 0)
    sound.boxes.emplace_back(
        "PitchMod settings for this sound are set to 'Off' and '-64'. The reason may be an older "
        "sound format. Do you want to change this to the standard settings 'LFO1*MW' and '20'?");
}

// Line, form, "shadow", its name, how it is stored, how it is sent, parameter, offset, box.
void LoadShadow(PaperSound &sound, const PaperRow &row, const PaperValue &field) {
  PaperValue &shadow = sound.shadows[row[3]];
  shadow = Stored(row[4], field);
  const std::string &rule = row[5];
  const int parameter = Number(row, 6);
  if (rule == "-")
    return;
  if (rule == "first" || rule == "second") {
    SendSteps(sound, rule, parameter, row[7]);
    return;
  }
  const int offset = Number(row, 7);
  if (rule == "strict")
    sound.Send(parameter, Rounded(shadow.AsNumber()) + offset);
  else
    sound.Send(parameter, Rounded(LeadingNumber(*field.content) + offset));
  if (rule == "question")
    AskForPitchMod(sound);
  if (rule == "panel")
    sound.SetText(row[8], *field.content);
}

void LoadControl(PaperSound &sound, const std::string &rule, const std::string &control,
                 const std::string &text) {
  if (rule == "field")
    sound.SetText(control, text);
  else if (rule == "prefix")
    sound.SetText(control, Printed(LeadingNumber(text)));
  else if (rule == "prefix64")
    sound.SetText(control, Printed(LeadingNumber(text) - 64));
  else if (rule == "real64")
    sound.SetText(control, Printed(RealNumber(text) - 64));
  else if (rule == "flag")
    sound.SetNumber(control, RealNumber(text) > 1 ? 0 : StrictNumber(text));
  else
    sound.SetNumber(control, StrictNumber(text));
}

void SelectWord(PaperSound &sound, const PaperRow &row, const std::string &text) {
  std::istringstream words(RestOf(row, 3));
  int index = 0;
  for (std::string word; std::getline(words, word, ';'); ++index)
    if (word == text)
      sound.SetNumber(row[2], index);
}

void LoadOldLine(PaperSound &sound, const PaperRow &row, const std::string &text) {
  const std::string &rule = row[1];
  if (rule == "words") {
    SelectWord(sound, row, text);
  } else if (rule == "source") {
    SelectWord(sound, row, RealNumber(text) == 0 ? "Off" : text);
  } else if (rule == "shadow" && row[3] == "word") {
    sound.shadows[row[2]] = PaperValue::Text(RealNumber(text) == 0 ? row[4] : text);
  } else if (rule == "shadow") {
    sound.shadows[row[2]] = Stored(row[3], PaperValue::Text(text));
  } else if (rule != "drop") {
    LoadControl(sound, rule, row[2], text);
    if (row.size() > 3) {
      sound.SetText(row[3], "0");
      sound.SetNumber(row[4], 0);
      sound.SetText(row[5], "0");
    }
  }
}

void InitHidden(PaperSound &sound, const PaperRow &row) {
  if (row[1] == "send")
    sound.Send(std::stoi(row[2]), std::stoi(row[3]));
  else if (row[1] == "set" && row[3].starts_with('"'))
    sound.shadows[row[2]] = PaperValue::Text(row[3].substr(1, row[3].size() - 2));
  else if (row[1] == "set")
    sound.shadows[row[2]] = PaperValue::Number(std::stoi(row[3]));
  else if (row[1] == "check")
    sound.SetNumber(row[2], std::stoi(row[3]));
  else
    (row[1] == "name" ? sound.name : sound.category) = RestOf(row, 2);
}

void ImportSplitByte(PaperSound &sound, const PaperRow &row, int byte) {
  const auto set = [&](const std::string &name, double value) {
    sound.shadows[name] = PaperValue::Number(value);
  };
  if (row[2] == "allocation") {
    const int poly = byte % 16 == 0 ? 0 : 1;
    set("MonoOn", poly);
    set("UnisonoMode", (byte - poly) / 16.0);
    sound.Send(58, byte);
    return;
  }
  sound.Send(std::stoi(row[1]), byte);
  const std::string step = "(" + row[3] + ")";
  const int whole = byte / 16;
  const int rest = byte % 16;
  if (row[2] == "first") {
    const int flag = rest / 8;
    set("ArpStepA" + step, whole);
    set("ArpStepB" + step, flag);
    set("ArpStepC" + step, rest % 8);
  } else {
    set("ArpStepD" + step, whole);
    set("ArpStepE" + step, rest > 8 ? rest - 8 : rest);
  }
}

void ImportShadow(PaperSound &sound, const PaperRow &row, int byte) {
  const int value = byte + std::stoi(row[4]);
  sound.shadows[row[3]] =
      row[2] == "text" ? PaperValue::Text(std::to_string(value)) : PaperValue::Number(value);
  sound.Send(std::stoi(row[1]), byte);
}

void ImportOctave(PaperSound &sound, const std::string &list, int byte) {
  if (byte < 16 || byte > 112 || (byte - 16) % 12 != 0)
    sound.boxes.emplace_back("Wrong octave!");
  else
    sound.SetNumber(list, 8 - (byte - 16) / 12);
}

// Offset, parameter, what happens, the target.
void ImportByte(PaperSound &sound, const PaperRow &row, int byte) {
  const int parameter = std::stoi(row[1]);
  const std::string &rule = row[2];
  if (rule == "octave") {
    ImportOctave(sound, row[3], byte);
  } else if (rule == "plain" || rule == "signed") {
    sound.SetText(row[3], std::to_string(rule == "plain" ? byte : byte - 64));
  } else if (rule == "list") {
    sound.SetNumber(row[3], byte);
  } else if (rule == "noise") {
    sound.SetNumber("VScrollNoiseVol", byte);
    sound.SetNumber("CheckNoisemute", 0);
  } else if (rule == "send" || rule == "zero") {
    sound.Send(parameter, rule == "send" ? byte : 0);
  } else if (rule == "tell") {
    sound.Send(parameter, byte);
    if (byte != 0)
      sound.boxes.push_back(RestOf(row, 3));
  } else if (rule == "panel") {
    sound.SetText(row[3], std::to_string(byte));
    sound.shadows[row[4]] = PaperValue::Number(byte);
    sound.Send(parameter, byte);
  } else if (rule == "shadow" || rule == "text") {
    ImportShadow(sound, row, byte);
  } else if (rule == "allocation" || rule == "first" || rule == "second") {
    ImportSplitByte(sound, row, byte);
  } else if (rule == "name" || rule == "category") {
    (rule == "name" ? sound.name : sound.category) += static_cast<char>(byte);
    sound.Send(parameter, byte);
  }
}

// The text of the box that ends an import before it begins, or nothing.
std::string HeaderRefusal(std::size_t offset, int byte) {
  const std::string told = "(" + std::to_string(byte) + ")";
  if (offset == 0 && byte != 240)
    return "File seems to be no SysEx file. " + told;
  if (offset == 1 && byte != 62)
    return "File seems to be no Waldorf SysEx" + told;
  if (offset == 2 && byte == 15)
    return "File is a Q SysEx sound and can not be imported";
  if (offset == 2 && byte != 16)
    return "File seems to be no microQ SysEx " + told;
  return "";
}

} // namespace

void LoadVersion15(PaperSound &sound, const std::string &bytes) {
  Fields fields(bytes);
  for (const PaperRow &row : ReadTable("lines15.txt")) {
    const PaperValue field = fields.Next();
    const std::string &rule = row[2];
    if (rule == "name") {
      sound.name = *field.content;
    } else if (rule == "category") {
      sound.category = *field.content;
      sound.SendPaddedText(sound.name, 364, 16);
      sound.SendPaddedText(sound.category, 380, 4);
    } else if (rule == "shadow" || rule == "lost") {
      LoadShadow(sound, row, field);
    } else if (rule != "drop") {
      LoadControl(sound, rule, row[3], *field.content);
    }
  }
}

void LoadVersion02(PaperSound &sound, const std::string &bytes) {
  Fields fields(bytes);
  for (const PaperRow &row : ReadTable("lines02.txt")) {
    if (row[0] == "init")
      InitHidden(sound, row);
    else
      LoadOldLine(sound, row, *fields.Next().content);
  }
  sound.boxes.emplace_back(
      "Outdated Tessoro fileformat v.0.2 successfully imported. Some (newer) parameters have not "
      "been set.\r\n\r\nAnyway you should click on [Init sound] before opening an outdated "
      "soundformat to make sure all unused parameters are set to a defined value.");
}

void LoadDump(PaperSound &sound, const std::string &bytes) {
  for (const char *mute : {"CheckOSC1mute", "CheckOSC2mute", "CheckOSC3mute"})
    sound.SetNumber(mute, 0);
  const auto byteAt = [&bytes](std::size_t offset) {
    if (offset >= bytes.size())
      throw PaperFailure{EndOfFile};
    return static_cast<int>(static_cast<unsigned char>(bytes[offset]));
  };
  for (std::size_t offset = 0; offset < 3; ++offset) {
    const std::string refusal = HeaderRefusal(offset, byteAt(offset));
    if (!refusal.empty()) {
      sound.boxes.push_back(refusal);
      return;
    }
  }
  for (const PaperRow &row : ReadTable("dump.txt")) {
    if (row[0] == "370")
      sound.name = sound.category = "";
    ImportByte(sound, row, byteAt(std::stoul(row[0])));
  }
}

bool Open(PaperSound &sound, const std::string &path, const std::string &bytes) {
  try {
    if (path.ends_with(".syx")) {
      LoadDump(sound, bytes);
      return true;
    }
    const std::string header = *Fields(bytes).Next().content;
    const std::string version =
        header.substr(header.size() - std::min<std::size_t>(5, header.size()));
    if (version == "v.1.5")
      LoadVersion15(sound, bytes);
    else if (version == "v.0.2")
      LoadVersion02(sound, bytes);
    else
      sound.boxes.push_back("Fileformat " + version +
                            " not supported.\n\rThis version reads only " +
                            "Tessoro fileformat 0.2 and 1.5");
    return true;
  } catch (const PaperFailure &failure) {
    switch (failure.number) {
    case EndOfFile:
      sound.boxes.emplace_back(
          "File corrupt or wrong version! The file seems to be shorter than expected.");
      break;
    case 13:
      sound.boxes.emplace_back(
          "File corrupt or wrong version! A value () in the soundfile does not fit to the "
          "parameter! Loading aborted - some parameters not loaded.");
      break;
    case 6:
      sound.boxes.emplace_back(" 6: Overflow");
      break;
    default:
      sound.boxes.emplace_back(" 380: Invalid property value");
    }
    return false;
  }
}

std::string Saved(const PaperSound &sound) {
  const auto quoted = [](const std::string &text) { return '"' + text + '"'; };
  std::string file;
  for (const PaperRow &row : ReadTable("lines15.txt")) {
    const std::string &rule = row[2];
    if (row[0] == "1") {
      file += quoted("Tessoro soundfileformat v.1.5");
    } else if (rule == "drop" || rule == "lost") {
      file += '0';
    } else if (rule == "name") {
      file += quoted(sound.name.substr(0, 16));
    } else if (rule == "category") {
      file += quoted(sound.category.substr(0, 4));
    } else if (rule == "shadow") {
      const PaperValue &value = sound.shadows.at(row[3]);
      file += value.isText ? quoted(*value.content) : value.content.value_or("");
    } else {
      file += sound.Content(row[3]);
    }
    file += "\r\n";
  }
  return file;
}

} // namespace Tessoro::Tests
