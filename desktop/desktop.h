// The one interface of services that a game asks of the desktop it runs on.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "desktop/frame.h"

namespace desktop {

/// A rectangle of the screen, in twips.
struct Area {
  float Left = 0;
  float Top = 0;
  float Width = 0;
  float Height = 0;
};

/// A complete RIFF WAVE file in memory. The bytes live as long as the program.
struct WaveImage {
  std::string_view name;
  std::span<const unsigned char> bytes;
};

/// Shows the records of a frame and its forms, and turns mouse, keys and menu into calls of their
/// handlers. What changes in the records is on the screen after each event and before each rest.
class Desktop {
 public:
  virtual ~Desktop() = default;

  /// Puts the frame on the screen at its Left and Top; its first Resize runs inside.
  virtual void ShowFrame(Frame& frame) = 0;
  /// Gives the keyboard to a control of a form on show.
  virtual void SetFocus(Form& form, Element& control) = 0;
  /// Ends a hold on the mouse; the element that has it hears MouseLost.
  virtual void ReleaseMouse() = 0;

  /// Seconds since some moment. Never jumps back.
  virtual double Clock() const = 0;
  /// Rests until an event arrives or the clock reads `moment`, runs what has arrived, and returns.
  virtual void RunEventsUntil(double moment) = 0;

  /// Starts chance anew from the clock.
  virtual void Randomize() = 0;
  /// A uniform random number in [0, 1).
  virtual float Random() = 0;

  /// Asks a question in a modal box with the buttons Yes, the default, and No. True for Yes.
  virtual bool AskYesNo(std::string_view text, std::string_view title) = 0;

  /// The stored text, or `fallback` where there is none. Never creates a key.
  virtual std::string ReadSetting(std::string_view application, std::string_view section, std::string_view key,
                                  std::string_view fallback) = 0;
  virtual void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                           std::string_view text) = 0;

  /// Starts a recording, cutting off the one that plays, and returns at once.
  virtual void PlayWave(const WaveImage& image) = 0;

  /// The screen less what the platform keeps for itself.
  virtual Area WorkArea() const = 0;

  /// Opens the user's mail program on a new message to `address`. Nothing happens without one.
  virtual void OpenMail(std::string_view address) = 0;
  /// Opens the user's browser on a page. Nothing happens without one.
  virtual void OpenPage(std::string_view address) = 0;

  /// Ends the process at once; no further event is handled. Does not return.
  virtual void EndProcess() = 0;
};

}  // namespace desktop
