// What a conversion comes to: a number, or the number of its failure.
#pragma once

#include "surface/Failure.hpp"

#include <optional>
#include <ostream>

namespace Tessoro {

struct Outcome {
  std::optional<double> number;
  int failure = 0;

  bool operator==(const Outcome &) const = default;
};

inline std::ostream &operator<<(std::ostream &stream, const Outcome &outcome) {
  if (outcome.number)
    return stream << *outcome.number;
  return stream << "failure " << outcome.failure;
}

inline Outcome Is(double number) { return {number, 0}; }

inline const Outcome mismatch{std::nullopt, 13};
inline const Outcome overflow{std::nullopt, 6};

template <typename Convert> Outcome OutcomeOf(Convert convert) {
  try {
    return Is(static_cast<double>(convert()));
  } catch (const Failure &failure) {
    return {std::nullopt, failure.Number()};
  }
}

} // namespace Tessoro
