// The codes of keys that the forms look at.
#pragma once

namespace Tessoro::KeyCodes {

inline constexpr int Enter = 13;
inline constexpr int Shift = 16;

} // namespace Tessoro::KeyCodes
