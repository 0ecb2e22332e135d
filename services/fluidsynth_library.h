// FluidSynth, opened when the music first needs it instead of at the program's start: the
// library pulls in some forty others (sound servers, codecs), which would cost every start
// time and memory before the first frame.
#pragma once

#include <fluidsynth.h>

// The functions the game calls, under their own names.
#define TALVERO_FLUIDSYNTH_FUNCTIONS(X) \
  X(new_fluid_settings)                 \
  X(delete_fluid_settings)              \
  X(fluid_settings_setnum)              \
  X(fluid_settings_setstr)              \
  X(fluid_settings_setint)              \
  X(new_fluid_synth)                    \
  X(delete_fluid_synth)                 \
  X(fluid_synth_sfload)                 \
  X(fluid_synth_write_s16)              \
  X(fluid_synth_all_notes_off)          \
  X(new_fluid_player)                   \
  X(delete_fluid_player)                \
  X(fluid_player_add_mem)               \
  X(fluid_player_play)                  \
  X(fluid_player_stop)                  \
  X(fluid_player_seek)                  \
  X(fluid_player_get_status)            \
  X(fluid_player_get_current_tick)      \
  X(new_fluid_audio_driver)             \
  X(delete_fluid_audio_driver)          \
  X(fluid_set_log_function)

struct FluidSynthLibrary {
#define TALVERO_FLUIDSYNTH_POINTER(name) decltype(&::name) name = nullptr;
  TALVERO_FLUIDSYNTH_FUNCTIONS(TALVERO_FLUIDSYNTH_POINTER)
#undef TALVERO_FLUIDSYNTH_POINTER
};

// The library, opened on the first call (from any thread); nullptr when it is not installed
// or lacks one of the functions.
const FluidSynthLibrary* FluidSynth();
