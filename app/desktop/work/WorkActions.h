#pragma once

#include <functional>
#include <vector>

#include <QObject>

#include "app/desktop/projectors/FleetWatch.h"
#include "app/desktop/projectors/ProjectorRow.h"
#include "app/desktop/work/UsualSettings.h"
#include "app/desktop/work/WorkDialog.h"

class QAction;
class QMenu;

/// Menu actions that change the selected projectors, one or many: power, input, blank, mute and
/// freeze. Many are asked about once; a single one is changed at once.
class WorkActions : public QObject {
  Q_OBJECT

 public:
  using Rows = std::vector<const ProjectorRow*>;

  /// `selected` returns the projectors to work on. `watch` must outlive this object, which the
  /// window owns.
  WorkActions(std::function<Rows()> selected, WorkDialog::NameOf nameOf, FleetWatch& watch,
              QWidget& window);
  ~WorkActions() override;

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

  using Then = std::function<void(const WorkRun&)>;

  /// Asks, and carries out a plan. A plan without a question begins at once, and so does one for a
  /// single projector, whose window opens only if that fails. `then` is called when it is done.
  void Do(WorkPlan plan, const Then& then = {});

  const SettingTexts& Texts() const { return texts_; }

 Q_SIGNALS:
  /// What came of the work on a single projector, for the status bar.
  void Told(const QString& text);

 private:
  /// One way of a switch: what a menu calls it, and the question for several projectors.
  struct Switch {
    QString title;
    const char* question;
  };

  int SelectedCount() const;
  QAction* MakeSwitch(const QString& text, const char* key, const Switch& on, const Switch& off);
  void FillInputs(QMenu& menu);
  void SwitchAll(bool on);
  /// `key` is empty for the input source, whose key depends on the model.
  void Set(const QString& title, const QString& question, const std::string& key,
           const std::string& text);

  const std::function<Rows()> selected_;
  const WorkDialog::NameOf nameOf_;
  FleetWatch& watch_;
  QWidget& window_;
  const SettingTexts texts_;
  UsualSettings settings_;
  QAction* on_;
  QAction* off_;
  QAction* power_;
  QAction* input_;
  QAction* blank_;
  QAction* mute_;
  QAction* freeze_;
};
