// The machine that a random user finds: a folder with the settings file and some sounds, many of
// them damaged.
#pragma once

#include <map>
#include <random>
#include <string>
#include <vector>

namespace Tessoro::Random {

using Generator = std::mt19937;

// A number from 0 up to but not `count`.
std::size_t Draw(Generator &random, std::size_t count);
// True once in so many times.
bool OnceIn(Generator &random, std::size_t times);

template <typename List> const auto &DrawOf(Generator &random, const List &list) {
  return list[Draw(random, std::size(list))];
}

// Names without a folder, with what stands in each file.
using Files = std::map<std::string, std::string>;

Files DrawFiles(Generator &random);

// Something that could be typed into a box: mostly numbers, some of them odd, and odder things.
std::string DrawText(Generator &random);

} // namespace Tessoro::Random
