// JACK's functions, defined here as ways into its library.
#pragma once

namespace Tessoro {

// From now on they call those of the opened library. False where it lacks one of them; none is
// called then.
bool BindJackFunctions(void *library);

} // namespace Tessoro
