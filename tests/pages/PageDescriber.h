#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <QTimer>

#include "host/CAdvanceDlg.h"
#include "simulator/SimulatedProjector.h"

/// A dialog's simulated projector that need not do what it is asked for.
class MoodyProjector final : public ProjectorChannel {
 public:
  explicit MoodyProjector(CAdvanceDlg& dialog);

  PjtReply Execute(const PjtCommand& command) override;

  enum class Mood { Obeys, Ignores, Refuses } mood = Mood::Obeys;
  bool unreadable = false;
  std::optional<std::int16_t> value;  ///< of every setting
  std::string log;                    ///< of what was sent, read and brought up

 private:
  std::string& settingText_;
  SimulatedProjector simulation_;
  QTimer closer_;
};

/// Says in words what a page does, by using all that is on it: what is read, then a text for each
/// row of the template, which is empty for a row that is not there. The first line of each text
/// is its caption.
///
/// Under a control stands what its use sends, reads and brings up; … stands for all reads of the
/// page, and behind an arrow is what the row shows then, with "off" for what is out of use. Then
/// comes what a click, the list's first two entries, or the slider's minimum and middle do when the
/// projector ignores or refuses them, and when it can no longer be read. "shows" tells what a row
/// shows of each value.
std::vector<std::string> DescribePage(CDialog& page, MoodyProjector& projector,
                                      const std::function<void()>& refresh);
