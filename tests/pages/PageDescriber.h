#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <QTimer>

#include "host/CAdvanceDlg.h"
#include "simulator/SimulatedProjector.h"

/// A simulated projector that can ignore or refuse commands.
class MoodyProjector final : public ProjectorChannel {
 public:
  explicit MoodyProjector(CAdvanceDlg& dialog);

  PjtReply Execute(const PjtCommand& command) override;

  enum class Mood { Obeys, Ignores, Refuses } mood = Mood::Obeys;
  bool unreadable = false;
  std::optional<std::int16_t> value;  ///< value of every setting
  std::string log;                    ///< what was sent, read and opened

 private:
  std::string& settingText_;
  SimulatedProjector simulation_;
  QTimer closer_;
};

/// Describes what a page does by using all its controls. The first text says what is read. It is
/// followed by a text for each row of the template, which is empty for an absent row. The first
/// line of each text is the row's caption.
///
/// The lines under a control list what using it sends, reads and opens. "…" stands for all reads of
/// the page. After an arrow is what the row then shows, with "off" for disabled controls. Then
/// follows what a click, the list's first two entries, or the slider's minimum and middle do if the
/// projector ignores or refuses them, and if the setting cannot be read any more. "shows" lists
/// what a row shows for each value.
std::vector<std::string> DescribePage(CDialog& page, MoodyProjector& projector,
                                      const std::function<void()>& refresh);
