#include "services/fluidsynth_library.h"

#include <dlfcn.h>

#ifndef TALVERO_FLUIDSYNTH_SONAME
#define TALVERO_FLUIDSYNTH_SONAME "libfluidsynth.so.3"
#endif

namespace {
const FluidSynthLibrary* Open() {
  void* handle = dlopen(TALVERO_FLUIDSYNTH_SONAME, RTLD_NOW | RTLD_LOCAL);
  if (!handle) return nullptr;
  static FluidSynthLibrary library;
  bool complete = true;
#define TALVERO_FLUIDSYNTH_RESOLVE(name)                                    \
  library.name = reinterpret_cast<decltype(&::name)>(dlsym(handle, #name)); \
  complete = complete && library.name != nullptr;
  TALVERO_FLUIDSYNTH_FUNCTIONS(TALVERO_FLUIDSYNTH_RESOLVE)
#undef TALVERO_FLUIDSYNTH_RESOLVE
  // The library stays open for the life of the process: its audio threads may outlive a player.
  return complete ? &library : nullptr;
}
}  // namespace

const FluidSynthLibrary* FluidSynth() {
  static const FluidSynthLibrary* const library = Open();
  return library;
}
