// Those who listen to a form on the screen: what they find when they ask, and what they are told without.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "desktop/common/telling.h"
#include "desktop/win32/form_reading.h"
#include "desktop/win32/handles.h"
#include "desktop/win32/news_window.h"

namespace desktop::win32 {

/// Comes to the view's window when there may be something to tell.
inline constexpr UINT kTellMessage = WM_APP + 1;

/// To be made when the first one asks.
class Audience {
 public:
  explicit Audience(FormView& view);
  ~Audience() { reading_->Disconnect(); }
  Audience(const Audience&) = delete;
  Audience& operator=(const Audience&) = delete;

  /// What WM_GETOBJECT returns for the view's inside.
  LRESULT Answer(WPARAM flags) const { return LresultFromObject(__uuidof(IAccessible), flags, reading_.get()); }
  /// The picture shows something new: has Tell called soon, once for all that one hand has done at once.
  void Call();
  /// Tells what has changed since the last call: the stops' values, the keyboard's stop, and the news.
  void Tell();
  /// The view's window has the keyboard again, and where it stands on it is to be told once more.
  void NoteKeyboard();

  std::optional<Hand> TakeWish() { return reading_->TakeWish(); }

 private:
  void TellStops();

  FormView& view_;
  Com<FormReading> reading_;
  NewsWindow news_;
  common::Telling telling_;
  std::vector<std::string> values_;  ///< of the stops, as told
  int atStop_ = kNoStop;             ///< as told
  bool called_ = false;
};

}  // namespace desktop::win32
