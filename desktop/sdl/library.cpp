#include "desktop/sdl/library.h"

#include <dlfcn.h>

namespace desktop::sdl {

namespace {

#if defined(__APPLE__)
constexpr auto kFile = "libSDL2-2.0.0.dylib";
#else
constexpr auto kFile = "libSDL2-2.0.so.0";
#endif

/// Notes in `found` when one is missing.
class Finder {
 public:
  explicit Finder(void* file) : file_(file) {}

  template <typename Function>
  void Find(Function& function, const char* name) {
    function = reinterpret_cast<Function>(dlsym(file_, name));
    found = found && function;
  }

  bool found = true;

 private:
  void* file_;
};

}  // namespace

bool Library::Load() {
  // Left open: its functions are called until the program ends.
  void* file = dlopen(kFile, RTLD_LAZY);
  if (!file) return false;
  Finder finder(file);
  finder.Find(SetHint, "SDL_SetHint");
  finder.Find(LoadObject, "SDL_LoadObject");
  finder.Find(LoadFunction, "SDL_LoadFunction");
  finder.Find(InitSubSystem, "SDL_InitSubSystem");
  finder.Find(QuitSubSystem, "SDL_QuitSubSystem");
  finder.Find(OpenAudioDevice, "SDL_OpenAudioDevice");
  finder.Find(CloseAudioDevice, "SDL_CloseAudioDevice");
  finder.Find(PauseAudioDevice, "SDL_PauseAudioDevice");
  finder.Find(GetAudioDeviceStatus, "SDL_GetAudioDeviceStatus");
  finder.Find(LockAudioDevice, "SDL_LockAudioDevice");
  finder.Find(UnlockAudioDevice, "SDL_UnlockAudioDevice");
  finder.Find(RWFromConstMem, "SDL_RWFromConstMem");
  finder.Find(LoadWAV_RW, "SDL_LoadWAV_RW");
  finder.Find(FreeWAV, "SDL_FreeWAV");
  finder.Find(BuildAudioCVT, "SDL_BuildAudioCVT");
  finder.Find(ConvertAudio, "SDL_ConvertAudio");
  finder.Find(NewAudioStream, "SDL_NewAudioStream");
  finder.Find(FreeAudioStream, "SDL_FreeAudioStream");
  finder.Find(AudioStreamPut, "SDL_AudioStreamPut");
  finder.Find(AudioStreamGet, "SDL_AudioStreamGet");
  finder.Find(AudioStreamAvailable, "SDL_AudioStreamAvailable");
  return finder.found;
}

}  // namespace desktop::sdl
