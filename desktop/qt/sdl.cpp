#include "desktop/qt/sdl.h"

#include <QLibrary>

namespace desktop::qt {

namespace {

#if defined(Q_OS_WIN)
constexpr auto kLibrary = "SDL2";
#elif defined(Q_OS_MACOS)
constexpr auto kLibrary = "libSDL2-2.0.0";
#else
constexpr auto kLibrary = "libSDL2-2.0.so.0";
#endif

/// Notes in `found` when one is missing.
class Finder {
 public:
  explicit Finder(QLibrary& library) : library_(library) {}

  template <typename Function>
  void Find(Function& function, const char* name) {
    function = reinterpret_cast<Function>(library_.resolve(name));
    found = found && function;
  }

  bool found = true;

 private:
  QLibrary& library_;
};

}  // namespace

bool Sdl::Load() {
  QLibrary library(QString::fromLatin1(kLibrary));
  if (!library.load()) return false;
  Finder finder(library);
  finder.Find(SetHint, "SDL_SetHint");
  finder.Find(LoadObject, "SDL_LoadObject");
  finder.Find(LoadFunction, "SDL_LoadFunction");
  finder.Find(InitSubSystem, "SDL_InitSubSystem");
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
  finder.Find(AudioStreamFlush, "SDL_AudioStreamFlush");
  return finder.found;
}

}  // namespace desktop::qt
