// SDL's audio functions, found in the library when the first sound is played.
#pragma once

#include <SDL.h>

namespace desktop::sdl {

/// Linked in, SDL would bring some thirty libraries into every start of the program.
struct Library {
  decltype(&SDL_SetHint) SetHint = nullptr;
  decltype(&SDL_LoadObject) LoadObject = nullptr;
  decltype(&SDL_LoadFunction) LoadFunction = nullptr;
  decltype(&SDL_InitSubSystem) InitSubSystem = nullptr;
  decltype(&SDL_QuitSubSystem) QuitSubSystem = nullptr;
  decltype(&SDL_OpenAudioDevice) OpenAudioDevice = nullptr;
  decltype(&SDL_CloseAudioDevice) CloseAudioDevice = nullptr;
  decltype(&SDL_PauseAudioDevice) PauseAudioDevice = nullptr;
  decltype(&SDL_GetAudioDeviceStatus) GetAudioDeviceStatus = nullptr;
  decltype(&SDL_LockAudioDevice) LockAudioDevice = nullptr;
  decltype(&SDL_UnlockAudioDevice) UnlockAudioDevice = nullptr;
  decltype(&SDL_RWFromConstMem) RWFromConstMem = nullptr;
  decltype(&SDL_LoadWAV_RW) LoadWAV_RW = nullptr;
  decltype(&SDL_FreeWAV) FreeWAV = nullptr;
  decltype(&SDL_BuildAudioCVT) BuildAudioCVT = nullptr;
  decltype(&SDL_ConvertAudio) ConvertAudio = nullptr;
  decltype(&SDL_NewAudioStream) NewAudioStream = nullptr;
  decltype(&SDL_FreeAudioStream) FreeAudioStream = nullptr;
  decltype(&SDL_AudioStreamPut) AudioStreamPut = nullptr;
  decltype(&SDL_AudioStreamGet) AudioStreamGet = nullptr;
  decltype(&SDL_AudioStreamAvailable) AudioStreamAvailable = nullptr;

  /// Finds them all. False where the library is missing, or lacks one of them.
  bool Load();
};

}  // namespace desktop::sdl
