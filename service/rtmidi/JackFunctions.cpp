#include "service/rtmidi/JackFunctions.hpp"

#include "service/rtmidi/JackLibrary.hpp"

#include <dlfcn.h>
#include <jack/jack.h>
#include <jack/midiport.h>
#include <jack/ringbuffer.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstddef>
#include <tuple>
#include <type_traits>

// All that RtMidi calls of JACK, and we ourselves: how many arguments it takes, and its name. For a
// function that is missing here the linker binds the library itself, at each start.
// clang-format off
#define ALL_JACK_FUNCTIONS(row) \
  row(3AndMore, jack_client_open) \
  row(1, jack_client_close) \
  row(1, jack_activate) \
  row(3, jack_set_process_callback) \
  row(3, jack_on_shutdown) \
  row(1, jack_set_error_function) \
  row(1, jack_set_info_function) \
  row(4, jack_get_ports) \
  row(1, jack_free) \
  row(5, jack_port_register) \
  row(2, jack_port_unregister) \
  row(3, jack_port_rename) \
  row(1, jack_port_name) \
  row(0, jack_port_name_size) \
  row(2, jack_port_get_buffer) \
  row(3, jack_connect) \
  row(0, jack_get_time) \
  row(1, jack_last_frame_time) \
  row(1, jack_get_buffer_size) \
  row(1, jack_midi_clear_buffer) \
  row(3, jack_midi_event_get) \
  row(3, jack_midi_event_reserve) \
  row(1, jack_midi_get_event_count) \
  row(1, jack_ringbuffer_create) \
  row(1, jack_ringbuffer_free) \
  row(3, jack_ringbuffer_peek) \
  row(3, jack_ringbuffer_read) \
  row(2, jack_ringbuffer_read_advance) \
  row(1, jack_ringbuffer_read_space) \
  row(3, jack_ringbuffer_write) \
  row(1, jack_ringbuffer_write_space)
// clang-format on

namespace Tessoro {
namespace {

template <typename Function> struct SignatureOf;
template <typename Returned, typename... Taken> struct SignatureOf<Returned(Taken...)> {
  using Result = Returned;
  template <std::size_t place> using Parameter = std::tuple_element_t<place, std::tuple<Taken...>>;
};
template <typename Returned, typename... Taken>
struct SignatureOf<Returned(Taken..., ...)> : SignatureOf<Returned(Taken...)> {};

// The library's own, once that is open.
template <auto *Function> constinit std::atomic<decltype(Function)> bound = nullptr;

template <auto *Function> void Bind(void *address) {
  bound<Function> = reinterpret_cast<decltype(Function)>(address);
}

// Nothing, or whatever isn't success.
template <typename Result> Result Failure() {
  if constexpr (std::is_same_v<Result, int>) {
    return -1;
  } else {
    return Result();
  }
}

// JACK's threads come through here in each of their cycles, so nothing is waited for.
template <auto *Function, typename... Arguments> auto Forward(Arguments... arguments) {
  auto *target = bound<Function>.load(std::memory_order_acquire);
  if (target == nullptr) {
    if (!HasJackLibrary()) {
      return Failure<decltype(Function(arguments...))>();
    }
    target = bound<Function>;
  }
  return target(arguments...);
}

} // namespace

bool BindJackFunctions(void *library) {
#define NAME(count, name) #name,
  constexpr std::array names{ALL_JACK_FUNCTIONS(NAME)};
  if (!std::ranges::all_of(names,
                           [&](const char *name) { return dlsym(library, name) != nullptr; })) {
    return false;
  }
#define BIND(count, name) Bind<&name>(dlsym(library, #name));
  ALL_JACK_FUNCTIONS(BIND)
  return true;
}

} // namespace Tessoro

// Clang-tidy would have their parameters called as in JACK's headers.
#ifndef __clang_analyzer__

#define RETURNS(name) Tessoro::SignatureOf<decltype(name)>::Result name
#define TAKES(name, place) Tessoro::SignatureOf<decltype(name)>::Parameter<place>

#define DEFINE_0(name)                                                                             \
  RETURNS(name)() { return Tessoro::Forward<&name>(); }
#define DEFINE_1(name)                                                                             \
  RETURNS(name)(TAKES(name, 0) a) { return Tessoro::Forward<&name>(a); }
#define DEFINE_2(name)                                                                             \
  RETURNS(name)(TAKES(name, 0) a, TAKES(name, 1) b) { return Tessoro::Forward<&name>(a, b); }
#define DEFINE_3(name)                                                                             \
  RETURNS(name)(TAKES(name, 0) a, TAKES(name, 1) b, TAKES(name, 2) c) {                            \
    return Tessoro::Forward<&name>(a, b, c);                                                       \
  }
#define DEFINE_4(name)                                                                             \
  RETURNS(name)(TAKES(name, 0) a, TAKES(name, 1) b, TAKES(name, 2) c, TAKES(name, 3) d) {          \
    return Tessoro::Forward<&name>(a, b, c, d);                                                    \
  }
#define DEFINE_5(name)                                                                             \
  RETURNS(name)                                                                                    \
  (TAKES(name, 0) a, TAKES(name, 1) b, TAKES(name, 2) c, TAKES(name, 3) d, TAKES(name, 4) e) {     \
    return Tessoro::Forward<&name>(a, b, c, d, e);                                                 \
  }
// What more it takes are words for options that nobody here asks for.
#define DEFINE_3AndMore(name)                                                                      \
  RETURNS(name)(TAKES(name, 0) a, TAKES(name, 1) b, TAKES(name, 2) c, ...) {                       \
    return Tessoro::Forward<&name>(a, b, c);                                                       \
  }
#define DEFINE(count, name) DEFINE_##count(name)

extern "C" {
ALL_JACK_FUNCTIONS(DEFINE)
}

#endif
