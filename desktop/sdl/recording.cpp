#include "desktop/sdl/recording.h"

#include <algorithm>

namespace desktop::sdl {

namespace {

// Bytes of a recording converted at a time: 1600 frames, a fraction of a millisecond's work. The
// stream rounds each piece to whole frames of the device, so a piece must make a whole number of
// them at every rate in use (8000, 11025, 16000 and 22050 Hz), or the recording would run fast.
constexpr std::size_t kPiece = 1600 * sizeof(Sample);

// The stream looks ahead and holds so many bytes back. They are given on top of the first piece,
// for that too has to make a whole number of frames.
constexpr std::size_t kAhead = 512 * sizeof(Sample);

// Silence behind a recording. What the stream holds back at the end is lost, even to a flush, and
// would otherwise be up to 64 ms of the recording.
constexpr std::size_t kBehind = kPiece;

/// The samples of a recording in 16 bits, at its own rate; none where they cannot be had.
std::vector<Uint8> Widened(const Library& sdl, const SDL_AudioSpec& spec, std::span<const Uint8> bytes) {
  SDL_AudioCVT width{};
  if (sdl.BuildAudioCVT(&width, spec.format, spec.channels, spec.freq, AUDIO_S16SYS, 1, spec.freq) < 0) return {};
  std::vector<Uint8> samples(bytes.size() * static_cast<std::size_t>(std::max(width.len_mult, 1)));
  std::ranges::copy(bytes, samples.begin());
  width.buf = samples.data();
  width.len = static_cast<int>(bytes.size());
  width.len_cvt = width.len;
  if (width.needed != 0) sdl.ConvertAudio(&width);
  samples.resize(static_cast<std::size_t>(width.len_cvt));
  return samples;
}

}  // namespace

Recording::Recording(const Library& sdl, const WaveImage& image) : sdl_(sdl), stream_(nullptr, sdl.FreeAudioStream) {
  SDL_AudioSpec spec{};
  Uint8* bytes = nullptr;
  Uint32 size = 0;
  SDL_RWops* file = sdl_.RWFromConstMem(image.bytes.data(), static_cast<int>(image.bytes.size()));
  if (!file || !sdl_.LoadWAV_RW(file, 1, &spec, &bytes, &size)) return;
  const std::unique_ptr<Uint8, decltype(Library::FreeWAV)> loaded(bytes, sdl_.FreeWAV);

  // The width first and apart: the silence behind is written in 16 bits.
  samples_ = Widened(sdl_, spec, {bytes, size});
  if (samples_.empty()) return;
  left_ = samples_.size() / sizeof(Sample) * kRate / static_cast<std::size_t>(spec.freq);
  seconds_ = static_cast<double>(left_) / kRate;
  samples_.resize(samples_.size() + kBehind);
  stream_.reset(sdl_.NewAudioStream(AUDIO_S16SYS, 1, spec.freq, AUDIO_S16SYS, 1, kRate));
}

std::size_t Recording::Read(std::span<Sample> out) {
  if (!stream_) return 0;
  const auto wanted = static_cast<int>(std::min(out.size(), left_) * sizeof(Sample));
  Convert(wanted);
  const int got = sdl_.AudioStreamGet(stream_.get(), out.data(), wanted);
  const auto count = static_cast<std::size_t>(std::max(got, 0)) / sizeof(Sample);
  left_ -= count;
  return count;
}

/// Makes the stream hold so many bytes.
void Recording::Convert(int bytes) {
  while (given_ < samples_.size() && sdl_.AudioStreamAvailable(stream_.get()) < bytes) {
    const std::size_t piece = std::min(given_ == 0 ? kPiece + kAhead : kPiece, samples_.size() - given_);
    sdl_.AudioStreamPut(stream_.get(), samples_.data() + given_, static_cast<int>(piece));
    given_ += piece;
  }
}

}  // namespace desktop::sdl
