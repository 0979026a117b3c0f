#pragma once

#include <functional>
#include <string>
#include <vector>

#include <QObject>

#include "app/desktop/projectors/FleetWatch.h"
#include "app/desktop/projectors/ProjectorRow.h"
#include "app/desktop/work/UsualSettings.h"

class QAction;
class QMenu;
class QWidget;
class WorkActions;

/// Menu actions for everyday changes of the selected projectors: power, input, blank, mute and
/// freeze.
class UsualActions : public QObject {
  Q_OBJECT

 public:
  using Rows = std::vector<const ProjectorRow*>;

  /// `selected` returns the projectors to change, and `work` does it. Both `work` and `watch` must
  /// outlive this object, which the window owns.
  UsualActions(std::function<Rows()> selected, WorkActions& work, FleetWatch& watch,
               QWidget& window);

  QAction* PowerOn() const { return on_; }
  QAction* PowerOff() const { return off_; }
  /// Actions with a menu.
  QAction* Power() const { return power_; }
  QAction* Input() const { return input_; }
  QAction* Blank() const { return blank_; }
  QAction* Mute() const { return mute_; }
  QAction* Freeze() const { return freeze_; }

  /// Enables the actions if projectors are selected.
  void Update(bool any);

 private:
  /// A value of a setting as an entry of a menu.
  struct Choice {
    QString title;
    std::function<QString(int count)> question;  ///< For this number of projectors.
    std::string key;                             ///< Empty for the input source.
    std::string value;
  };

  QAction* MakeSwitch(const QString& text, const std::vector<Choice>& choices);
  void FillInputs(QMenu& menu);
  void SwitchAll(bool on);
  void Set(const Choice& choice);

  const std::function<Rows()> selected_;
  WorkActions& work_;
  FleetWatch& watch_;
  QWidget& window_;
  UsualSettings settings_;
  QAction* on_;
  QAction* off_;
  QAction* power_;
  QAction* input_;
  QAction* blank_;
  QAction* mute_;
  QAction* freeze_;
};
