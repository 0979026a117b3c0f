#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <QTimer>

#include "device/ModelDataIntake.h"
#include "host/CAdvanceDlg.h"
#include "simulator/SimulatedProjector.h"

/// A simulated projector that need not do what it is asked for, and what it was asked.
class MoodyProjector final : public ProjectorChannel {
 public:
  enum class Mood { Obeys, Ignores, Refuses };

  explicit MoodyProjector(const ModelData& model) : simulation_(DescribeModel(model)) {}

  PjtReply Execute(const PjtCommand& command) override;

  Mood mood = Mood::Obeys;
  bool unreadable = false;
  std::optional<std::int16_t> value;  ///< of every setting
  std::string log;
  std::string* settingText = nullptr;  ///< the connection's

 private:
  SimulatedProjector simulation_;
};

/// Says in words what the pages of a dialog do, by using all that is on them.
///
/// Under a control stands what its use sends, reads and brings up; … stands for all reads of the
/// page, and behind an arrow is what the row shows then, with "off" for what is out of use. Then
/// comes what a click, the list's first two entries, or the slider's minimum and middle do when the
/// projector ignores or refuses them, and when it can no longer be read. "shows" tells what a row
/// shows of each value.
class PageDescriber {
 public:
  /// Takes the dialog's projector over.
  explicit PageDescriber(CAdvanceDlg& dialog);

  /// What is read, then a text for each row of the template; empty for a row that is not there.
  std::vector<std::string> Describe(CDialog& page, const std::function<void()>& refresh);

 private:
  using Act = std::function<void(bool refused)>;

  std::string DescribeRow(const RowTemplate& row);
  std::string DescribeControl(const ControlTemplate& control);
  std::string DescribeList(int id);
  std::string DescribeSlider();
  std::string DescribeButton(const ControlTemplate& control);
  /// What the same does to a projector that does not obey.
  std::string Otherwise(const Act& act);
  /// What the rows show of values of all kinds, and while they cannot be read.
  void AddShown(std::vector<std::string>& parts);

  /// What an act sends, reads and brings up.
  std::string Log(const std::function<void()>& act);
  /// What a row shows, and what of it is out of use.
  std::string Shown(const RowTemplate& row) const;
  void Choose(int id, int entry) const;
  void Drag(int position) const;

  std::shared_ptr<MoodyProjector> projector_;
  QTimer closer_;
  CDialog* page_ = nullptr;
  std::function<void()> refresh_;
  std::string pageReads_;
  const RowTemplate* row_ = nullptr;
  // Numbers of what the row has: a list that its button goes by, a slider.
  int helper_ = 0;
  int slider_ = 0;
};
