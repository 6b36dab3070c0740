#include "sounds/play_res_sound.h"

#include "sounds/recordings.h"

namespace thistle {

void PlayResSound(desktop::Desktop& desktop, bool SoundOn, std::string_view name) {
  if (!SoundOn) return;
  if (const desktop::WaveImage* image = FindRecording(name)) desktop.PlayWave(*image);
}

}  // namespace thistle
