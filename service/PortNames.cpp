#include "service/PortNames.hpp"

#include "surface/Windows1252.hpp"

#include <algorithm>
#include <cctype>

namespace Tessoro {
namespace {

constexpr std::size_t LongestShownName = 31;

bool IsDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

std::string_view WithoutDigits(std::string_view text) {
  while (!text.empty() && IsDigit(text.back())) {
    text.remove_suffix(1);
  }
  return text;
}

bool EndsWith(std::string_view text, char last) { return !text.empty() && text.back() == last; }

// Devices put their own name into the name of each port; saying it once leaves room for the rest.
std::string_view WithoutRepeatedClient(std::string_view name) {
  const std::size_t colon = name.find(':');
  if (colon == std::string_view::npos || colon == 0) {
    return name;
  }
  const std::string_view client = name.substr(0, colon);
  const std::string_view port = name.substr(colon + 1);
  return port.substr(0, client.size()) == client ? port : name;
}

std::string CutFor(const std::string &name, const std::string &suffix) {
  return name.substr(0, LongestShownName - suffix.size()) + suffix;
}

} // namespace

bool IsOwnPort(std::string_view name) {
  name = WithoutAddress(name);
  const std::string_view client = OwnClientName;
  if (name.substr(0, client.size()) != client) {
    return false;
  }
  std::string_view rest = name.substr(client.size());
  const std::size_t colon = rest.find(':');
  if (colon == std::string_view::npos) {
    return false;
  }
  const std::string_view number = rest.substr(0, colon);
  const std::string_view port = rest.substr(colon + 1);
  const bool isOwnClient =
      number.empty() || (number.size() > 1 && number[0] == '-' &&
                         std::all_of(number.begin() + 1, number.end(), IsDigit));
  return isOwnClient && (port == OwnOutPortName || port == OwnInPortName);
}

std::string_view WithoutAddress(std::string_view name) {
  const std::string_view beforePort = WithoutDigits(name);
  if (beforePort.size() == name.size() || !EndsWith(beforePort, ':')) {
    return name;
  }
  const std::string_view client = beforePort.substr(0, beforePort.size() - 1);
  const std::string_view beforeClient = WithoutDigits(client);
  if (beforeClient.size() == client.size() || !EndsWith(beforeClient, ' ')) {
    return name;
  }
  const std::string_view stable = beforeClient.substr(0, beforeClient.size() - 1);
  // "Rack 1:2" is client and port of a JACK name; ALSA's address stands behind both.
  return stable.find(':') == std::string_view::npos ? name : stable;
}

DeviceKey KeyOf(const std::vector<std::string> &names, std::size_t index) {
  DeviceKey key{names.at(index), {}};
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (i != index && WithoutAddress(names[i]) == WithoutAddress(key.exactName)) {
      key.twins.push_back(names[i]);
    }
  }
  return key;
}

std::optional<std::size_t> FindPort(const std::vector<std::string> &names, const DeviceKey &key) {
  auto found = std::find(names.begin(), names.end(), key.exactName);
  if (found == names.end()) {
    found = std::find_if(names.begin(), names.end(), [&key](const std::string &name) {
      const bool isTwin = std::find(key.twins.begin(), key.twins.end(), name) != key.twins.end();
      return !isTwin && WithoutAddress(name) == WithoutAddress(key.exactName);
    });
  }
  if (found == names.end()) {
    return std::nullopt;
  }
  return static_cast<std::size_t>(found - names.begin());
}

std::vector<std::string> ShownNames(const std::vector<std::string> &names) {
  std::vector<std::string> shown;
  for (const std::string &name : names) {
    const std::string whole = Windows1252FromUtf8(WithoutRepeatedClient(WithoutAddress(name)));
    std::string candidate = CutFor(whole, "");
    for (int copy = 2; std::find(shown.begin(), shown.end(), candidate) != shown.end(); ++copy) {
      candidate = CutFor(whole, " (" + std::to_string(copy) + ")");
    }
    shown.push_back(candidate);
  }
  return shown;
}

} // namespace Tessoro
